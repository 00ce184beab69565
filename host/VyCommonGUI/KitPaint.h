#pragma once

#include <QColor>

class QPainter;
class QPalette;
class QRectF;

namespace VyViewer {
namespace KitPaint {

/// A form may become so narrow that its longest value is cut, but not narrower.
constexpr int kNarrowestEditor = 80;

/// How well two colours stand out from each other, from 1 to 21, as the accessibility guidelines of the web have it.
qreal contrast(const QColor &one, const QColor &other);

/// `ground` with `amount` (0 to 1) of `over` on it.
QColor blend(const QColor &ground, const QColor &over, qreal amount);

/// The mark of the widget that has the keyboard focus, inside the rectangle.
void focusRing(QPainter &painter, const QRectF &rect, qreal radius, const QPalette &palette);

} // namespace KitPaint
} // namespace VyViewer
