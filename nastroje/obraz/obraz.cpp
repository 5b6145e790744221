// nastroje/obraz/obraz.cpp - tesk-obraz, the junction as a picture.
//
//   tesk-obraz INSTALACE SOUBOR.png|SOUBOR.svg [--dva] [--krat X] [--stul]
//
// Starts the installation without a display, looks at the desk at rest and draws it by the desk's own
// painting: the tracks alone (--stul: with the bars and panels below and above them), for one monitor or for
// two, X times as large as on a monitor of 1024 by 768. Exit status: 0; 1 it cannot be drawn or written, 2
// wrong use.
#include "davka/davka.h"
#include "obraz/svg.h"
#include "ui/pismo.h"
#include "ui/platno.h"

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cstdio>
#include <iostream>
#include <sstream>

namespace {

constexpr double kNejvicKrat = 8;
constexpr int kRelief = 46, kPodReliefem = 46 + 546; // pixels of the desk between which the tracks lie

struct Zadani {
    QString instalace, soubor;
    bool dva = false, stul = false;
    double krat = 2;
};

bool precti_zadani(const QStringList& slova, Zadani& z) {
    QStringList mista;
    for (int i = 1; i < slova.size(); ++i) {
        bool cislo = true;
        if (slova[i] == QLatin1String("--dva"))
            z.dva = true;
        else if (slova[i] == QLatin1String("--stul"))
            z.stul = true;
        else if (slova[i] == QLatin1String("--krat") && i + 1 < slova.size())
            z.krat = slova[++i].toDouble(&cislo);
        else if (slova[i].startsWith(QLatin1String("--")))
            return false;
        else
            mista << slova[i];
        if (!cislo)
            return false;
    }
    if (mista.size() != 2 || !(z.krat >= 0.25 && z.krat <= kNejvicKrat))
        return false;
    z.instalace = mista[0];
    z.soubor = mista[1];
    return z.soubor.endsWith(QLatin1String(".png")) || z.soubor.endsWith(QLatin1String(".svg"));
}

bool zapis_svg(const QString& soubor, const Platno& platno, const QRect& vyrez) {
    SvgPlocha plocha(vyrez.size());
    QPainter p(&plocha);
    p.translate(-vyrez.topLeft());
    platno.nakresli_na(p);
    p.end();
    QFile f(soubor);
    const QByteArray text = plocha.text().toUtf8();
    return f.open(QIODevice::WriteOnly) && f.write(text) == text.size() && f.flush();
}

} // namespace

int main(int pocet, char** slova) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication aplikace(pocet, slova);
    Zadani z;
    if (!precti_zadani(QCoreApplication::arguments(), z)) {
        std::fputs("použití: tesk-obraz INSTALACE SOUBOR.png|SOUBOR.svg [--dva] [--krat X] [--stul]\n",
                   stderr);
        return 2;
    }
    nacti_pismo(z.instalace + QStringLiteral("/data/kps.fon"));
    std::istringstream skript(std::string("spust cas=0:00 gvd=GVD_tichy zpozdeni=0 dual=") +
                              (z.dva ? "1" : "0") + "\nprihlas\n");
    VolbyDavky volby;
    volby.slozka = z.instalace.toStdString();
    std::ostringstream vypisy;
    if (spust_davku(volby, skript, vypisy, std::cerr) != navrat::v_poradku)
        return 1;

    const int monitoru = z.dva ? 2 : 1;
    Platno platno;
    platno.nastav_velikost((QSizeF(1024 * monitoru, 768) * z.krat).toSize(), monitoru * kSirkaStolu);
    platno.obnov();
    const QRect cely = platno.obraz().rect();
    const QRect vyrez = z.stul ? cely
                               : QRect(QPoint(0, platno.meritko().y(kRelief * kTwipu)),
                                       QPoint(cely.right(), platno.meritko().y(kPodReliefem * kTwipu) - 1));
    const bool hotovo = z.soubor.endsWith(QLatin1String(".svg")) ? zapis_svg(z.soubor, platno, vyrez)
                                                                 : platno.obraz().copy(vyrez).save(z.soubor);
    if (!hotovo)
        std::fprintf(stderr, "tesk-obraz: %s nejde zapsat\n", qPrintable(z.soubor));
    return hotovo ? 0 : 1;
}
