#include "VyMultiCheckTitleWidget.h"

#include "GlyphButton.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>

namespace VyViewer {

namespace {

constexpr int kAbove = 6; // sets a section apart from the rows before it

} // namespace

VyMultiCheckTitleWidget::VyMultiCheckTitleWidget(QWidget *parent)
    : QWidget(parent)
    , m_checkBox(new QCheckBox(this))
    , m_label(new QLabel(this))
    , m_deleteButton(new GlyphButton(GlyphButton::Glyph::Cross, this))
{
    QFont bold;
    bold.setBold(true);
    m_label->setFont(bold);
    m_label->setTextFormat(Qt::PlainText);
    m_checkBox->setFocusPolicy(Qt::StrongFocus);
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, kAbove, 0, 0);
    layout->addWidget(m_checkBox);
    layout->addWidget(m_label);
    layout->addStretch();
    layout->addWidget(m_deleteButton);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    QSizePolicy keepsRoom = m_deleteButton->sizePolicy(); // titles are of one height, with it and without
    keepsRoom.setRetainSizeWhenHidden(true);
    m_deleteButton->setSizePolicy(keepsRoom);
    connect(m_deleteButton, &GlyphButton::clicked, this, &VyMultiCheckTitleWidget::deleteButtonClicked);
    connect(m_deleteButton, &GlyphButton::languageChanged, this, &VyMultiCheckTitleWidget::retranslate);
    retranslate();
}

VyMultiCheckTitleWidget::~VyMultiCheckTitleWidget() = default;

void VyMultiCheckTitleWidget::setText(const QString &text)
{
    m_label->setText(text);
    m_checkBox->setAccessibleName(text);
    retranslate();
}

void VyMultiCheckTitleWidget::setCheckBoxVisible(bool visible)
{
    m_checkBox->setVisible(visible);
}

void VyMultiCheckTitleWidget::setDeleteButtonVisible(bool visible)
{
    m_deleteButton->setVisible(visible);
}

void VyMultiCheckTitleWidget::retranslate()
{
    m_deleteButton->setToolTip(tr("Delete"));
    m_deleteButton->setAccessibleName(tr("Delete %1").arg(m_label->text()).trimmed());
}

} // namespace VyViewer
