#pragma once

#include <QColor>

class QPainter;
class QPalette;
class QRectF;

namespace VyViewer {
namespace KitPaint {

/// `ground` with `amount` (0 to 1) of `over` on it.
QColor blend(const QColor &ground, const QColor &over, qreal amount);

/// The mark of the widget that has the keyboard focus, inside the rectangle.
void focusRing(QPainter &painter, const QRectF &rect, qreal radius, const QPalette &palette);

} // namespace KitPaint
} // namespace VyViewer
