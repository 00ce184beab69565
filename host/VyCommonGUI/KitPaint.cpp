#include "KitPaint.h"

#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace VyViewer {
namespace KitPaint {

qreal contrast(const QColor &one, const QColor &other)
{
    const auto luminance = [](const QColor &color) {
        const auto linear = [](qreal part) {
            return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
    };
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor blend(const QColor &ground, const QColor &over, qreal amount)
{
    const auto mix = [amount](qreal from, qreal to) { return from + (to - from) * amount; };
    return QColor::fromRgbF(mix(ground.redF(), over.redF()), mix(ground.greenF(), over.greenF()),
                            mix(ground.blueF(), over.blueF()));
}

void focusRing(QPainter &painter, const QRectF &rect, qreal radius, const QPalette &palette)
{
    constexpr qreal kWidth = 1.5;
    const qreal inset = kWidth / 2;
    painter.setPen(QPen(palette.color(QPalette::Highlight), kWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), radius - inset, radius - inset);
}

} // namespace KitPaint
} // namespace VyViewer
