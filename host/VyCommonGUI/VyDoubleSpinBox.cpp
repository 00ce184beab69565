#include "VyDoubleSpinBox.h"

#include "AccessibleFactory.h"
#include "KitPaint.h"
#include "SpinBoxAccessible.h"
#include "SpinBoxMenu.h"
#include "WheelGuard.h"

#include <cmath>
#include <limits>

namespace VyViewer {

namespace {

constexpr int kFewestDecimals = 3;
constexpr int kMostStepDecimals = 7;
constexpr int kEnoughDecimals = 149; // shows the smallest single-precision number exactly

double rounded(double value, int decimals)
{
    return QString::number(value, 'f', decimals).toDouble();
}

bool isSinglePrecision(double value)
{
    return std::fabs(value) <= double(std::numeric_limits<float>::max()); // false for no number at all
}

/// The fewest decimals with which a number, read back, is the same single-precision number.
int neededDecimals(double value, int most)
{
    int decimals = kFewestDecimals;
    if (isSinglePrecision(value)) {
        while (decimals < most && static_cast<float>(rounded(value, decimals)) != static_cast<float>(value)) {
            ++decimals;
        }
    }
    return decimals;
}

} // namespace

VyDoubleSpinBox::VyDoubleSpinBox(QWidget *parent)
    : QDoubleSpinBox(parent)
{
    static const AccessibleFactory<VyDoubleSpinBox, SpinBoxAccessible> factory; // before anything is announced
    setDecimals(kFewestDecimals);
    setMinimumWidth(KitPaint::kNarrowestEditor);
    WheelGuard::guard(this, WheelGuard::Pass::WhenFocused);
}

VyDoubleSpinBox::~VyDoubleSpinBox() = default;

void VyDoubleSpinBox::setValue(double value)
{
    int wanted = qMax(decimals(), kFewestDecimals);
    double shown = value;
    if (isSinglePrecision(value)) {
        wanted = neededDecimals(value, kEnoughDecimals);
        shown = rounded(value, wanted); // 12.3, also with more decimals for the step: not 12.3000002
        wanted = qMax(wanted, neededDecimals(singleStep(), kMostStepDecimals));
    }
    // Fewer decimals come last and more come first: either way the editor never rounds what it shows and
    // reports a value that nobody set.
    if (wanted > decimals()) {
        setDecimals(wanted);
    }
    QDoubleSpinBox::setValue(shown);
    if (wanted < decimals()) {
        setDecimals(wanted);
    }
}

void VyDoubleSpinBox::contextMenuEvent(QContextMenuEvent *event)
{
    popUpSpinBoxMenu(this, lineEdit(), stepEnabled(), event);
}

} // namespace VyViewer
