#pragma once

#include <QObject>

class QWidget;

namespace VyViewer {

/// Keeps the wheel from changing an editor: what it withholds scrolls the editor's surroundings instead.
class WheelGuard : public QObject
{
    Q_OBJECT
public:
    enum class Pass { WhenFocused, Never };

    /// Guards the widget, and is its child.
    WheelGuard(QWidget *guarded, Pass pass);
    ~WheelGuard() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *const m_guarded; // the parent
    const Pass m_pass;
};

} // namespace VyViewer
