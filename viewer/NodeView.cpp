#include "NodeView.h"

#include "NodeModel.h"

#include <QEvent>
#include <QHeaderView>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTableView>

NodeView::NodeView(QWidget *parent)
    : RecordTable(NodeModel::Node, NodeModel::Description, parent)
    , m_model(new NodeModel(this))
{
    addControl(new QPushButton, QT_TR_NOOP("Refresh"), [this] { refresh(); });
    m_model->refresh(nullptr); // the headings
    m_shown->setSourceModel(m_model);
    m_shown->setSortCaseSensitivity(Qt::CaseInsensitive);
    m_table->setModel(m_shown);
    m_table->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder); // the device's order
    m_table->setSortingEnabled(true);
    setColumnWidths({35, 14, 18, 18, 26, 7, 40});
    retranslate();
}

void NodeView::setDevice(GenicamDevice *device)
{
    m_device = device;
    refresh();
}

void NodeView::refresh()
{
    if (isVisible()) {
        m_model->refresh(m_device);
    }
}

bool NodeView::event(QEvent *event)
{
    const bool isHandled = RecordTable::event(event);
    if (event->type() == QEvent::Show || event->type() == QEvent::LanguageChange) { // some of what is shown is ours
        refresh();
    }
    return isHandled;
}
