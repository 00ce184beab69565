#include "VyBlockWidget.h"

#include "BlockTitleBar.h"
#include "GlyphButton.h"

#include <QPalette>
#include <QVBoxLayout>

namespace VyViewer {

namespace {

constexpr int kMargin = 6; // around the contents

/// What stands in a block stands on white, and is painted for it, also where the application is dark. The
/// colours of selections and links are not here: they stay the application's.
QPalette lightPalette()
{
    struct Shade {
        QPalette::ColorRole role;
        QRgb enabled;
        QRgb disabled;
    };
    static constexpr Shade kShades[] = {
        {QPalette::Window, 0xffffffff, 0xffffffff},
        {QPalette::WindowText, 0xff202326, 0xff8a8f94},
        {QPalette::Base, 0xffffffff, 0xfff5f6f7},
        {QPalette::AlternateBase, 0xfff1f3f5, 0xfff1f3f5},
        {QPalette::Text, 0xff202326, 0xff8a8f94},
        {QPalette::PlaceholderText, 0xff73787d, 0xffa8adb2},
        {QPalette::Button, 0xfff1f3f5, 0xfff5f6f7},
        {QPalette::ButtonText, 0xff202326, 0xff8a8f94},
        {QPalette::BrightText, 0xffffffff, 0xffffffff},
        {QPalette::ToolTipBase, 0xffffffff, 0xffffffff},
        {QPalette::ToolTipText, 0xff202326, 0xff202326},
        {QPalette::Light, 0xffffffff, 0xffffffff},
        {QPalette::Midlight, 0xffe6e9ec, 0xffe6e9ec},
        {QPalette::Mid, 0xffc3c8cd, 0xffc3c8cd},
        {QPalette::Dark, 0xff9ba1a7, 0xffb5babf},
        {QPalette::Shadow, 0xff73787d, 0xff9ba1a7},
    };
    QPalette palette;
    for (const Shade &shade : kShades) {
        palette.setColor(QPalette::Active, shade.role, shade.enabled);
        palette.setColor(QPalette::Inactive, shade.role, shade.enabled);
        palette.setColor(QPalette::Disabled, shade.role, shade.disabled);
    }
    return palette;
}

} // namespace

VyBlockWidget::VyBlockWidget(QWidget *parent)
    : QFrame(parent)
    , m_titleBar(new BlockTitleBar(this))
    , m_body(new QWidget(this))
{
    setPalette(lightPalette());
    setAutoFillBackground(true);
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
