#include "VySpinBox.h"

#include "AccessibleFactory.h"
#include "KitPaint.h"
#include "SpinBoxAccessible.h"
#include "SpinBoxMenu.h"
#include "WheelGuard.h"

namespace VyViewer {

VySpinBox::VySpinBox(QWidget *parent)
    : QSpinBox(parent)
{
    static const AccessibleFactory<VySpinBox, SpinBoxAccessible> factory;
    setMinimumWidth(KitPaint::kNarrowestEditor);
    WheelGuard::guard(this, WheelGuard::Pass::WhenFocused);
}

VySpinBox::~VySpinBox() = default;

void VySpinBox::contextMenuEvent(QContextMenuEvent *event)
{
    popUpSpinBoxMenu(this, lineEdit(), stepEnabled(), event);
}

} // namespace VyViewer
