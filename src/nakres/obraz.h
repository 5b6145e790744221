// nakres/obraz.h - a time-distance diagram as values: what is drawn where, in which colour, for which train.
//
// The screen paints these shapes, a page of paper takes the same ones in the colours of paper, and the text
// of an SVG file is made of them here.
#pragma once

#include "nakres/jizdy.h"
#include "nakres/koridory.h"
#include "zaklad/text.h"

#include <cstdint>
#include <string>
#include <vector>

// What a shape is; its colour follows from this and from the ground.
enum class RoleNakresu : std::uint8_t {
    papir,
    ramec,
    pulnoc,
    hodina,
    delsi_cas,  // half hours
    kratsi_cas, // five or ten minutes
    stanice,
    zastavka,
    pismo,
    slabe_pismo,
    ted,
    na_ted, // letters on the present
    expres,
    rychlik,
    spesny,
    osobni,
    zvlastni,
    nakladni,
    sluzebni, // sets, locomotives, shunting
};
// 0xRRGGBB on the dark ground of the desk, or on paper.
std::uint32_t barva_role(RoleNakresu role, bool papir);
// Group of a category, by its colour; sluzebni for none.
RoleNakresu role_druhu(std::uint8_t druh);

enum class DruhTvaru : std::uint8_t {
    cara,   // through the points
    plocha, // from the first corner to the second one
    kruh,   // about the point
    text,   // at the point: the middle of its height
};
enum class StylCary : std::uint8_t { plna, carkovana, teckovana };
enum class Zarovnani : std::uint8_t { vlevo, na_stred, vpravo };

struct BodObrazu {
    double x = 0, y = 0; // pixels
    bool operator==(const BodObrazu&) const = default;
};
struct TvarNakresu {
    DruhTvaru druh = DruhTvaru::cara;
    RoleNakresu role = RoleNakresu::ramec;
    bool v_plose = false; // cut at the edge of the area of the lines
    std::vector<BodObrazu> body;
    double tloustka = 1; // of a line; radius of a circle; height of letters
    StylCary styl = StylCary::plna;
    double kryti = 1; // 1 hides what is behind it
    double uhel = 0;  // of a text, degrees
    Zarovnani zarovnani = Zarovnani::vlevo;
    bool tucne = false;
    bool podklad = false; // a text has a ground of its own
    Text text;
    std::int32_t cislo = 0; // of the train; 0 none
    bool plan = false;      // its line as it shall run
};

// The area of the lines, pixels.
struct PlochaNakresu {
    double vlevo = 0, nahore = 0, vpravo = 0, dole = 0;
    double sirka() const { return vpravo - vlevo; }
    double vyska() const { return dole - nahore; }
};

// What is looked at, and how large it is drawn.
struct PohledNakresu {
    double sirka = 1024, vyska = 600; // of the picture, pixels
    double pismo = 12;                // height of its letters
    double od = 0, po = 0;            // absolute simulated seconds at the edges
    double m_od = 0, m_po = 0;        // metres at the edges; equal: the whole line
    double ted = -1;                  // the present; negative: none is drawn
    bool plan = true, jizdy = true;   // lines as they shall run, as they ran
    std::int32_t vybrany = 0;         // train that stands out
    Text nadpis, podnadpis;           // of a page; without them no room is left
};

struct ObrazNakresu {
    double sirka = 0, vyska = 0;
    PlochaNakresu plocha;
    std::vector<TvarNakresu> tvary; // from the back to the front
};

// --- at any time, without change

// Where the area of the lines lies in a picture.
PlochaNakresu plocha_nakresu(const PohledNakresu& pohled);
// Name of the day of the week of an absolute second.
TextPohled den_casu(std::int32_t s);
// "8:05" of an absolute second; with the day of the week "út 0:05".
Text popis_casu(std::int32_t s, bool s_dnem);

// The whole picture of the lines on the axis.
ObrazNakresu nakresli_nakres(const PohledNakresu& pohled, const Koridory& k, const OsaKoridoru& osa,
                             const std::vector<CaraVlaku>& cary);
// Number of the train whose line or number lies within so many pixels of the place; 0 none.
std::int32_t vlak_v_nakresu(const ObrazNakresu& obraz, BodObrazu kde, double okoli);
// The picture as the text of an SVG file, on paper; UTF-8.
std::string svg_nakresu(const ObrazNakresu& obraz, TextPohled titul);
