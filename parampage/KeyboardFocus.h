#pragma once

#include <QPointer>

class QWidget;

/// Moving the keyboard focus without the editors taking it for the end of an edit, and giving widgets their
/// place in the tab order.
class KeyboardFocus
{
public:
    /// If `widget` or a descendant has the focus, takes it away with the signals of its holder blocked and
    /// returns the holder. A spin box and an edited line edit report a finished edit when they lose the focus;
    /// what is about to be hidden must not write.
    static QPointer<QWidget> giveUp(const QWidget *widget);

    /// Gives the focus back to what giveUp() returned, if that still can take it.
    static void giveBack(QWidget *holder);

    /// Hides a widget in which an editor may have the focus, which moves on to the next tab stop.
    static void hideQuietly(QWidget *widget);

    /// Puts `widget` right behind `predecessor` in the tab order. Unlike QWidget::setTabOrder() this also takes
    /// widgets that are no tab stops themselves.
    static void placeBehind(QWidget *predecessor, QWidget *widget);
};
