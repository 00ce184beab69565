#include "VyBlockWidget.h"

#include "BlockTitleBar.h"
#include "GlyphButton.h"
#include "LightGround.h"

#include <QVBoxLayout>

namespace VyViewer {

namespace {

constexpr int kMargin = 6; // around the contents

} // namespace

VyBlockWidget::VyBlockWidget(QWidget *parent)
    : QFrame(parent)
    , m_titleBar(new BlockTitleBar(this))
    , m_body(new QWidget(this))
{
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::BrightText); // white, also while it is disabled
    setFrameShape(QFrame::StyledPanel);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    (new QVBoxLayout(m_body))->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_titleBar);
    layout->addWidget(m_body, 1);

    connect(m_titleBar, &BlockTitleBar::clicked, this, [this] { setExpanded(!m_titleBar->isExpanded()); });
    connect(m_titleBar, &BlockTitleBar::languageChanged, this, &VyBlockWidget::retranslate);
    connect(m_titleBar->addButton(), &GlyphButton::clicked, this, &VyBlockWidget::add);
    setAddButtonVisible(false);
    retranslate();
    new LightGround(this); // the rows of a page paint their ground white
}

VyBlockWidget::~VyBlockWidget() = default;

void VyBlockWidget::setTitleText(const QString &text)
{
    m_titleBar->setTitle(text);
    retranslate();
}

void VyBlockWidget::setContentsWidget(QWidget *widget)
{
    if (widget == m_contents) {
        return;
    }
    delete m_contents;
    m_contents = widget;
    if (widget) {
        m_body->layout()->addWidget(widget);
    }
}

void VyBlockWidget::setAddButtonVisible(bool visible)
{
    m_titleBar->addButton()->setVisible(visible);
    m_titleBar->update();
}

void VyBlockWidget::setExpanded(bool expanded)
{
    if (expanded != m_titleBar->isExpanded()) {
        m_titleBar->setExpanded(expanded);
        m_body->setVisible(expanded);
    }
}

void VyBlockWidget::add()
{
    if (signalsBlocked()) {
        return; // nobody will hear of the click, so nothing may happen
    }
    setExpanded(true); // so that the user sees what is added
    Q_EMIT addButtonClicked();
}

void VyBlockWidget::retranslate()
{
    m_titleBar->addButton()->setToolTip(tr("Add"));
    m_titleBar->addButton()->setAccessibleName(tr("Add to %1").arg(m_titleBar->title()).trimmed());
}

} // namespace VyViewer
