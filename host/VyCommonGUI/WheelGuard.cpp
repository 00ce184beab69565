#include "WheelGuard.h"

#include <QEvent>
#include <QWidget>

namespace VyViewer {

WheelGuard::WheelGuard(QWidget *guarded, Pass pass)
    : QObject(guarded)
    , m_guarded(guarded)
    , m_pass(pass)
{
    // The default of most editors includes wheel focus: turning the wheel would arm the editor itself.
    guarded->setFocusPolicy(Qt::StrongFocus);
    guarded->installEventFilter(this);
}

WheelGuard::~WheelGuard() = default;

bool WheelGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel || (m_pass == Pass::WhenFocused && m_guarded->hasFocus())) {
        return QObject::eventFilter(watched, event);
    }
    event->ignore(); // handled here, and yet offered to the parent
    return true;
}

} // namespace VyViewer
