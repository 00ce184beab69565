#include "ToggleSwitchAccessible.h"

#include "VyToggleSwitch.h"

namespace VyViewer {

ToggleSwitchAccessible::ToggleSwitchAccessible(VyToggleSwitch *toggle)
    : QAccessibleWidget(toggle, QAccessible::CheckBox)
{}

QAccessible::State ToggleSwitchAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = toggle()->getIsToggled();
    return state;
}

QStringList ToggleSwitchAccessible::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (toggle()->isEnabled()) {
        names = QStringList{toggleAction(), pressAction()} + names;
    }
    return names;
}

void ToggleSwitchAccessible::doAction(const QString &name)
{
    if (name != toggleAction() && name != pressAction()) {
        QAccessibleWidget::doAction(name);
    } else if (toggle()->isEnabled()) {
        toggle()->changeByUser(!toggle()->getIsToggled());
    }
}

VyToggleSwitch *ToggleSwitchAccessible::toggle() const
{
    return qobject_cast<VyToggleSwitch *>(widget());
}

} // namespace VyViewer
