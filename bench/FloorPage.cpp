#include "FloorPage.h"

#include "FloorRow.h"

#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

FloorPage::FloorPage(const QString &title, const Nodes::Page &nodes, QWidget *parent)
    : QWidget(parent)
    , m_nodes(nodes)
    , m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(10, 0, 10, 0);
    m_layout->setSpacing(6);
    if (!title.isEmpty()) {
        addTitle(title, true);
    }
    QString source;
    for (size_t i = 0; i < nodes.size(); ++i) {
        if (title.isEmpty() && nodes[i].source != source) {
            source = nodes[i].source;
            addTitle(source, false);
        }
        auto *const row = new FloorRow(nodes[i], this);
        connect(row, &FloorRow::edited, this, [this, i](const QString &value) { Q_EMIT edited(i, value); });
        m_layout->addWidget(row);
        m_rows.append(row);
    }
}

void FloorPage::refresh()
{
    setUpdatesEnabled(false);
    for (int i = 0; i < m_rows.size(); ++i) {
        m_rows.at(i)->set(m_nodes[size_t(i)]);
    }
    setUpdatesEnabled(true);
    updateGeometry();
}

void FloorPage::showTitle(const QString &source)
{
    for (QWidget *title : qAsConst(m_titles)) {
        title->setVisible(title->objectName() == source);
    }
}

void FloorPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        for (FloorRow *row : qAsConst(m_rows)) {
            row->retranslate();
        }
    }
    QWidget::changeEvent(event);
}

void FloorPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refresh();
}

void FloorPage::addTitle(const QString &text, bool shown)
{
    auto *const title = new QWidget(this);
    title->setObjectName(text);
    auto *const check = new QCheckBox(title);
    auto *const label = new QLabel(text, title);
    auto *const button = new QToolButton(title);
    QFont bold;
    bold.setBold(true);
    label->setFont(bold);
    check->hide();
    button->setVisible(shown);
    auto *const layout = new QHBoxLayout(title);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(check);
    layout->addWidget(label);
    layout->addStretch();
    layout->addWidget(button);
    m_layout->addWidget(title);
    if (!shown) {
        title->hide();
        m_titles.append(title);
    }
}
