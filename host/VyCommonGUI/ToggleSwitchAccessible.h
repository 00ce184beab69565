#pragma once

#include <QAccessibleWidget>

namespace VyViewer {

class VyToggleSwitch;

/// A toggle switch for assistive technology: a check box.
class ToggleSwitchAccessible : public QAccessibleWidget
{
public:
    explicit ToggleSwitchAccessible(VyToggleSwitch *toggle);

    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

private:
    VyToggleSwitch *toggle() const;
};

} // namespace VyViewer
