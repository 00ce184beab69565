#pragma once

#include <QAccessibleWidget>

class QAbstractSpinBox;

namespace VyViewer {

/// A spin box for assistive technology. Unlike with Qt's own, the step is told, and a value that is set or stepped to
/// is a finished edit: no Return follows.
class SpinBoxAccessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit SpinBoxAccessible(QAbstractSpinBox *box);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    QAccessibleInterface *editText() const;
    QAbstractSpinBox *box() const;
};

} // namespace VyViewer
