// nastroje/navod/obrazky.cpp - the pictures of the manual.
#include "navod/obrazky.h"

#include "davka/davka.h"
#include "davka/skript.h"
#include "ui/kresba.h"
#include "ui/pismo.h"
#include "ui/platno.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <cstdio>
#include <iostream>
#include <istream>
#include <optional>
#include <sstream>
#include <streambuf>
#include <vector>

namespace {

constexpr QRgb kZnaceni = 0xFFFFD21E; // of what is drawn over the desk: a colour that no element has
constexpr int kPolomerCisla = 9;      // pixels of the desk
constexpr int kOdstupZnacky = 2;      // around a sign that stands alone

struct Cislo {
    std::string cislo;
    Nalezeny prvek;
    QPoint posun;
};
struct Vyrez {
    std::string jmeno;
    QRect misto; // pixels of the desk
    double krat = 1;
    std::vector<Cislo> cisla;
};

// The commands are mixed into the runner's script: the lines that are not its own never reach it. A picture
// is drawn when the runner asks for the line behind it, so that all lines before have been carried out.
class Skript : public std::streambuf {
public:
    Skript(std::istream& odkud, const QString& kam) : zdroj(odkud), slozka(kam) {}
    bool v_poradku() const { return chyba.empty(); }
    const std::string& proc() const { return chyba; }

protected:
    int_type underflow() override {
        while (chyba.empty() && std::getline(zdroj, radek)) {
            bool vlastni = false;
            try {
                vlastni = proved(slova_radku(radek));
            } catch (const ChybaSkriptu& c) {
                chyba = radek + ": " + c.proc;
                break;
            }
            if (vlastni)
                continue;
            dokresli();
            radek += '\n';
            setg(radek.data(), radek.data(), radek.data() + radek.size());
            return traits_type::to_int_type(radek.front());
        }
        dokresli();
        return traits_type::eof();
    }

private:
    bool proved(const std::vector<std::string>& slova);
    void dokresli();
    void uloz(const QImage& obraz, const std::string& jmeno) {
        const QString soubor = slozka + u'/' + QString::fromStdString(jmeno) + QStringLiteral(".png");
        if (!obraz.save(soubor) && chyba.empty())
            chyba = soubor.toStdString() + " nejde zapsat";
    }

    std::istream& zdroj;
    QString slozka;
    std::string radek, chyba;
    std::optional<Vyrez> rozdelany;
};

int cele(const std::string& slovo) {
    return static_cast<int>(cislo_slova(slovo, -32768, 32767, "číslo"));
}

Druh druh_jmena(const std::string& jmeno) {
    if (const auto druh = druh_podle_jmena(jmeno))
        return *druh;
    chyba_skriptu("neznámý druh prvku " + v_uvozovkach(jmeno));
}

// Glyphs alone, on the ground of the desk.
QImage nakresli_znacku(const Text& znaky, Barva barva) {
    constexpr int kKrat = 2;
    const int sirka = static_cast<int>(znaky.size()) * kSirkaBunky;
    QImage obraz((sirka + 2 * kOdstupZnacky) * kKrat, (kVyskaBunky + 2 * kOdstupZnacky) * kKrat,
                 QImage::Format_RGB32);
    obraz.fill(Qt::black);
    QPainter p(&obraz);
    kresli_radek(p, kOdstupZnacky * kKrat, kOdstupZnacky * kKrat, kSirkaBunky * kKrat, kVyskaBunky * kKrat,
                 znaky, barva, Znaky::znacky);
    return obraz;
}

bool Skript::proved(const std::vector<std::string>& slova) {
    if (slova.empty())
        return false;
    const auto pocet = [&](std::size_t kolik) {
        if (slova.size() != kolik)
            chyba_skriptu("jiný počet slov, než má být");
    };
    if (slova[0] == "obraz") {
        pocet(7);
        dokresli();
        rozdelany = Vyrez{slova[1],
                          QRect(cele(slova[2]), cele(slova[3]), cele(slova[4]), cele(slova[5])),
                          QString::fromStdString(slova[6]).toDouble(),
                          {}};
        if (rozdelany->misto.isEmpty() || rozdelany->krat <= 0)
            chyba_skriptu("prázdný výřez");
        return true;
    }
    if (slova[0] == "cislo") {
        pocet(6);
        if (!rozdelany)
            chyba_skriptu("číslo bez obrazu");
        const Nalezeny prvek{druh_jmena(slova[2]), cele(slova[3])};
        if (!tabulka(prvek.druh).je(prvek.n))
            chyba_skriptu("takový prvek není");
        rozdelany->cisla.push_back({slova[1], prvek, QPoint(cele(slova[4]), cele(slova[5]))});
        return true;
    }
    if (slova[0] == "znacka") {
        if (slova.size() < 4)
            chyba_skriptu("značka bez kódu nebo barvy");
        const auto barva = barva_textu(slova.back());
        if (!barva)
            chyba_skriptu("neznámá barva " + v_uvozovkach(slova.back()));
        Text znaky;
        for (std::size_t i = 2; i + 1 < slova.size(); ++i)
            znaky += znak(cele(slova[i]));
        uloz(nakresli_znacku(znaky, *barva), slova[1]);
        return true;
    }
    return false;
}

// Where the line from the middle of the frame to a point outside leaves the frame.
QPointF na_okraji(const QRectF& ramec, QPointF kam) {
    const QPointF smer = kam - ramec.center();
    const double vodorovne = smer.x() != 0 ? ramec.width() / 2 / std::abs(smer.x()) : 1e9;
    const double svisle = smer.y() != 0 ? ramec.height() / 2 / std::abs(smer.y()) : 1e9;
    return ramec.center() + smer * std::min({vodorovne, svisle, 1.0});
}

void nakresli_cislo(QPainter& p, const Cislo& c, const Meritko& m) {
    const double bod = m.bod();
    const QRect twipy = misto_vstupu(c.prvek.druh, tabulka(c.prvek.druh)[c.prvek.n]);
    const QRectF ramec =
        QRectF(QPointF(m.x(twipy.left()), m.y(twipy.top())), QPointF(m.x(twipy.right()), m.y(twipy.bottom())))
            .adjusted(-2 * bod, -2 * bod, 2 * bod, 2 * bod);
    const QPointF stred = ramec.center() + QPointF(c.posun) * bod;
    const QPointF hrot = na_okraji(ramec, stred);
    const QColor barva = QColor::fromRgb(kZnaceni);
    p.setPen(QPen(barva, 1.3 * bod));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(ramec, 2 * bod, 2 * bod);
    const QPointF smer = hrot - stred;
    const double delka = std::hypot(smer.x(), smer.y());
    if (delka > (kPolomerCisla + 4) * bod) {
        const QPointF j = smer / delka, kolmo(-j.y(), j.x());
        p.drawLine(stred, hrot - j * 4 * bod);
        p.setPen(Qt::NoPen);
        p.setBrush(barva);
        p.drawPolygon(
            QPolygonF{hrot, hrot - j * 6 * bod + kolmo * 3 * bod, hrot - j * 6 * bod - kolmo * 3 * bod});
    }
    p.setPen(QPen(Qt::black, bod));
    p.setBrush(barva);
    p.drawEllipse(stred, kPolomerCisla * bod, kPolomerCisla * bod);
    const Text text = z_qstring(QString::fromStdString(c.cislo));
    const double sirka = kSirkaBunky * 1.2 * bod, vyska = kVyskaBunky * 1.2 * bod;
    for (const double tloustka : {0.0, 0.6}) // twice, a little aside: the font has no bold letters
        kresli_radek(p, stred.x() - sirka * static_cast<double>(text.size()) / 2 + tloustka * bod,
                     stred.y() - vyska / 2, sirka, vyska, text, barvy::cerna, Znaky::pismena);
}

void Skript::dokresli() {
    if (!rozdelany)
        return;
    Platno platno;
    platno.nastav_velikost((QSizeF(1024, 768) * rozdelany->krat).toSize(), kSirkaStolu);
    platno.obnov();
    QImage obraz = platno.obraz();
    QPainter p(&obraz);
    p.setRenderHint(QPainter::Antialiasing);
    for (const Cislo& c : rozdelany->cisla)
        nakresli_cislo(p, c, platno.meritko());
    p.end();
    const double k = rozdelany->krat;
    const QRect& r = rozdelany->misto;
    uloz(obraz.copy(QRectF(r.x() * k, r.y() * k, r.width() * k, r.height() * k).toRect()), rozdelany->jmeno);
    rozdelany.reset();
}

} // namespace

bool nakresli_obrazky(const QString& skript, const std::string& instalace, const QString& slozka) {
    QFile soubor(skript);
    if (!soubor.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "tesk-navod: %s nejde přečíst\n", qPrintable(skript));
        return false;
    }
    nacti_pismo(QString::fromStdString(instalace) + QStringLiteral("/data/kps.fon"));
    std::istringstream text(soubor.readAll().toStdString());
    Skript zdroj(text, slozka);
    std::istream cteni(&zdroj);
    std::ostringstream vypisy;
    VolbyDavky volby;
    volby.slozka = instalace;
    const int kod = spust_davku(volby, cteni, vypisy, std::cerr);
    if (!zdroj.v_poradku())
        std::fprintf(stderr, "tesk-navod: %s\n", zdroj.proc().c_str());
    if (kod == navrat::over_selhal)
        std::fputs(vypisy.str().c_str(), stderr);
    return kod == navrat::v_poradku && zdroj.v_poradku();
}
