#include "VyComboBox.h"

#include "AccessibleFactory.h"
#include "ComboBoxAccessible.h"
#include "KitPaint.h"
#include "WheelGuard.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QScreen>
#include <QStyle>
#include <QStylePainter>
#include <QToolTip>

namespace VyViewer {

namespace {

constexpr int kShortestContents = 8; // characters
constexpr int kLongestMeasured = 40; // characters of an entry that may set the preferred width
constexpr int kLongestShown = 1000;  // characters of the current entry: with a million a paint takes long

} // namespace

/// Paints combo boxes in place of their own paint event, and tells the whole of an entry that is cut.
class VyComboBox::ClosedBox : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            static_cast<VyComboBox *>(watched)->paintClosed();
        } else if (event->type() == QEvent::ToolTip) {
            return static_cast<VyComboBox *>(watched)->tellCutEntry(static_cast<QHelpEvent *>(event)->globalPos());
        }
        return event->type() == QEvent::Paint;
    }
};

VyComboBox::VyComboBox(QWidget *parent)
    : QComboBox(parent)
{
    static const AccessibleFactory<VyComboBox, ComboBoxAccessible> factory;
    static ClosedBox painter; // one for all boxes
    installEventFilter(&painter);
    WheelGuard::guard(this, WheelGuard::Pass::Never);

    // One long entry must not widen everything around the closed box. The policy that says so has the list built, which
    // most boxes never open: not before there is such an entry.
    setMinimumContentsLength(kShortestContents);
    setMinimumWidth(KitPaint::kNarrowestEditor);
    connect(model(), &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex &, int first, int last) {
        for (int row = first; row <= last; ++row) {
            if (itemText(row).size() > kLongestMeasured) {
                setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
            }
        }
    });
}

VyComboBox::~VyComboBox() = default;

void VyComboBox::showPopup()
{
    if (!isVisible()) {
        return; // the press that asks for the list has moved the focus, and whoever lost it has hidden the box
    }
    QWidget *const popup = view()->window();
    QPalette colors = palette();
    colors.resolve(~0u); // every colour: as a window of its own the list would take the application's
    colors.setBrush(QPalette::Window, colors.base()); // the ground where a style shows the list as a menu
    popup->setPalette(colors);
    view()->setPalette(colors);
    view()->viewport()->setPalette(colors); // below a style sheet it inherits nothing
    const int frame = popup->width() - popup->contentsRect().width();
    const int needed = view()->sizeHintForColumn(modelColumn()) + 2 * view()->frameWidth()
        + style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, view());
    view()->setMinimumWidth(qMin(needed, screen()->availableGeometry().width() - frame));
    QComboBox::showPopup();
}

void VyComboBox::hidePopup()
{
    QComboBox::hidePopup();
    if (auto *const list = findChild<QAbstractItemView *>()) { // view() would build it, for a box that is but hidden
        list->setMinimumWidth(0);
    }
}

void VyComboBox::paintClosed()
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = shownEntry(option);
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.setLayoutDirection(option.currentText.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

bool VyComboBox::tellCutEntry(const QPoint &place)
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    if (!toolTip().isEmpty() || shownEntry(option) == option.currentText) {
        return false;
    }
    QToolTip::showText(place, option.currentText.left(kLongestShown), this);
    return true;
}

/// The current entry in one line and, where it is cut, with an ellipsis.
QString VyComboBox::shownEntry(const QStyleOptionComboBox &option) const
{
    QString text = option.currentText.left(kLongestShown);
    for (const QChar end : {QChar(QChar::LineFeed), QChar(QChar::CarriageReturn), QChar(QChar::LineSeparator),
                            QChar(QChar::ParagraphSeparator)}) {
        text.replace(end, QLatin1Char(' '));
    }
    const QRect room = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    // Less the pixel that a style keeps free at each end.
    return fontMetrics().elidedText(text, Qt::ElideRight, room.width() - 2);
}

QAbstractItemView *VyComboBox::openList() const
{
    auto *const list = findChild<QAbstractItemView *>();
    return list && list->isVisible() ? list : nullptr;
}

/// Takes over what was selected in the list, open or not, but by neither key nor pointer: these move to what they
/// select, and choose later.
void VyComboBox::chooseSelected()
{
    const QModelIndexList selected = view()->selectionModel()->selectedIndexes();
    if (isEnabled() && selected.size() == 1 && selected.first() != view()->currentIndex()) {
        hidePopup();
        setCurrentIndex(selected.first().row());
    }
}

} // namespace VyViewer
