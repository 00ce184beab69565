#include "VyComboBox.h"

#include "WheelGuard.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QScreen>
#include <QStyle>
#include <QStylePainter>

#include <functional>

namespace VyViewer {

namespace {

constexpr int kShortestContents = 8; // characters
constexpr int kLongestShown = 1000;  // characters of the current entry: with a million a paint takes long

/// Paints a widget in place of its own paint event.
class Painter : public QObject
{
public:
    Painter(QWidget *painted, std::function<void()> paint) : QObject(painted), m_paint(std::move(paint))
    {
        painted->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            m_paint();
        }
        return event->type() == QEvent::Paint;
    }

private:
    const std::function<void()> m_paint;
};

} // namespace

VyComboBox::VyComboBox(QWidget *parent)
    : QComboBox(parent)
{
    // One long entry must not widen everything around the closed box.
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(kShortestContents);
    new WheelGuard(this, WheelGuard::Pass::Never);
    // The current entry in one line and, where it is cut, with an ellipsis.
    new Painter(this, [this] {
        QStyleOptionComboBox option;
        initStyleOption(&option);
        QString text = option.currentText.left(kLongestShown);
        for (const QChar end : {QChar(QChar::LineFeed), QChar(QChar::CarriageReturn), QChar(QChar::LineSeparator),
                                QChar(QChar::ParagraphSeparator)}) {
            text.replace(end, QLatin1Char(' '));
        }
        const QRect room = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
        // Less the pixel that a style keeps free at each end.
        option.currentText = fontMetrics().elidedText(text, Qt::ElideRight, room.width() - 2);
        QStylePainter painter(this);
        painter.drawComplexControl(QStyle::CC_ComboBox, option);
        painter.drawControl(QStyle::CE_ComboBoxLabel, option);
    });
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
