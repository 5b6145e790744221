// nastroje/navod/obrazky.cpp - the pictures of the manual.
#include "navod/obrazky.h"

#include "app/hodnoceni.h"
#include "app/simulace.h"
#include "davka/davka.h"
#include "davka/skript.h"
#include "desk/menu.h"
#include "nakres/jizdy.h"
#include "nakres/koridory.h"
#include "nakres/obraz.h"
#include "ui/hlavni_okno.h"
#include "ui/hodnoceni.h"
#include "ui/kresba.h"
#include "ui/kresba_nakresu.h"
#include "ui/nabidka.h"
#include "ui/okno_smeny.h"
#include "ui/parametry.h"
#include "ui/pismo.h"
#include "ui/platno.h"
#include "ui/text_prirucky.h"
#include "ui/vypravci.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTabWidget>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iostream>
#include <istream>
#include <map>
#include <memory>
#include <optional>
#include <sstream>
#include <streambuf>
#include <utility>
#include <vector>

namespace {

constexpr QRgb kZnaceni = 0xFFFFD21E; // of what is drawn over the desk: a colour that no element has
constexpr int kPolomerCisla = 9;      // pixels of the desk
// A detail is drawn so many times larger than on the desk, and shown smaller by the density it is marked
// with: crisp on every screen and in print.
constexpr double kKratDetailu = 6;
constexpr double kHustotaDetailu = 1.5;
constexpr int kKratOkna = 2; // of a window, likewise; it is shown a little smaller than on a screen
constexpr double kZmenseniOkna = 0.8, kZmenseniNabidky = 0.6;
constexpr double kKratNakresu = 2; // of the diagram, likewise
constexpr int kPredelFilmu = 6;    // between the frames of a strip, pixels of the picture
constexpr QRgb kOkrajFilmu = 0xFF3C4550;

struct Cislo {
    std::string cislo;
    Nalezeny prvek;
    QPoint posun;
};
struct Vyrez {
    std::string jmeno;
    QRect misto; // pixels of the desk
    double krat = 1, hustota = 1;
    bool do_filmu = false; // a further frame of the strip of that name
    std::vector<Cislo> cisla;
};

// The commands are mixed into the runner's script: the lines that are not its own never reach it. A picture
// is drawn when the runner asks for the line behind it, so that all lines before have been carried out.
class Skript : public std::streambuf {
public:
    Skript(std::istream& odkud, const ObrazekHotov& kam) : zdroj(odkud), hotov(kam) {}
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
        for (const auto& [jmeno, okenka] : filmy)
            uloz(slep_film(okenka), jmeno);
        filmy.clear();
        return traits_type::eof();
    }

private:
    bool proved(const std::vector<std::string>& slova);
    void dokresli();
    Platno& platno(double krat);
    static QImage slep_film(const std::vector<QImage>& okenka);
    void uloz(const QImage& obraz, const std::string& jmeno) {
        const std::string vada = hotov(QString::fromStdString(jmeno), obraz);
        if (chyba.empty())
            chyba = vada;
    }

    std::istream& zdroj;
    const ObrazekHotov& hotov;
    std::string radek, chyba;
    std::optional<Vyrez> rozdelany;
    std::map<double, Platno> platna; // by their scale: what has not changed since is not drawn again
    std::map<std::string, std::vector<QImage>> filmy;
};

int cele(const std::string& slovo) {
    return static_cast<int>(cislo_slova(slovo, -32768, 32767, "číslo"));
}

Druh druh_jmena(const std::string& jmeno) {
    if (const auto druh = druh_podle_jmena(jmeno))
        return *druh;
    chyba_skriptu("neznámý druh prvku " + v_uvozovkach(jmeno));
}

void oznac_hustotu(QImage& obraz, double hustota) {
    obraz.setText(QLatin1String(kHustotaObrazku), QString::number(hustota));
}

// A window of the program as it would stand on a screen.
QImage obraz_okna(QWidget& okno) {
    okno.ensurePolished();
    QImage obraz(okno.size() * kKratOkna, QImage::Format_RGB32);
    obraz.setDevicePixelRatio(kKratOkna);
    okno.render(&obraz);
    obraz.setDevicePixelRatio(1);
    oznac_hustotu(obraz, kKratOkna * kZmenseniOkna);
    return obraz;
}

QImage obraz_formulare() {
    OknoParametru okno([] {}, [](const QString&) { return false; });
    return obraz_okna(okno);
}

// The desk as a window, and what opens beside it.
QImage obraz_stolu(const std::string& okno) {
    HlavniOkno stul;
    stul.resize(1024, 768);
    stul.show();
    stul.ukaz_stul();
    if (okno == "stul")
        return obraz_okna(stul);
    if (okno == "vypravci")
        prepni_okno_vypravciho(&stul);
    else if (okno == "smena")
        ukaz_okno_smeny(stul);
    else if (okno == "hodnoceni")
        ukaz_hodnoceni(&stul);
    else
        chyba_skriptu("neznámé okno " + v_uvozovkach(okno));
    const QWidgetList okna = QApplication::topLevelWidgets();
    const auto vedle =
        std::find_if(okna.begin(), okna.end(), [&](QWidget* w) { return w->isVisible() && w != &stul; });
    if (vedle == okna.end())
        chyba_skriptu("okno se neotevřelo");
    if (auto* listy = (*vedle)->findChild<QTabWidget*>())
        listy->setCurrentIndex(1); // what he has done: of what waits there may be nothing
    const QImage obraz = obraz_okna(**vedle);
    delete *vedle;
    return obraz;
}

QImage obraz_nabidky() {
    const std::unique_ptr<QMenu> nabidka(
        postav_nabidku(nullptr, menu, pismo_poli(kVyskaBunky), 1, [](const Text&) {}));
    nabidka->resize(nabidka->sizeHint());
    zavri_menu();
    QImage obraz = obraz_okna(*nabidka);
    oznac_hustotu(obraz, kKratOkna * kZmenseniNabidky);
    return obraz;
}

// The diagram of a line, with the trains as they ran so far.
QImage nakresli_trat(const std::string& jmeno, int minut_zpet, int minut_vpred, QSize velikost) {
    const Koridory& k = koridory();
    const auto trat =
        std::find_if(k.trate.begin(), k.trate.end(), [&](const Koridor& t) { return t.jmeno == jmeno; });
    if (trat == k.trate.end())
        chyba_skriptu("neznámá trať " + v_uvozovkach(jmeno));
    const OsaKoridoru osa = osa_koridoru(k, *trat);
    const HodnoceniSmeny smena = hodnoceni_smeny();
    const std::int32_t ted = smena.zprava.do_s;
    PohledNakresu pohled;
    pohled.sirka = velikost.width();
    pohled.vyska = velikost.height();
    pohled.od = ted - 60 * minut_zpet;
    pohled.po = ted + 60 * minut_vpred;
    pohled.ted = ted;
    std::vector<CaraVlaku> cary = jete_cary(k, osa, smena.jizdy, ted);
    const std::vector<CaraVlaku> plan =
        planovane_cary(k, osa, static_cast<std::int32_t>(pohled.od), static_cast<std::int32_t>(pohled.po));
    cary.insert(cary.end(), plan.begin(), plan.end());
    QImage obraz((QSizeF(velikost) * kKratNakresu).toSize(), QImage::Format_RGB32);
    QPainter p(&obraz);
    p.scale(kKratNakresu, kKratNakresu);
    nakresli_obraz(p, nakresli_nakres(pohled, k, osa, cary), false);
    p.end();
    oznac_hustotu(obraz, kKratNakresu);
    return obraz;
}

// Place of an element on the desk, twips: of a line from end to end.
QRect misto_kresby_prvku(const Nalezeny& co) {
    const Prvek& p = tabulka(co.druh)[co.n];
    if (co.druh != Druh::kolej)
        return misto_vstupu(co.druh, p);
    return QRect(QPoint(std::min<int>(p.x1, p.x2), std::min<int>(p.y1, p.y2)),
                 QPoint(std::max<int>(p.x1, p.x2), std::max<int>(p.y1, p.y2)));
}

bool Skript::proved(const std::vector<std::string>& slova) {
    if (slova.empty())
        return false;
    const auto pocet = [&](std::size_t kolik) {
        if (slova.size() != kolik)
            chyba_skriptu("jiný počet slov, než má být");
    };
    if (slova[0] == "obraz" || slova[0] == "okenko") {
        pocet(7);
        dokresli();
        rozdelany = Vyrez{slova[1],
                          QRect(cele(slova[2]), cele(slova[3]), cele(slova[4]), cele(slova[5])),
                          QString::fromStdString(slova[6]).toDouble(),
                          1,
                          slova[0] == "okenko",
                          {}};
        if (rozdelany->misto.isEmpty() || rozdelany->krat <= 0)
            chyba_skriptu("prázdný výřez");
        return true;
    }
    if (slova[0] == "formular" || slova[0] == "nabidka") {
        pocet(2);
        dokresli();
        if (slova[0] == "nabidka" && menu.jmeno.empty())
            chyba_skriptu("žádná nabídka není otevřena");
        uloz(slova[0] == "nabidka" ? obraz_nabidky() : obraz_formulare(), slova[1]);
        return true;
    }
    if (slova[0] == "okno") {
        pocet(slova.size() > 3 ? 7 : 3);
        dokresli();
        QImage obraz = obraz_stolu(slova[2]);
        if (slova.size() > 3) { // keeps the density that the picture is marked with
            const QRect cast(cele(slova[3]), cele(slova[4]), cele(slova[5]), cele(slova[6]));
            obraz = obraz.copy({cast.topLeft() * kKratOkna, cast.size() * kKratOkna});
            oznac_hustotu(obraz, kKratOkna * kZmenseniOkna);
        }
        uloz(obraz, slova[1]);
        return true;
    }
    if (slova[0] == "nakres") {
        pocet(7);
        dokresli();
        uloz(nakresli_trat(slova[2], cele(slova[3]), cele(slova[4]), {cele(slova[5]), cele(slova[6])}),
             slova[1]);
        return true;
    }
    if (slova[0] == "detail") {
        pocet(6);
        dokresli();
        const Nalezeny co{druh_jmena(slova[2]), cele(slova[3])};
        if (!tabulka(co.druh).je(co.n))
            chyba_skriptu("takový prvek není");
        const QRect twipy = misto_kresby_prvku(co);
        const int x = cele(slova[4]), y = cele(slova[5]);
        rozdelany = Vyrez{
            slova[1],
            QRect(twipy.x() / kTwipu, twipy.y() / kTwipu, twipy.width() / kTwipu, twipy.height() / kTwipu)
                .adjusted(-x, -y, x, y),
            kKratDetailu,
            kHustotaDetailu,
            false,
            {}};
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

Platno& Skript::platno(double krat) {
    const auto [kde, nove] = platna.try_emplace(krat);
    const int monitoru = simulace.dva_monitory ? 2 : 1;
    if (nove)
        kde->second.nastav_velikost((QSizeF(1024 * monitoru, 768) * krat).toSize(), monitoru * kSirkaStolu);
    kde->second.obnov();
    return kde->second;
}

// One frame under the other, like the pictures of a film.
QImage Skript::slep_film(const std::vector<QImage>& okenka) {
    QSize velikost(0, kPredelFilmu);
    for (const QImage& o : okenka)
        velikost = {std::max(velikost.width(), o.width() + 2 * kPredelFilmu),
                    velikost.height() + o.height() + kPredelFilmu};
    QImage film(velikost, QImage::Format_RGB32);
    film.fill(QColor::fromRgb(kOkrajFilmu));
    QPainter p(&film);
    int y = kPredelFilmu;
    for (const QImage& o : okenka) {
        p.drawImage(kPredelFilmu, y, o);
        y += o.height() + kPredelFilmu;
    }
    return film;
}

void Skript::dokresli() {
    if (!rozdelany)
        return;
    const Vyrez v = *std::exchange(rozdelany, std::nullopt);
    const Platno& stul = platno(v.krat);
    const QRect vyrez = QRectF(v.misto.x() * v.krat, v.misto.y() * v.krat, v.misto.width() * v.krat,
                               v.misto.height() * v.krat)
                            .toRect();
    QImage obraz = stul.obraz().copy(vyrez);
    QPainter p(&obraz);
    p.translate(-vyrez.topLeft());
    p.setRenderHint(QPainter::Antialiasing);
    for (const Cislo& c : v.cisla)
        nakresli_cislo(p, c, stul.meritko());
    p.end();
    if (v.hustota != 1)
        oznac_hustotu(obraz, v.hustota);
    if (v.do_filmu)
        filmy[v.jmeno].push_back(obraz);
    else
        uloz(obraz, v.jmeno);
}

} // namespace

bool nakresli_obrazky(const QString& skript, const std::string& instalace, const ObrazekHotov& hotov) {
    QFile soubor(skript);
    if (!soubor.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "tesk-navod: %s nejde přečíst\n", qPrintable(skript));
        return false;
    }
    nacti_pismo(QString::fromStdString(instalace) + QStringLiteral("/data/kps.fon"));
    std::istringstream text(soubor.readAll().toStdString());
    Skript zdroj(text, hotov);
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
