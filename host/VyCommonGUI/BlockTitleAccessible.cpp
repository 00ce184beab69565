#include "BlockTitleAccessible.h"

#include "BlockTitleBar.h"

namespace VyViewer {

BlockTitleAccessible::BlockTitleAccessible(BlockTitleBar *bar)
    : QAccessibleWidget(bar, QAccessible::Button)
{}

QString BlockTitleAccessible::text(QAccessible::Text kind) const
{
    switch (kind) {
    case QAccessible::Name:
        return bar()->title();
    case QAccessible::Description:
        return bar()->accessibleDescription(); // not the tool tip, which is the title once more
    default:
        return QAccessibleWidget::text(kind);
    }
}

QAccessible::State BlockTitleAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = bar()->isExpanded();
    state.collapsed = !bar()->isExpanded();
    return state;
}

QStringList BlockTitleAccessible::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (bar()->isEnabled()) {
        names.prepend(pressAction());
    }
    return names;
}

void BlockTitleAccessible::doAction(const QString &name)
{
    if (name == pressAction()) {
        bar()->click();
    } else {
        QAccessibleWidget::doAction(name);
    }
}

BlockTitleBar *BlockTitleAccessible::bar() const
{
    return qobject_cast<BlockTitleBar *>(widget());
}

} // namespace VyViewer
