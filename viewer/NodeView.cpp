#include "NodeView.h"

#include "NodeModel.h"
#include "RecordTable.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>

NodeView::NodeView(QWidget *parent)
    : QWidget(parent)
    , m_model(new NodeModel(this))
    , m_table(new RecordTable(this))
    , m_search(new QLineEdit(this))
    , m_refresh(new QPushButton(this))
{
    m_search->setClearButtonEnabled(true);
    auto *const controls = new QHBoxLayout;
    controls->addWidget(m_search, 1);
    controls->addWidget(m_refresh);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(controls);
    layout->addWidget(m_table);

    auto *const shown = new QSortFilterProxyModel(this);
    shown->setSourceModel(m_model);
    shown->setFilterKeyColumn(-1); // all
    shown->setFilterCaseSensitivity(Qt::CaseInsensitive);
    shown->setSortCaseSensitivity(Qt::CaseInsensitive);
    m_table->setModel(shown);
    retranslate();
    m_table->setColumnWidths({36, 14, 16, 20, 30, 8, 50}, NodeModel::Description);
    m_table->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder); // the device's order
    m_table->setSortingEnabled(true);
    connect(m_search, &QLineEdit::textChanged, shown, &QSortFilterProxyModel::setFilterFixedString);
    connect(m_refresh, &QPushButton::clicked, this, &NodeView::refresh);
}

void NodeView::setDevice(GenicamDevice *device)
{
    m_model->setDevice(device);
    refresh();
}

void NodeView::refresh()
{
    m_isStale = !isVisible();
    if (!m_isStale) {
        m_model->refresh();
    }
}

void NodeView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        refresh(); // some of what is shown is ours
    }
    QWidget::changeEvent(event);
}

void NodeView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_isStale) {
        refresh();
    }
}

void NodeView::retranslate()
{
    m_search->setPlaceholderText(tr("Search"));
    m_refresh->setText(tr("Refresh"));
    m_refresh->setToolTip(tr("Reads every node again"));
    m_model->retranslateHeadings();
}
