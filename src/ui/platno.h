// ui/platno.h - the desk as a picture that follows the relief store.
//
// The picture keeps a copy of every element as it was drawn last. When the store's revision has moved,
// obnov() compares element by element and redraws only where something differs; an idle desk costs one
// comparison of two numbers.
//
// Places are told in three measures. The store's own twips are those of the desk as it was drawn. In the
// picture an element may stand elsewhere: a wide picture takes the drawing apart (ui/roztazeni.h), its bars
// and panels reach from edge to edge; such places are twips of the picture. Device pixels follow from them by
// a measure, of which there are two: a magnifying glass enlarges the tracks, the bars stay.
#pragma once

#include "desk/tabulka_vlaku.h"
#include "prvky/panel.h"
#include "relief/relief.h"
#include "ui/kresba.h"
#include "ui/roztazeni.h"

#include <QImage>
#include <QRegion>

#include <array>
#include <optional>
#include <set>
#include <utility>
#include <vector>

struct Nalezeny {
    Druh druh = Druh::kolej;
    int n = kZadny;
    bool operator==(const Nalezeny&) const = default;
};

// What the second half of the bottom panel shows, where the drawing of two monitors fills its screens: the
// train table, and beside the train table the messages and the diary; nothing where a long train goes on into
// it.
enum class DruhaStranka : std::uint8_t { zadna, tabulka, seznamy };

class Platno {
public:
    // Size of the picture in device pixels and the width of the desk in twips. The desk keeps its proportions
    // and stands in the middle; `roztahnout`: it fills the picture, tracks and spaces grow. `jedina`: the
    // drawing of two monitors stands on one screen, so that the keys of the bar stand in its corner.
    // Everything is drawn anew at the next obnov().
    void nastav_velikost(QSize velikost, int sirka_stolu, bool roztahnout = false, bool jedina = false);
    // Draws what has changed; answers where, in device pixels.
    QRegion obnov();
    // Draws everything, changed or not.
    void prekresli();

    // --- the magnifying glass: 1 shows the whole desk. What it changes is drawn by the next prekresli().

    double lupa() const { return zvetseni; }
    // So many times larger; the place at `bod`, device pixels, stays where it is.
    void nastav_lupu(double krat, QPointF bod);
    // Moves what is seen; device pixels.
    void posun_lupu(QPoint o_kolik);
    // Brings the place of the picture into sight; true when something has moved.
    bool ukaz(QPoint twipy);

    const QImage& obraz() const { return platno; }
    // Draws the desk, as it was looked at last, on another device of the same measure: a file of lines.
    void nakresli_na(QPainter& p) const { kresli(p, platno.rect()); }
    const Meritko& meritko() const { return m; } // of the bars and panels
    const Meritko& meritko(Druh druh) const { return zvetseny(druh) ? lupy : m; }
    const Meritko& meritko_mista(QPoint twipy) const;
    QPoint na_twipy(QPointF bod) const;       // from device pixels to twips of the picture
    QRect v_bodech(const QRect& twipy) const; // the other way, what is seen of it
    // From a place of the picture to that of the desk as it was drawn, and back. Twips.
    QPoint na_stul(QPoint obraz) const;
    QPoint ze_stolu(QPoint stul) const;
    // The desk stands in the picture as it was drawn.
    bool je_beze_zmeny() const { return sirsi == 0 && zvetseni <= 1; }

    // Element as it stands in the picture, and where it takes input there. It must exist.
    const Prvek& prvek(Druh druh, int n) const {
        return umistene[static_cast<std::size_t>(druh)][static_cast<std::size_t>(n)];
    }
    QRect misto(Druh druh, int n) const { return misto_vstupu(druh, prvek(druh, n)); }
    // Places of the screen's own that are no elements: the lists of the bottom panel, and how much further
    // right the right end of the bars stands. Twips of the picture.
    QRect misto_seznamu() const;
    // The same on the second half, where the messages (0) and the diary (1) stand side by side.
    QRect misto_seznamu_vedle(int ktery) const;
    DruhaStranka druha_stranka() const { return druha; }
    // Upper edge of the last line of the bottom panel, below a train and its captions.
    int posledni_radek_panelu() const { return kVyskaStolu + vyssi - kVyskaZnaku - kTwipu; }
    // Of the keys of the bar: on one screen they stand in its corner, whatever drawing it has.
    int posun_klaves() const { return pres_oba ? sirsi + sirka_stolu - kSirkaStolu : posun_praveho_okraje(); }
    int posun_praveho_okraje() const { return sirsi / monitoru(); }
    // How much broader the bottom panel is than on the desk as it was drawn; of two monitors its first half.
    int navic_panelu() const { return konec_prvni_pulky() - kSirkaStolu; }

    // Element under the place in the picture that takes input: the topmost one that holds it, among elements
    // that overlap in one layer the nearest one.
    std::optional<Nalezeny> prvek_pod(QPoint twipy) const;
    // Middle of the next element that takes input, from a place in the picture on to the left, right, up or
    // down; what lies aside of that way counts as further off.
    std::optional<QPoint> soused(QPoint odkud, QPoint smer) const;

private:
    struct Polozka { // one element in drawing order
        Druh druh;
        int n;
        QRect misto; // twips
    };

    struct Vozy { // how much larger vehicles are drawn, and where that room is; twips
        double krat = 1;
        int nahoru = 0, dolu = 0;
        bool operator==(const Vozy&) const = default;
    };

    int monitoru() const { return sirka_stolu > kSirkaStolu ? 2 : 1; }
    bool zvetseny(Druh druh) const { return zvetseni > 1 && je_v_reliefu(druh); }
    int posun_panelu() const;    // of the signal panel to the right, twips
    QRect plocha_panelu() const; // its place, device pixels
    Prvek umisti(Druh druh, int n) const;
    void umisti_na_panelu(Druh druh, int n, Prvek& p) const;
    void umisti_vse();
    int konec_prvni_pulky() const; // of the bottom panel; its right end where there is only one
    QRect misto_panelu() const;    // both halves
    DruhaStranka spocti_druhou() const;
    void umisti_tabulku();
    Vozy spocti_vozy() const;
    std::array<Text, kRadkuTabulky> spocti_doplnky() const;
    QRect plocha_lupy() const; // device pixels
    void spocti_lupu(QPointF roh);
    void serad();
    void najdi_spoje();
    bool navazuje(int x, int y) const { return spoje.contains({x, y}); }
    QRect v_bodech(const Polozka& polozka) const { return v_bodech(polozka.druh, polozka.misto); }
    QRect v_bodech(Druh druh, const QRect& twipy) const;
    void kresli(QPainter& p, const QRegion& kde) const;
    void kresli_druhou_pulku(QPainter& p) const;
    void kresli_bez_vlaku(QPainter& p) const;
    template <class Ktere> void kresli_prvky(QPainter& p, const QRegion& kde, Ktere ktere) const;

    QImage platno;
    Meritko m, lupy;
    int sirka_stolu = kSirkaStolu;
    bool pres_oba = false;  // both halves of the drawing stand on one screen
    bool dve_pulky = false; // the bottom panel has a second one
    DruhaStranka druha = DruhaStranka::zadna;
    int sirsi = 0, vyssi = 0; // by which the picture is larger than the desk, twips
    double zvetseni = 1;
    Vozy vozy;
    std::array<Text, kRadkuTabulky> doplnky; // of the train table
    PrvkyDruhu nakreslene;                   // as they were looked at last
    PrvkyDruhu umistene;                     // the same in the picture
    Roztazeni roztazeni;
    std::vector<Polozka> poradi;
    std::set<std::pair<int, int>> spoje; // where switches and slanted lines begin and end, twips
    std::vector<NapisPozadi> nakreslene_napisy, umistene_napisy;
    PanelNavestidla nakresleny_panel;
    std::uint64_t nakreslena_revize = 0;
    bool vse = true; // nothing drawn yet
};
