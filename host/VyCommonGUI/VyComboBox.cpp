#include "VyComboBox.h"

#include "WheelGuard.h"

#include <QAbstractItemView>
#include <QScreen>
#include <QStyle>

namespace VyViewer {

namespace {

constexpr int kShortestContents = 8; // characters

} // namespace

VyComboBox::VyComboBox(QWidget *parent)
    : QComboBox(parent)
{
    // One long entry must not widen everything around the closed box.
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(kShortestContents);
    new WheelGuard(this, WheelGuard::Pass::Never);
}

VyComboBox::~VyComboBox() = default;

void VyComboBox::showPopup()
{
    QWidget *const popup = view()->window();
    QPalette colors = palette();
    colors.resolve(~0u); // every colour: as a window of its own the list would take the application's
    popup->setPalette(colors);
    view()->setPalette(colors);
    const int frame = popup->width() - popup->contentsRect().width();
    const int needed = view()->sizeHintForColumn(modelColumn()) + 2 * view()->frameWidth()
                       + style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, view());
    view()->setMinimumWidth(qMin(needed, screen()->availableGeometry().width() - frame));
    QComboBox::showPopup();
}

void VyComboBox::hidePopup()
{
    QComboBox::hidePopup();
    view()->setMinimumWidth(0);
}

} // namespace VyViewer
