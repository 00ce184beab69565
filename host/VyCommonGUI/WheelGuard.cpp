#include "WheelGuard.h"

#include <QEvent>
#include <QWidget>

namespace VyViewer {

void WheelGuard::guard(QWidget *widget, Pass pass)
{
    static WheelGuard whenFocused(Pass::WhenFocused); // one for all widgets
    static WheelGuard never(Pass::Never);
    // The default of most editors includes wheel focus: turning the wheel would arm the editor itself.
    widget->setFocusPolicy(Qt::StrongFocus);
    widget->installEventFilter(pass == Pass::Never ? &never : &whenFocused);
}

bool WheelGuard::eventFilter(QObject *watched, QEvent *event)
{
    const bool passes = m_pass == Pass::WhenFocused && static_cast<QWidget *>(watched)->hasFocus();
    if (event->type() != QEvent::Wheel || passes) {
        return QObject::eventFilter(watched, event);
    }
    event->ignore(); // handled here, and yet offered to the parent
    return true;
}

WheelGuard::WheelGuard(Pass pass)
    : m_pass(pass)
{}

WheelGuard::~WheelGuard() = default;

} // namespace VyViewer
