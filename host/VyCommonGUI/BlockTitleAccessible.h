#pragma once

#include <QAccessibleWidget>

namespace VyViewer {

class BlockTitleBar;

/// A block's title bar for assistive technology: a button, named by the title, that expands and collapses.
class BlockTitleAccessible : public QAccessibleWidget
{
public:
    explicit BlockTitleAccessible(BlockTitleBar *bar);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

private:
    BlockTitleBar *bar() const;
};

} // namespace VyViewer
