# nastroje/nakres.py - the frame of a drawing over time, as SVG: heading, hours, stations, numbers, legend.
#
# vypis_gtn.py draws by it what trains have run, grafikon.py what they shall.
import math
from xml.sax.saxutils import escape

OKRAJ_VLEVO, OKRAJ_VPRAVO, OKRAJ_NAHORE, OKRAJ_DOLE = 160, 36, 92, 54
PISMO = "font-family=\"'DejaVu Sans', 'Noto Sans', sans-serif\""
PAPIR = "#fffdf7"
DNY_SLOVY = ("pondělí", "úterý", "středa", "čtvrtek", "pátek", "sobota", "neděle")


def hodiny_minuty(cas):
    """Clock of a second of a drawing: "8:00", a day later "+1 0:30"."""
    den, s = divmod(cas, 86400)
    return ("%+d " % den if den else "") + "%d:%02d" % (s // 3600, s // 60 % 60)


def zacatek(sirka, vyska, titul, nadpis, podnadpis):
    """The opening tag, the paper and the heading."""
    return ['<svg xmlns="http://www.w3.org/2000/svg" width="%.0f" height="%.0f" viewBox="0 0 %.0f %.0f" %s>'
            % (sirka, vyska, sirka, vyska, PISMO),
            "<title>%s</title>" % escape(titul),
            '<rect width="100%%" height="100%%" fill="%s"/>' % PAPIR,
            '<text x="%d" y="34" font-size="20" font-weight="bold" fill="#222">%s</text>' % (OKRAJ_VLEVO, escape(nadpis)),
            '<text x="%d" y="54" font-size="12" fill="#666">%s</text>' % (OKRAJ_VLEVO, escape(podnadpis))]


def mrizka_casu(x, od, do, nahore, dole, na_minutu, popis=hodiny_minuty):
    """Midnights and hours strong, ten minutes thin, the clock above and below in the words of `popis`."""
    svg = []
    for cas in range(od, do + 1, 600):
        hodina, pul = cas % 3600 == 0, cas % 1800 == 0
        barva, tloustka = ("#4a463c", 2) if cas % 86400 == 0 else ("#9a9484", 1.2) if hodina else ("#ddd6c4", 0.6)
        svg.append('<line x1="%.1f" y1="%.1f" x2="%.1f" y2="%.1f" stroke="%s" stroke-width="%s"/>'
                   % (x(cas), nahore, x(cas), dole, barva, tloustka))
        if hodina or (pul and na_minutu >= 2.5) or na_minutu >= 5:
            for misto in (nahore - 10, dole + 20):
                svg.append('<text x="%.1f" y="%.1f" font-size="%d" text-anchor="middle" fill="#444"%s>%s</text>'
                           % (x(cas), misto, 12 if hodina else 10, ' font-weight="bold"' if hodina else "",
                              popis(cas)))
    return svg


def osa_stanic(osa, y, x1, x2, male=()):
    """Stations [(name, code, metres)] at their distances; those whose names are in `male` with a thin line."""
    svg = []
    for nazev, kod, m in osa:
        barva, tloustka = ("#b9b29e", 0.8) if nazev in male else ("#6b6658", 1.2)
        svg.append('<line x1="%d" y1="%.1f" x2="%.1f" y2="%.1f" stroke="%s" stroke-width="%s"/>'
                   % (x1, y(m), x2, y(m), barva, tloustka))
        svg.append('<text x="%d" y="%.1f" font-size="13" text-anchor="end" fill="#222">%s</text>'
                   % (x1 - 24, y(m) - 1, escape(nazev)))
        svg.append('<text x="%d" y="%.1f" font-size="10" text-anchor="end" fill="#888">%s · %s km</text>'
                   % (x1 - 24, y(m) + 12, escape(kod), ("%.1f" % (m / 1000)).replace(".", ",")))
    return svg


def cislo_na_care(a, b, cislo, barva, kde=0.5, pismo=12):
    """The number lies along the piece of line from a to b, on a ground of its own."""
    uhel = math.degrees(math.atan2(b[1] - a[1], b[0] - a[0]))
    pul = 0.3 * pismo * len(str(cislo)) + 3
    return ('<g transform="translate(%.1f %.1f) rotate(%.1f)"><rect x="%.1f" y="%.1f" width="%.1f" height="%.1f" fill="%s"/>'
            '<text y="%.1f" font-size="%g" text-anchor="middle" fill="%s">%s</text></g>'
            % (a[0] + kde * (b[0] - a[0]), a[1] + kde * (b[1] - a[1]), uhel, -pul, -0.58 * pismo, 2 * pul, 1.16 * pismo,
               PAPIR, 0.35 * pismo, pismo, barva, escape(str(cislo))))


def legenda(polozky, y, x=OKRAJ_VLEVO, tloustka=1.8):
    """[(colour, attributes of the line, text)] in a row."""
    svg = []
    for barva, cara, text in polozky:
        svg.append('<line x1="%d" y1="%.1f" x2="%d" y2="%.1f" stroke="%s" stroke-width="%g"%s/>'
                   '<text x="%d" y="%.1f" font-size="11" fill="#444">%s</text>'
                   % (x, y, x + 28, y, barva, tloustka, cara, x + 34, y + 4, escape(text)))
        x += 60 + 7 * len(text)
    return svg
