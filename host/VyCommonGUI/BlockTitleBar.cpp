#include "BlockTitleBar.h"

#include "AccessibleFactory.h"
#include "BlockTitleAccessible.h"
#include "GlyphButton.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QStyle>

namespace VyViewer {

namespace {

constexpr int kMargin = 4;
constexpr int kRadius = 3;
constexpr int kShortestTitle = 6; // characters

} // namespace

BlockTitleBar::BlockTitleBar(QWidget *parent)
    : KitButton(parent)
    , m_addButton(new GlyphButton(GlyphButton::Glyph::Plus, this))
{
    static const AccessibleFactory<BlockTitleBar, BlockTitleAccessible> factory;
    QFont bold;
    bold.setBold(true);
    setFont(bold);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->addWidget(m_addButton, 0, Qt::AlignRight);
}

BlockTitleBar::~BlockTitleBar() = default;

void BlockTitleBar::setTitle(const QString &title)
{
    m_title = title;
    setToolTip(title);
    update();
    QAccessibleEvent change(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&change);
}

void BlockTitleBar::setExpanded(bool expanded)
{
    m_expanded = expanded;
    update();
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent change(this, changed);
    QAccessible::updateAccessibility(&change);
}

QSize BlockTitleBar::sizeHint() const
{
    // Not the title's width: the longest title must not set the width of everything around the block.
    const QSize button = m_addButton->sizeHint();
    return {2 * button.width() + 4 * kMargin + kShortestTitle * fontMetrics().averageCharWidth(),
            button.height() + 2 * kMargin};
}

bool BlockTitleBar::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && shownTitle() == m_title) {
        return true; // all there to be read
    }
    return KitButton::event(event);
}

void BlockTitleBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintGround(painter, palette().color(QPalette::AlternateBase), kRadius);
    painter.setPen(strokePen());
    const QRect chevron(kMargin, 0, m_addButton->sizeHint().width(), height());
    paintChevron(painter, QStyle::visualRect(layoutDirection(), rect(), chevron));
    // An ellipsis stands at the end of what is read, which has a direction of its own.
    painter.setLayoutDirection(m_title.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    painter.drawText(QStyle::visualRect(layoutDirection(), rect(), titleRect()),
                     int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter)), shownTitle());
}

QRect BlockTitleBar::titleRect() const
{
    const int left = 2 * kMargin + m_addButton->sizeHint().width();
    const int right = width() - kMargin - (m_addButton->isHidden() ? 0 : m_addButton->width() + kMargin);
    return {left, 0, right - left, height()};
}

QString BlockTitleBar::shownTitle() const
{
    return fontMetrics().elidedText(m_title, Qt::ElideRight, titleRect().width());
}

void BlockTitleBar::paintChevron(QPainter &painter, const QRectF &space) const
{
    const qreal arm = fontMetrics().height() * 0.24;
    painter.save();
    painter.translate(space.center());
    painter.rotate(m_expanded ? 0 : layoutDirection() == Qt::RightToLeft ? 90 : -90);
    const QPointF points[] = {{-arm, -arm / 2}, {0, arm / 2}, {arm, -arm / 2}};
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(points, 3);
    painter.restore();
}

} // namespace VyViewer
