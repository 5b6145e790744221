// nastroje/obraz/svg.h - a device that Qt paints on and that keeps all as the text of an SVG file.
#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QSize>
#include <QString>

#include <memory>

// Takes what a QPainter draws: lines, areas and outlines of glyphs stay vectors, images are put in as PNG.
class SvgPlocha : public QPaintDevice {
public:
    explicit SvgPlocha(QSize velikost); // pixels
    ~SvgPlocha() override;
    SvgPlocha(const SvgPlocha&) = delete;
    SvgPlocha& operator=(const SvgPlocha&) = delete;

    QPaintEngine* paintEngine() const override;
    // The whole file, after the painter has ended.
    QString text() const;

protected:
    int metric(PaintDeviceMetric co) const override;

private:
    class Stroj;
    QSize velikost;
    std::unique_ptr<Stroj> stroj;
};
