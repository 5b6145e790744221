// ui/kresba_nakresu.cpp - painting of the shapes of a time-distance diagram.
#include "ui/kresba_nakresu.h"

#include "ui/paleta.h"
#include "ui/pismo.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <utility>

namespace {

struct BarvaSkupiny {
    RoleNakresu role;
    QRgb barva;
};
// Told apart by their lightness and by what is left of the hue.
constexpr BarvaSkupiny kBezBarevNakresu[] = {
    {RoleNakresu::expres, 0xFFE63D00},   {RoleNakresu::rychlik, 0xFFFFB02C},
    {RoleNakresu::spesny, 0xFFADCDA1},   {RoleNakresu::osobni, 0xFF74C4FF},
    {RoleNakresu::zvlastni, 0xFFFFFFEB}, {RoleNakresu::nakladni, 0xFF009464},
    {RoleNakresu::sluzebni, 0xFF7C74C6},
};
constexpr double kNejmensiKryti = 0.8; // in the palettes that are made for the eyes

QRgb barva_v_palete(RoleNakresu role) {
    if (paleta() == Paleta::kontrastni && (role == RoleNakresu::papir || role == RoleNakresu::na_ted))
        return 0xFF000000;
    if (paleta() == Paleta::bez_barev)
        for (const BarvaSkupiny& s : kBezBarevNakresu)
            if (s.role == role)
                return s.barva;
    return barva_role(role, false);
}

void nakresli_text(QPainter& p, const TvarNakresu& t, bool papir) {
    QFont pismo = p.font();
    pismo.setPixelSize(std::max(1, qRound(t.tloustka)));
    pismo.setBold(t.tucne);
    p.setFont(pismo);
    const QString text = na_qstring(t.text);
    const QFontMetricsF metriky(pismo, p.device());
    const double sirka = metriky.horizontalAdvance(text);
    const double vlevo = t.zarovnani == Zarovnani::vlevo    ? 0
                         : t.zarovnani == Zarovnani::vpravo ? -sirka
                                                            : -sirka / 2;
    p.save();
    p.translate(t.body.front().x, t.body.front().y);
    if (t.uhel != 0)
        p.rotate(t.uhel);
    if (t.podklad) {
        QColor zem = barva_nakresu(RoleNakresu::papir, papir);
        zem.setAlphaF(0.85F);
        p.fillRect(QRectF(vlevo - 1.5, -0.52 * t.tloustka, sirka + 3, 1.04 * t.tloustka), zem);
    }
    if (sleduj_radek != nullptr && t.uhel == 0)
        sleduj_radek(p, QRectF(vlevo, -t.tloustka / 2, sirka, t.tloustka), t.text);
    p.setPen(barva_nakresu(t.role, papir, t.kryti));
    p.drawText(QPointF(vlevo, 0.36 * t.tloustka), text);
    p.restore();
}

QPointF bod(const BodObrazu& b) {
    return {b.x, b.y};
}

// What a piece of a line may cover.
QRectF meze_useku(const BodObrazu& a, const BodObrazu& b, double tloustka) {
    const double okraj = tloustka / 2 + 2;
    return QRectF(bod(a), bod(b)).normalized().adjusted(-okraj, -okraj, okraj, okraj);
}

// `kde`: only the pieces that reach into it.
void nakresli_caru(QPainter& p, const TvarNakresu& t, bool papir, const QRegion* kde) {
    QPen pero(barva_nakresu(t.role, papir, t.kryti), t.tloustka);
    // lines of the grid lie on whole pixels
    const bool rovna =
        t.body.size() == 2 && (t.body[0].x == t.body[1].x || t.body[0].y == t.body[1].y) && t.cislo == 0;
    p.setRenderHint(QPainter::Antialiasing, !rovna || papir);
    if (t.styl == StylCary::plna && !papir) {
        // piece by piece it costs a fraction of the whole line; the caps fill the corners between them
        pero.setCapStyle(rovna ? Qt::FlatCap : Qt::SquareCap);
        p.setPen(pero);
        for (std::size_t i = 0; i + 1 < t.body.size(); ++i)
            if (kde == nullptr ||
                kde->intersects(meze_useku(t.body[i], t.body[i + 1], t.tloustka).toAlignedRect()))
                p.drawLine(bod(t.body[i]), bod(t.body[i + 1]));
        return;
    }
    pero.setJoinStyle(Qt::RoundJoin);
    pero.setCapStyle(Qt::FlatCap);
    if (t.styl != StylCary::plna)
        pero.setDashPattern(t.styl == StylCary::carkovana ? QList<qreal>{5, 3} : QList<qreal>{1.5, 2.5});
    p.setPen(pero);
    QPolygonF body;
    body.reserve(static_cast<qsizetype>(t.body.size()));
    for (const BodObrazu& b : t.body)
        body.append(bod(b));
    p.drawPolyline(body);
}

// `kde`: only what reaches into it; nullptr all.
void nakresli_tvary(QPainter& p, const ObrazNakresu& obraz, bool papir, const std::vector<QRectF>* meze,
                    const QRegion* kde) {
    const PlochaNakresu& a = obraz.plocha;
    const QRectF plocha(a.vlevo, a.nahore, a.sirka(), a.vyska());
    bool orez = false;
    for (std::size_t i = 0; i < obraz.tvary.size(); ++i) {
        const TvarNakresu& t = obraz.tvary[i];
        if (kde != nullptr && !kde->intersects((*meze)[i].toAlignedRect()))
            continue;
        if (t.v_plose != orez) {
            orez = t.v_plose;
            if (orez) {
                p.save();
                p.setClipRect(plocha, Qt::IntersectClip);
            } else {
                p.restore();
            }
        }
        switch (t.druh) {
        case DruhTvaru::cara: nakresli_caru(p, t, papir, kde); break;
        case DruhTvaru::plocha:
            p.fillRect(QRectF(bod(t.body[0]), bod(t.body[1])), barva_nakresu(t.role, papir, t.kryti));
            break;
        case DruhTvaru::kruh:
            p.setRenderHint(QPainter::Antialiasing, true);
            p.setPen(QPen(barva_nakresu(RoleNakresu::papir, papir), 1));
            p.setBrush(barva_nakresu(t.role, papir));
            p.drawEllipse(bod(t.body.front()), t.tloustka, t.tloustka);
            p.setBrush(Qt::NoBrush);
            break;
        case DruhTvaru::text: nakresli_text(p, t, papir); break;
        }
    }
    if (orez)
        p.restore();
}

// --- of a new picture what differs

QRectF meze_tvaru(const TvarNakresu& t) {
    const BodObrazu& b = t.body.front();
    switch (t.druh) {
    case DruhTvaru::plocha: return QRectF(bod(b), bod(t.body[1])).normalized().adjusted(-1, -1, 1, 1);
    case DruhTvaru::kruh: {
        const double r = t.tloustka + 2;
        return {b.x - r, b.y - r, 2 * r, 2 * r};
    }
    case DruhTvaru::text: { // wide letters, whichever way they run
        const double delka = 0.95 * t.tloustka * static_cast<double>(t.text.size()) + t.tloustka;
        return {b.x - delka, b.y - (t.uhel != 0 ? delka : t.tloustka), 2 * delka,
                2 * (t.uhel != 0 ? delka : t.tloustka)};
    }
    case DruhTvaru::cara: break;
    }
    QRectF meze = meze_useku(b, b, t.tloustka);
    for (const BodObrazu& dalsi : t.body)
        meze |= meze_useku(dalsi, dalsi, t.tloustka);
    return meze;
}

// It moves when the picture goes on over time: trains, their numbers, the grid and the present.
bool posouva_se(const TvarNakresu& t) {
    return t.v_plose || t.cislo != 0 ||
           (t.druh == DruhTvaru::cara && (t.role == RoleNakresu::hodina || t.role == RoleNakresu::delsi_cas ||
                                          t.role == RoleNakresu::kratsi_cas || t.role == RoleNakresu::ted));
}

bool stejne_misto(const BodObrazu& a, const BodObrazu& b, double posun) {
    constexpr double kPresnost = 0.01; // of a pixel
    return std::abs(a.x + posun - b.x) < kPresnost && std::abs(a.y - b.y) < kPresnost;
}

bool stejny_vzhled(const TvarNakresu& a, const TvarNakresu& b) {
    return a.druh == b.druh && a.role == b.role && a.v_plose == b.v_plose && a.tloustka == b.tloustka &&
           a.styl == b.styl && a.kryti == b.kryti && std::abs(a.uhel - b.uhel) < 0.01 &&
           a.zarovnani == b.zarovnani && a.tucne == b.tucne && a.podklad == b.podklad && a.text == b.text &&
           a.cislo == b.cislo && a.plan == b.plan;
}

// Shapes that may be the same one begin at the same place.
std::size_t otisk(const TvarNakresu& t, double posun) {
    std::size_t h =
        static_cast<std::size_t>(t.druh) * 64 + static_cast<std::size_t>(t.role) * 2 + (t.plan ? 1 : 0);
    for (const auto x :
         {static_cast<std::int64_t>(t.cislo), std::int64_t{std::llround(t.body.front().x + posun)},
          std::int64_t{std::llround(t.body.front().y)}})
        h = h * 1'000'003 + static_cast<std::size_t>(x);
    return h;
}

// What of a line differs from its other state: all but what both begin with.
QRectF rozdil_car(const TvarNakresu& stara, const TvarNakresu& nova, double posun) {
    const std::size_t spolecnych = std::min(stara.body.size(), nova.body.size());
    std::size_t i = 0;
    while (i < spolecnych && stejne_misto(stara.body[i], nova.body[i], posun))
        ++i;
    if (i == spolecnych && stara.body.size() == nova.body.size())
        return {};
    QRectF meze;
    const std::size_t od = i > 0 ? i - 1 : 0;
    for (std::size_t j = od; j < nova.body.size(); ++j)
        meze |= meze_useku(nova.body[j], nova.body[j], nova.tloustka);
    for (std::size_t j = od; j < stara.body.size(); ++j)
        meze |= meze_useku(stara.body[j], stara.body[j], stara.tloustka).translated(posun, 0);
    return meze;
}

} // namespace

// A colour that lets its ground through is mixed on the desk, since blending a line costs much more than
// painting it; paper knows what it does.
QColor barva_nakresu(RoleNakresu role, bool papir, double kryti) {
    if (papir) {
        if (role == RoleNakresu::papir)
            return Qt::white; // as it comes from the printer's tray: a ground would only cost toner
        QColor c = QColor::fromRgb(barva_role(role, papir));
        c.setAlphaF(static_cast<float>(kryti));
        return c;
    }
    const QColor c = QColor::fromRgb(barva_v_palete(role));
    const QColor zem = QColor::fromRgb(barva_v_palete(RoleNakresu::papir));
    const double podil = paleta() == Paleta::obvykla ? kryti : std::max(kryti, kNejmensiKryti);
    const auto smes = [podil](int a, int b) {
        return static_cast<int>(std::lround(podil * a + (1 - podil) * b));
    };
    return {smes(c.red(), zem.red()), smes(c.green(), zem.green()), smes(c.blue(), zem.blue())};
}

void nakresli_obraz(QPainter& p, const ObrazNakresu& obraz, bool papir) {
    nakresli_tvary(p, obraz, papir, nullptr, nullptr);
}

// By how many whole pixels the lines have moved; 0 when the picture is another one.
int PlatnoObrazu::posun_casu(const ObrazNakresu& novy) const {
    const auto prvni = [](const ObrazNakresu& o) {
        return std::find_if(o.tvary.begin(), o.tvary.end(),
                            [](const TvarNakresu& t) { return t.druh == DruhTvaru::cara && t.plan; });
    };
    const auto stary = prvni(obraz_);
    if (stary == obraz_.tvary.end())
        return 0;
    const auto nova = std::find_if(novy.tvary.begin(), novy.tvary.end(), [&](const TvarNakresu& t) {
        return t.druh == DruhTvaru::cara && t.plan && t.cislo == stary->cislo &&
               t.body.size() == stary->body.size() && t.body.front().y == stary->body.front().y;
    });
    if (nova == novy.tvary.end())
        return 0;
    const double posun = nova->body.front().x - stary->body.front().x;
    const double cely = std::round(posun * pomer_) / pomer_;
    return std::abs(posun - cely) < 0.01 && std::abs(cely) < obraz_.plocha.sirka() / 2 &&
                   cely == std::round(cely)
               ? static_cast<int>(cely)
               : 0;
}

QRegion PlatnoObrazu::zmeneno(const ObrazNakresu& novy, const std::vector<QRectF>& nove_meze,
                              double posun) const {
    QRegion co;
    const auto pridej = [&](const QRectF& r) {
        if (!r.isEmpty())
            co += r.toAlignedRect();
    };
    std::unordered_multimap<std::size_t, std::size_t> stare;
    stare.reserve(obraz_.tvary.size());
    const auto posun_tvaru = [&](const TvarNakresu& t) { return posouva_se(t) ? posun : 0; };
    for (std::size_t i = 0; i < obraz_.tvary.size(); ++i) {
        const TvarNakresu& t = obraz_.tvary[i];
        stare.emplace(otisk(t, posun_tvaru(t)), i);
    }
    for (std::size_t i = 0; i < novy.tvary.size(); ++i) {
        const TvarNakresu& t = novy.tvary[i];
        const auto stary = stare.find(otisk(t, 0));
        if (stary == stare.end()) {
            pridej(nove_meze[i]);
            continue;
        }
        const TvarNakresu& s = obraz_.tvary[stary->second];
        const double o_kolik = posun_tvaru(s);
        if (!stejny_vzhled(s, t)) {
            pridej(nove_meze[i]);
            pridej(meze_[stary->second].translated(o_kolik, 0));
        } else if (t.druh == DruhTvaru::cara) {
            pridej(rozdil_car(s, t, o_kolik));
        } else if (s.body.size() != t.body.size() || !stejne_misto(s.body.front(), t.body.front(), o_kolik) ||
                   !stejne_misto(s.body.back(), t.body.back(), o_kolik)) {
            pridej(nove_meze[i]);
            pridej(meze_[stary->second].translated(o_kolik, 0));
        }
        stare.erase(stary);
    }
    for (const auto& [klic, i] : stare)
        pridej(meze_[i].translated(posun_tvaru(obraz_.tvary[i]), 0));
    return co;
}

void PlatnoObrazu::prekresli(const QRegion& co) {
    QPainter p(&plocha_);
    p.scale(pomer_, pomer_);
    p.setClipRegion(co);
    nakresli_tvary(p, obraz_, false, &meze_, &co);
}

QRegion PlatnoObrazu::obnov(ObrazNakresu novy, double pomer) {
    constexpr double kCelyOd = 0.5; // of the picture: more is painted at once
    constexpr int kNejvicDilu = 400;
    const QSize velikost(static_cast<int>(std::ceil(novy.sirka * pomer)),
                         static_cast<int>(std::ceil(novy.vyska * pomer)));
    const QRect cely(0, 0, static_cast<int>(std::ceil(novy.sirka)), static_cast<int>(std::ceil(novy.vyska)));
    std::vector<QRectF> meze;
    meze.reserve(novy.tvary.size());
    for (const TvarNakresu& t : novy.tvary)
        meze.push_back(meze_tvaru(t));
    const PlochaNakresu &a = obraz_.plocha, &b = novy.plocha;
    const bool jiny = plocha_.size() != velikost || pomer != pomer_ || a.vlevo != b.vlevo ||
                      a.nahore != b.nahore || a.vpravo != b.vpravo || a.dole != b.dole;
    QRegion co = cely;
    int posun = 0;
    if (jiny) {
        plocha_ = QImage(velikost, QImage::Format_RGB32);
    } else {
        posun = posun_casu(novy);
        co = zmeneno(novy, meze, posun);
        if (posun != 0) {
            const QRect cary = QRectF(b.vlevo, b.nahore, b.sirka(), b.vyska()).toAlignedRect();
            const QRect kde(qRound(cary.x() * pomer), qRound(cary.y() * pomer), qRound(cary.width() * pomer),
                            qRound(cary.height() * pomer));
            const QImage pred = plocha_.copy(kde);
            QPainter p(&plocha_);
            p.setClipRect(kde);
            p.drawImage(kde.topLeft() + QPoint(qRound(posun * pomer), 0), pred);
            p.end();
            const int okraj = std::abs(posun) + 4;
            co += QRect(0, 0, cely.width(), cary.top() + 2);
            co += QRect(0, cary.bottom() - 2, cely.width(), cely.height() - cary.bottom() + 2);
            co += QRect(cary.left() - 4, cary.top(), (posun > 0 ? okraj : 4) + 4, cary.height());
            co += QRect(cary.right() - (posun < 0 ? okraj : 4), cary.top(), (posun < 0 ? okraj : 4) + 4,
                        cary.height());
        }
        qint64 bodu = 0;
        for (const QRect& r : co)
            bodu += qint64{1} * r.width() * r.height();
        if (co.rectCount() > kNejvicDilu ||
            static_cast<double>(bodu) > kCelyOd * cely.width() * cely.height())
            co = cely;
    }
    obraz_ = std::move(novy);
    meze_ = std::move(meze);
    pomer_ = pomer;
    if (!co.isEmpty())
        prekresli(co);
    QRegion v_bodech;
    for (const QRect& r : posun != 0 ? QRegion(cely) : co)
        v_bodech +=
            QRectF(r.x() * pomer, r.y() * pomer, r.width() * pomer, r.height() * pomer).toAlignedRect();
    return v_bodech;
}
