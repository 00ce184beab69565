#pragma once

#include "VyCommonGUIExport.h"

#include <QPoint>
#include <QSize>
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

private:
    friend class ToggleSwitchAccessible;
    void paint(QPainter &painter) const;
    void changeByUser(bool on);
    void cancelPress();
    void fitToFont();
    QRectF track() const;
    qreal knobPosition() const;

    bool m_toggled = false;
    bool m_pressed = false;
    bool m_dragged = false;
    QPoint m_pressedAt;
    QPoint m_draggedTo;
    QSize m_fitted; // the minimum size that fitToFont() set
};

} // namespace VyViewer
