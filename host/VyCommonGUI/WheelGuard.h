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

    /// Guards the widget for as long as it lives.
    static void guard(QWidget *widget, Pass pass);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit WheelGuard(Pass pass);
    ~WheelGuard() override;

    const Pass m_pass;
};

} // namespace VyViewer
