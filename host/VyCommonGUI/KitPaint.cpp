#include "KitPaint.h"

#include <QPainter>
#include <QPalette>

namespace VyViewer {
namespace KitPaint {

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
