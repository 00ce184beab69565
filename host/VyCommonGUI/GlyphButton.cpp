#include "GlyphButton.h"

#include <QPainter>

namespace VyViewer {

GlyphButton::GlyphButton(Glyph glyph, QWidget *parent)
    : KitButton(parent)
    , m_glyph(glyph)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

GlyphButton::~GlyphButton() = default;

QSize GlyphButton::sizeHint() const
{
    const int side = fontMetrics().height() + 6;
    return {side, side};
}

void GlyphButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintGround(painter, Qt::transparent, 4);
    const qreal arm = fontMetrics().height() * 0.3;
    painter.setPen(strokePen());
    painter.translate(QRectF(rect()).center());
    painter.rotate(m_glyph == Glyph::Cross ? 45 : 0);
    painter.drawLine(QPointF(-arm, 0), QPointF(arm, 0));
    painter.drawLine(QPointF(0, -arm), QPointF(0, arm));
}

} // namespace VyViewer
