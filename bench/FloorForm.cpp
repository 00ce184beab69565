#include "FloorForm.h"

#include "FloorPage.h"

#include <QFrame>
#include <QGridLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QSpacerItem>
#include <QToolButton>
#include <QVBoxLayout>

FloorForm::FloorForm(Nodes &nodes)
    : m_nodes(nodes)
{
    auto *const form = new QWidget;
    auto *const formLayout = new QGridLayout(form);
    formLayout->setContentsMargins(0, 0, 0, 0);
    auto *const area = new QScrollArea(form);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    area->setStyleSheet(QStringLiteral("#scrollAreaWidgetContents { background: white; }"));
    auto *const contents = new QWidget;
    contents->setObjectName(QStringLiteral("scrollAreaWidgetContents"));
    auto *const contentsLayout = new QGridLayout(contents);
    auto *const blocks = new QGridLayout;
    contentsLayout->addLayout(blocks, 0, 0);
    contentsLayout->addItem(new QSpacerItem(20, 503, QSizePolicy::Minimum, QSizePolicy::Expanding), 1, 0);
    area->setWidget(contents);
    formLayout->addWidget(area, 0, 0);

    blocks->addWidget(createBlock(QStringLiteral("Trigger Config"), createPage(0, form)), 0, 0);
    if (nodes.pages.size() > 1) {
        auto *const stopPages = new QWidget(form);
        auto *const stopLayout = new QGridLayout(stopPages);
        stopLayout->setContentsMargins(0, 0, 0, 0);
        for (size_t i = 1; i < nodes.pages.size(); ++i) {
            stopLayout->addWidget(createPage(i, stopPages));
        }
        blocks->addWidget(createBlock(QStringLiteral("Trigger Stop Config"), stopPages), 1, 0);
    }

    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(form);
    layout->setContentsMargins(0, 0, 0, 0);
}

void FloorForm::refresh(int page)
{
    m_pages.at(page)->refresh();
}

void FloorForm::refreshAll()
{
    for (FloorPage *page : qAsConst(m_pages)) {
        page->refresh();
    }
}

QWidget *FloorForm::createBlock(const QString &title, QWidget *contents)
{
    auto *const block = new QFrame(this);
    block->setAutoFillBackground(true);
    block->setFrameShape(QFrame::StyledPanel);
    block->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    auto *const bar = new QPushButton(title, block);
    auto *const barLayout = new QHBoxLayout(bar);
    barLayout->setContentsMargins(4, 4, 4, 4);
    barLayout->addWidget(new QToolButton(bar), 0, Qt::AlignRight);
    auto *const body = new QWidget(block);
    auto *const bodyLayout = new QVBoxLayout(body);
    bodyLayout->setContentsMargins(6, 6, 6, 6);
    bodyLayout->addWidget(contents);
    auto *const layout = new QVBoxLayout(block);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(body, 1);
    return block;
}

FloorPage *FloorForm::createPage(size_t index, QWidget *parent)
{
    const QString title = index == 0 ? QString() : QStringLiteral("Config %1").arg(index);
    auto *const page = new FloorPage(title, m_nodes.pages[index], parent);
    connect(page, &FloorPage::edited, this,
            [this, index](size_t row, const QString &value) { write(index, row, value); });
    m_pages.append(page);
    return page;
}

void FloorForm::write(size_t page, size_t row, const QString &value)
{
    Node &node = m_nodes.pages[page][row];
    node.integer = value.toInt();
    node.text = value;
    const bool isSource = node.name == QLatin1String("InputTriggerSource");
    if (!isSource) {
        m_pages.at(int(page))->refresh();
        return;
    }
    if (followsSource) {
        m_nodes.offer(value);
    }
    m_pages.constFirst()->showTitle(value);
    refreshAll();
}
