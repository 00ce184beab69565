#pragma once

#include <QAccessibleWidget>

namespace VyViewer {

class VyComboBox;

/// A combo box for assistive technology. Qt's own goes by the name of its current entry on some platforms; here
/// the name stays the name, and the current entry is value and text. Whoever selects an entry chooses it.
class ComboBoxAccessible : public QAccessibleWidget, public QAccessibleTextInterface
{
public:
    explicit ComboBoxAccessible(VyComboBox *box);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    int childCount() const override { return 1; } // the list
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

    // The current entry, in which nothing is selected and no cursor moves.
    int characterCount() const override { return text(QAccessible::Value).size(); }
    QString text(int start, int end) const override { return text(QAccessible::Value).mid(start, end - start); }
    QString attributes(int offset, int *start, int *end) const override;
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint &) const override { return -1; }
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    int selectionCount() const override { return 0; }
    void selection(int, int *start, int *end) const override { *start = *end = 0; }
    void setSelection(int, int, int) override {}
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void scrollToSubstring(int, int) override {}

private:
    VyComboBox *box() const;
};

} // namespace VyViewer
