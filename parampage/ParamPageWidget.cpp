#include "ParamPageWidget.h"

#include "KeyboardFocus.h"
#include "ParamPageWidgetItem.h"

#include <QVBoxLayout>

namespace {

/// Lets a widget be painted again, and all in it, without each of them asking for it.
void allowUpdates(QWidget *widget)
{
    widget->setAttribute(Qt::WA_UpdatesDisabled, false);
    for (QObject *child : widget->children()) {
        auto *const part = qobject_cast<QWidget *>(child);
        if (part && !part->isWindow() && !part->testAttribute(Qt::WA_ForceUpdatesDisabled)) {
            allowUpdates(part);
        }
    }
}

} // namespace

ParamPageWidget::ParamPageWidget(Device *device, QWidget *parent)
    : QWidget(parent)
    , m_device(device)
    , m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(10, 0, 10, 0);
    m_layout->setSpacing(6);
}

ParamPageWidget::~ParamPageWidget()
{
    // A window hides while its base class is destroyed; an editor's last report would reach a page that is gone.
    KeyboardFocus::giveUp(this);
}

void ParamPageWidget::addItem(QWidget *widget)
{
    if (auto *const row = qobject_cast<ParamPageWidgetItem *>(widget)) {
        connect(row, &ParamPageWidgetItem::valueChanged, this, &ParamPageWidget::updateWidget);
    }
    m_layout->addWidget(widget);
    m_items.append(widget);
}

void ParamPageWidget::updateWidget()
{
    if (!isVisible()) {
        return;
    }
    // One repaint, and one layout, for all rows: each that is shown would have the whole window laid out at once.
    setUpdatesEnabled(false);
    m_layout->setEnabled(false);
    for (QWidget *item : qAsConst(m_items)) {
        if (auto *const row = qobject_cast<ParamPageWidgetItem *>(item)) {
            row->refresh();
        }
    }
    m_layout->setEnabled(true);
    if (m_layout->geometry() != rect()) {
        m_layout->invalidate(); // a call let events in, and the page was resized
    }
    // Laid out now, before the paint that is already asked for. Later it would be a second paint.
    for (QWidget *widget = this; widget && widget->layout() && widget->layout()->activate();) {
        widget = widget->parentWidget();
    }
    for (QWidget *item : qAsConst(m_items)) {
        item->setAttribute(Qt::WA_ForceUpdatesDisabled); // the page has itself painted, with all that is in it
    }
    setUpdatesEnabled(true);
    for (QWidget *item : qAsConst(m_items)) {
        item->setAttribute(Qt::WA_ForceUpdatesDisabled, false);
        if (updatesEnabled()) {
            allowUpdates(item);
        }
    }
    updateGeometry(); // rows may have come or gone
}

void ParamPageWidget::retranslate()
{
    for (QWidget *item : qAsConst(m_items)) {
        if (auto *const row = qobject_cast<ParamPageWidgetItem *>(item)) {
            row->retranslate();
        }
    }
}

void ParamPageWidget::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    updateWidget();
}
