#include "KitButton.h"

#include "KitPaint.h"

#include <QKeyEvent>
#include <QPainter>

namespace VyViewer {

KitButton::KitButton(QWidget *parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
}

KitButton::~KitButton() = default;

QSize KitButton::minimumSizeHint() const
{
    return sizeHint();
}

void KitButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QAbstractButton::keyPressEvent(event);
    } else if (!event->isAutoRepeat()) {
        click();
    }
}

void KitButton::changeEvent(QEvent *event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        Q_EMIT languageChanged();
    } else if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        updateGeometry();
    }
}

void KitButton::paintGround(QPainter &painter, const QColor &rest, qreal radius) const
{
    const qreal strength = !isEnabled() ? 0 : isDown() ? 0.18 : underMouse() ? 0.09 : 0;
    QColor shade = palette().color(QPalette::WindowText);
    shade.setAlphaF(strength);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (const QColor &color : {rest, shade}) {
        painter.setBrush(color);
        painter.drawRoundedRect(QRectF(rect()), radius, radius);
    }
    if (hasFocus()) {
        KitPaint::focusRing(painter, rect(), radius, palette());
    }
}

QPen KitButton::strokePen() const
{
    return QPen(palette().color(QPalette::WindowText), fontMetrics().height() / 10.0, Qt::SolidLine, Qt::RoundCap,
                Qt::RoundJoin);
}

} // namespace VyViewer
