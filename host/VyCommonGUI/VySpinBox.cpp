#include "VySpinBox.h"

#include "AccessibleFactory.h"
#include "SpinBoxAccessible.h"
#include "SpinBoxMenu.h"
#include "WheelGuard.h"

namespace VyViewer {

VySpinBox::VySpinBox(QWidget *parent)
    : QSpinBox(parent)
{
    static const AccessibleFactory factory(SpinBoxAccessible::create);
    WheelGuard::guard(this, WheelGuard::Pass::WhenFocused);
}

VySpinBox::~VySpinBox() = default;

void VySpinBox::contextMenuEvent(QContextMenuEvent *event)
{
    popUpSpinBoxMenu(this, lineEdit(), stepEnabled(), event);
}

} // namespace VyViewer
