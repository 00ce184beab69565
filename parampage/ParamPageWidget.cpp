#include "ParamPageWidget.h"

#include "KeyboardFocus.h"
#include "ParamPageWidgetItem.h"

#include <QVBoxLayout>

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
    setUpdatesEnabled(false); // one repaint for all rows
    for (QWidget *item : qAsConst(m_items)) {
        if (auto *const row = qobject_cast<ParamPageWidgetItem *>(item)) {
            row->refresh();
        }
    }
    setUpdatesEnabled(true);
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
