#pragma once

#include "VyCommonGUIExport.h"

#include <QWidget>

namespace VyViewer {

/// A two-state switch, operated by click, drag or Space.
class VYCOMMONGUI_EXPORT VyToggleSwitch : public QWidget
{
    Q_OBJECT
public:
    explicit VyToggleSwitch(QWidget *parent);
    ~VyToggleSwitch() override;

    /// Shows a state. Emits nothing.
    void setIsToggled(bool toggled);
    bool getIsToggled() const;

Q_SIGNALS:
    /// The user changed the state; getIsToggled() already returns the new one.
    void toggled(bool on);

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace VyViewer
