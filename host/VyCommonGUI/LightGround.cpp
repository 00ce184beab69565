#include "LightGround.h"

#include "KitPaint.h"

#include <QChildEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QWidget>

namespace VyViewer {

namespace {

QPalette lightPalette()
{
    struct Shade
    {
        QPalette::ColorRole role;
        QRgb enabled;
        QRgb disabled;
    };
    // A style paints frames in what it makes of Window, or in Dark, Light and the like: on white, each has to be seen. Where
    // it is disabled, Light is the shadow of texts, and that has not.
    // clang-format off
    static constexpr Shade kShades[] = {
        {QPalette::Window, 0xffc9cdd1, 0xffd6d9dc},
        {QPalette::WindowText, 0xff202326, 0xff6b7075},
        {QPalette::Base, 0xffffffff, 0xfff5f6f7},
        {QPalette::AlternateBase, 0xfff1f3f5, 0xfff1f3f5},
        {QPalette::Text, 0xff202326, 0xff6b7075},
        {QPalette::PlaceholderText, 0xff73787d, 0xffa8adb2},
        {QPalette::Button, 0xfff1f3f5, 0xfff5f6f7},
        {QPalette::ButtonText, 0xff202326, 0xff6b7075},
        {QPalette::BrightText, 0xffffffff, 0xffffffff},
        {QPalette::ToolTipBase, 0xffffffff, 0xffffffff},
        {QPalette::ToolTipText, 0xff202326, 0xff202326},
        {QPalette::Light, 0xff8a9096, 0xffffffff},
        {QPalette::Midlight, 0xffe6e9ec, 0xffe6e9ec},
        {QPalette::Mid, 0xffc3c8cd, 0xffc3c8cd},
        {QPalette::Dark, 0xff8a9096, 0xffb5babf},
        {QPalette::Shadow, 0xff73787d, 0xff9ba1a7},
    };
    // clang-format on
    QPalette palette;
    for (const Shade &shade : kShades) {
        palette.setColor(QPalette::Active, shade.role, shade.enabled);
        palette.setColor(QPalette::Inactive, shade.role, shade.enabled);
        palette.setColor(QPalette::Disabled, shade.role, shade.disabled);
    }
    QColor accent = palette.color(QPalette::Active, QPalette::Highlight);
    if (KitPaint::contrast(accent, Qt::white) < 3) {
        while (KitPaint::contrast(accent, Qt::white) < 4.5) {
            accent = accent.darker(110);
        }
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
            palette.setColor(group, QPalette::Highlight, accent);
            palette.setColor(group, QPalette::HighlightedText, Qt::white);
        }
    }
    return palette;
}

} // namespace

LightGround::LightGround(QWidget *widget)
    : QObject(widget)
    , m_palette(lightPalette())
{
    adopt(widget);
    connect(qApp, &QGuiApplication::paletteChanged, this, [this, widget] {
        m_palette = lightPalette();
        adopt(widget);
    });
}

LightGround::~LightGround() = default;

bool LightGround::eventFilter(QObject *watched, QEvent *event)
{
    // When it is polished a child is complete, and a style sheet has had its say.
    if (event->type() == QEvent::ChildPolished) {
        QObject *const polished = static_cast<QChildEvent *>(event)->child();
        if (auto *const child = qobject_cast<QWidget *>(polished)) { // clazy:exclude=child-event-qobject-cast
            adopt(child);
        }
    } else if (event->type() == QEvent::StyleChange && watched == parent()) {
        adopt(static_cast<QWidget *>(watched)); // everything was polished anew
    }
    return QObject::eventFilter(watched, event);
}

void LightGround::adopt(QWidget *widget)
{
    if (widget->isWindow() && widget != parent()) {
        return; // stands on a ground of its own
    }
    // With this a widget inherits below a style sheet too, and shares what it inherits. A palette of its own is half a
    // kilobyte, and the style keeps pictures of its own for every palette.
    constexpr auto kInherit = Qt::AA_UseStyleSheetPropagationInWidgetStyles;
    const bool before = QCoreApplication::testAttribute(kInherit);
    QCoreApplication::setAttribute(kInherit);
    widget->setPalette(widget == parent() ? m_palette : QPalette());
    QCoreApplication::setAttribute(kInherit, before);

    // An editor or a label has all its children by now. Whatever else there is may be given more.
    if (widget->focusPolicy() == Qt::NoFocus && !qobject_cast<QLabel *>(widget)) {
        widget->installEventFilter(this);
    }
    for (QObject *child : widget->children()) {
        if (auto *const childWidget = qobject_cast<QWidget *>(child)) {
            adopt(childWidget);
        }
    }
}

} // namespace VyViewer
