#pragma once

#include <QObject>
#include <QPalette>

class QWidget;

namespace VyViewer {

/// Gives a widget and everything in it, also what comes later, colours that are made for a white ground,
/// whatever the application's palette. The colours of selections and links stay the application's,
/// the former in a darker shade where they would be lost on white.
///
/// Qt has palettes inherited only where there is no style sheet above; here they are everywhere.
class LightGround : public QObject
{
    Q_OBJECT
public:
    /// Serves the widget, and is its child.
    explicit LightGround(QWidget *widget);
    ~LightGround() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void adopt(QWidget *widget);

    QPalette m_palette;
};

} // namespace VyViewer
