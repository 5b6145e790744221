// nastroje/obraz/svg.cpp - a device that Qt paints on and that keeps all as the text of an SVG file.
#include "obraz/svg.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace {

QString cislo(double x) { // hundredths of a pixel are enough for the eye at any scale
    QString s = QString::number(x, 'f', 2);
    while (s.endsWith(u'0'))
        s.chop(1);
    if (s.endsWith(u'.'))
        s.chop(1);
    return s;
}

QString tvar(const QPainterPath& cesta) {
    QString d;
    for (int i = 0; i < cesta.elementCount(); ++i) {
        const QPainterPath::Element e = cesta.elementAt(i);
        switch (e.type) {
        case QPainterPath::MoveToElement: d += u'M'; break;
        case QPainterPath::LineToElement: d += u'L'; break;
        case QPainterPath::CurveToElement: d += u'C'; break;
        case QPainterPath::CurveToDataElement: d += u' '; break;
        }
        d += cislo(e.x) + u' ' + cislo(e.y);
    }
    return d;
}

QString barva(const char* co, const QColor& c) {
    QString s = QStringLiteral(" %1='%2'").arg(QLatin1String(co), c.name());
    if (c.alpha() != 255)
        s += QStringLiteral(" %1-opacity='%2'").arg(QLatin1String(co), cislo(c.alphaF()));
    return s;
}

} // namespace

class SvgPlocha::Stroj : public QPaintEngine {
public:
    Stroj() : QPaintEngine(AllFeatures) {}

    QString obsah;

    bool begin(QPaintDevice*) override { return true; }
    bool end() override {
        zavri_orez();
        return true;
    }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState& stav) override {
        const DirtyFlags zmeny = stav.state();
        if (zmeny & DirtyPen)
            pero = stav.pen();
        if (zmeny & DirtyBrush)
            stetec = stav.brush();
        if (zmeny & DirtyTransform)
            prevod = stav.transform();
        if (zmeny & DirtyHints)
            hladke = stav.renderHints().testFlag(QPainter::Antialiasing);
        if (zmeny & DirtyClipRegion) {
            QPainterPath cesta;
            cesta.addRegion(stav.clipRegion());
            orizni(stav.clipOperation(), cesta);
        }
        if (zmeny & DirtyClipPath)
            orizni(stav.clipOperation(), stav.clipPath());
        if (zmeny & DirtyClipEnabled && !stav.isClipEnabled())
            zavri_orez();
    }

    void drawPath(const QPainterPath& cesta) override { pridej(cesta, stetec); }
    void drawPolygon(const QPointF* body, int pocet, PolygonDrawMode jak) override {
        QPainterPath cesta;
        cesta.addPolygon(QPolygonF(QList<QPointF>(body, body + pocet)));
        if (jak != PolylineMode)
            cesta.closeSubpath();
        pridej(cesta, jak == PolylineMode ? QBrush(Qt::NoBrush) : stetec);
    }
    void drawPixmap(const QRectF& kam, const QPixmap& obrazek, const QRectF& odkud) override {
        drawImage(kam, obrazek.toImage(), odkud, Qt::AutoColor);
    }
    void drawImage(const QRectF& kam, const QImage& obrazek, const QRectF& odkud,
                   Qt::ImageConversionFlags) override {
        QByteArray png;
        QBuffer kus(&png);
        kus.open(QIODevice::WriteOnly);
        obrazek.copy(odkud.toRect()).save(&kus, "PNG");
        const QRectF r = prevod.mapRect(kam);
        obsah +=
            QStringLiteral("<image x='%1' y='%2' width='%3' height='%4' href='data:image/png;base64,%5'/>\n")
                .arg(cislo(r.x()), cislo(r.y()), cislo(r.width()), cislo(r.height()),
                     QString::fromLatin1(png.toBase64()));
    }

private:
    QPen pero;
    QBrush stetec;
    QTransform prevod;
    bool hladke = false, orezano = false;
    int orezu = 0;

    void zavri_orez() {
        if (orezano)
            obsah += QStringLiteral("</g>\n");
        orezano = false;
    }
    void orizni(Qt::ClipOperation jak, const QPainterPath& cesta) {
        zavri_orez();
        if (jak == Qt::NoClip)
            return;
        orezano = true;
        obsah += QStringLiteral("<clipPath id='o%1'><path d='%2'/></clipPath>\n<g clip-path='url(#o%1)'>\n")
                     .arg(QString::number(++orezu), tvar(prevod.map(cesta)));
    }
    void pridej(const QPainterPath& cesta, const QBrush& vypln) {
        const bool ma_pero = pero.style() != Qt::NoPen && pero.color().alpha() > 0;
        const bool ma_vypln = vypln.style() != Qt::NoBrush && vypln.color().alpha() > 0;
        if (cesta.isEmpty() || (!ma_pero && !ma_vypln))
            return;
        obsah += QStringLiteral("<path d='%1'").arg(tvar(prevod.map(cesta)));
        obsah += ma_vypln ? barva("fill", vypln.color()) : QStringLiteral(" fill='none'");
        if (ma_vypln && cesta.fillRule() == Qt::OddEvenFill)
            obsah += QStringLiteral(" fill-rule='evenodd'");
        if (ma_pero) {
            obsah += barva("stroke", pero.color());
            obsah += QStringLiteral(" stroke-width='%1'").arg(cislo(std::max(pero.widthF(), 1.0)));
            if (pero.capStyle() != Qt::FlatCap)
                obsah += pero.capStyle() == Qt::RoundCap ? QStringLiteral(" stroke-linecap='round'")
                                                         : QStringLiteral(" stroke-linecap='square'");
        }
        if (!hladke)
            obsah += QStringLiteral(" shape-rendering='crispEdges'");
        obsah += QStringLiteral("/>\n");
    }
};

SvgPlocha::SvgPlocha(QSize velikost_) : velikost(velikost_), stroj(std::make_unique<Stroj>()) {}

SvgPlocha::~SvgPlocha() = default;

QPaintEngine* SvgPlocha::paintEngine() const {
    return stroj.get();
}

QString SvgPlocha::text() const {
    return QStringLiteral(
               "<?xml version='1.0' encoding='UTF-8'?>\n"
               "<svg xmlns='http://www.w3.org/2000/svg' width='%1' height='%2' viewBox='0 0 %1 %2'>\n")
               .arg(velikost.width())
               .arg(velikost.height()) +
           stroj->obsah + QStringLiteral("</svg>\n");
}

int SvgPlocha::metric(PaintDeviceMetric co) const {
    constexpr int kBoduNaPalec = 96;
    switch (co) {
    case PdmWidth: return velikost.width();
    case PdmHeight: return velikost.height();
    case PdmWidthMM: return velikost.width() * 254 / (kBoduNaPalec * 10);
    case PdmHeightMM: return velikost.height() * 254 / (kBoduNaPalec * 10);
    case PdmDepth: return 32;
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY: return kBoduNaPalec;
    case PdmDevicePixelRatio: return 1;
    case PdmDevicePixelRatioScaled: return static_cast<int>(devicePixelRatioFScale());
    default: return 0; // colours are not counted
    }
}
