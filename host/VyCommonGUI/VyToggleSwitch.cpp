#include "VyToggleSwitch.h"

#include "AccessibleFactory.h"
#include "KitPaint.h"
#include "ToggleSwitchAccessible.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPixmapCache>

#include <utility>

namespace VyViewer {

namespace {

constexpr int kMargin = 3; // around the track, for the focus ring

} // namespace

VyToggleSwitch::VyToggleSwitch(QWidget *parent)
    : QWidget(parent)
{
    static const AccessibleFactory<VyToggleSwitch, ToggleSwitchAccessible> factory;
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    fitToFont();
}

VyToggleSwitch::~VyToggleSwitch() = default;

void VyToggleSwitch::setIsToggled(bool toggled)
{
    if (toggled == m_toggled) {
        return;
    }
    m_toggled = toggled;
    update();
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent change(this, changed);
    QAccessible::updateAccessibility(&change);
}

bool VyToggleSwitch::getIsToggled() const
{
    return m_toggled;
}

bool VyToggleSwitch::event(QEvent *event)
{
    switch (int(event->type())) {
    case QEvent::KeyPress: {
        auto *const key = static_cast<QKeyEvent *>(event);
        if (key->key() != Qt::Key_Space || !isEnabled()) {
            break;
        }
        key->accept();
        if (!key->isAutoRepeat()) {
            changeByUser(!m_toggled);
        }
        return true;
    }
    case QEvent::FontChange:
    case QEvent::StyleChange:
        fitToFont();
        break;
    case QEvent::EnabledChange:
    case QEvent::Hide:
    case QEvent::UngrabMouse:
        cancelPress(); // the release will not come
        break;
    }
    return QWidget::event(event);
}

void VyToggleSwitch::mousePressEvent(QMouseEvent *event)
{
    // A press comes also when the focus, which it has moved before, brought about that the switch is gone.
    if (event->button() != Qt::LeftButton || !isVisible()) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_pressed = true;
    m_dragged = false;
    m_pressedAt = m_draggedTo = event->pos();
    update();
}

void VyToggleSwitch::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !m_pressed) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    m_draggedTo = event->pos();
    const bool on = m_dragged ? knobPosition() >= 0.5 : rect().contains(event->pos()) ? !m_toggled : m_toggled;
    cancelPress();
    changeByUser(on);
}

void VyToggleSwitch::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_pressed) {
        QWidget::mouseMoveEvent(event);
        return;
    }
    m_draggedTo = event->pos();
    m_dragged = m_dragged || qAbs(m_draggedTo.x() - m_pressedAt.x()) >= QApplication::startDragDistance();
    update();
}

void VyToggleSwitch::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (m_pressed || underMouse() || hasFocus()) {
        paint(painter);
        return;
    }
    // At rest it looks like all others in its state; smooth shapes take long to paint.
    const QString key = QStringLiteral("VyToggleSwitch %1 %2 %3 %4 %5 %6 %7 %8")
                            .arg(width())
                            .arg(height())
                            .arg(fontMetrics().height())
                            .arg(devicePixelRatioF())
                            .arg(palette().cacheKey())
                            .arg(int(layoutDirection()))
                            .arg(m_toggled)
                            .arg(isEnabled());
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = QPixmap(size() * devicePixelRatioF());
        picture.setDevicePixelRatio(devicePixelRatioF());
        picture.fill(Qt::transparent);
        QPainter picturePainter(&picture);
        paint(picturePainter);
        QPixmapCache::insert(key, picture);
    }
    painter.drawPixmap(0, 0, picture);
}

void VyToggleSwitch::paint(QPainter &painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette colors = palette();
    const QColor &ground = colors.color(QPalette::Base);
    const QColor ink = KitPaint::blend(ground, colors.color(QPalette::WindowText), 0.6);
    const QColor accent = isEnabled() ? colors.color(QPalette::Highlight) : ink;
    const qreal strength = !isEnabled() ? 0 : m_pressed ? 0.2 : underMouse() ? 0.1 : 0;

    // Hollow with a dark knob, or filled with a light one: the state is to be seen without its colour too.
    const qreal position = knobPosition();
    const bool filled = position >= 0.5;
    const QRectF pill = track().adjusted(0.75, 0.75, -0.75, -0.75);
    const qreal radius = pill.height() / 2;
    painter.setPen(QPen(filled ? KitPaint::blend(accent, Qt::black, strength) : ink, 1.5));
    painter.setBrush(filled ? painter.pen().color() : KitPaint::blend(ground, ink, strength));
    painter.drawRoundedRect(pill, radius, radius);

    const qreal fromStart = radius + position * (pill.width() - 2 * radius);
    const qreal x = layoutDirection() == Qt::RightToLeft ? pill.right() - fromStart : pill.left() + fromStart;
    const qreal knob = radius * (m_pressed ? 0.74 : 0.66);
    painter.setPen(Qt::NoPen);
    painter.setBrush(filled ? QColor(Qt::white) : ink);
    painter.drawEllipse(QPointF(x, pill.center().y()), knob, knob);

    if (hasFocus()) {
        const QRectF ring = track().adjusted(-kMargin, -kMargin, kMargin, kMargin);
        KitPaint::focusRing(painter, ring, ring.height() / 2, colors);
    }
}

void VyToggleSwitch::changeByUser(bool on)
{
    if (on == m_toggled) {
        return;
    }
    setIsToggled(on);
    Q_EMIT toggled(on); // last: a receiver may destroy the switch
}

void VyToggleSwitch::cancelPress()
{
    m_pressed = m_dragged = false;
    update();
}

void VyToggleSwitch::fitToFont()
{
    // An owner's own minimum, that of a fixed width for instance, stays.
    const QSize before = std::exchange(m_fitted, [this] {
        const int height = fontMetrics().height();
        return QSize(2 * height + 2 * kMargin, height + 2 * kMargin);
    }());
    if (before.isEmpty() || minimumWidth() == before.width()) {
        setMinimumWidth(m_fitted.width());
    }
    if (before.isEmpty() || minimumHeight() == before.height()) {
        setMinimumHeight(m_fitted.height());
    }
}

QRectF VyToggleSwitch::track() const
{
    // Whole pixels and a size that goes with the text, at the leading end of whatever room there is.
    const int height = qMin(this->height() - 2 * kMargin, qRound(1.4 * fontMetrics().height()));
    const int width = qMin(this->width() - 2 * kMargin, qRound(2.1 * height));
    const int x = layoutDirection() == Qt::RightToLeft ? this->width() - kMargin - width : kMargin;
    const int y = (this->height() - height) / 2;
    return QRectF(x, y, width, height);
}

qreal VyToggleSwitch::knobPosition() const
{
    const qreal rest = m_toggled ? 1 : 0;
    const QRectF pill = track();
    // A hand that slides past the end of the track still means that end; farther off it has given up.
    const int overshoot = qRound(pill.height());
    if (!m_dragged || !rect().adjusted(-overshoot, 0, overshoot, 0).contains(m_draggedTo)) {
        return rest;
    }
    const qreal moved = (m_draggedTo.x() - m_pressedAt.x()) / (pill.width() - pill.height());
    return qBound(0.0, rest + (layoutDirection() == Qt::RightToLeft ? -moved : moved), 1.0);
}

} // namespace VyViewer
