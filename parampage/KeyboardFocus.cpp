#include "KeyboardFocus.h"

#include <QApplication>
#include <QSignalBlocker>
#include <QWidget>

namespace {

/// The widget with the focus, if it is this one or stands in it.
QWidget *holderIn(const QWidget *widget)
{
    QWidget *const holder = QApplication::focusWidget();
    return holder && (holder == widget || widget->isAncestorOf(holder)) ? holder : nullptr;
}

} // namespace

QPointer<QWidget> KeyboardFocus::giveUp(const QWidget *widget)
{
    QWidget *const holder = holderIn(widget);
    if (holder) {
        const QSignalBlocker blocker(holder);
        holder->clearFocus();
    }
    return holder;
}

void KeyboardFocus::giveBack(QWidget *holder)
{
    if (holder && holder->isVisible() && holder->isEnabled()) {
        holder->setFocus();
    }
}

void KeyboardFocus::hideQuietly(QWidget *widget)
{
    QWidget *const holder = holderIn(widget);
    const QSignalBlocker blocker(holder);
    widget->hide();
    if (holder && holder->hasFocus()) {
        holder->clearFocus(); // there was nothing else to take it
    }
}

void KeyboardFocus::placeBehind(QWidget *predecessor, QWidget *widget)
{
    const Qt::FocusPolicy policies[] = {predecessor->focusPolicy(), widget->focusPolicy()};
    predecessor->setFocusPolicy(Qt::TabFocus);
    widget->setFocusPolicy(Qt::TabFocus);
    QWidget::setTabOrder(predecessor, widget);
    predecessor->setFocusPolicy(policies[0]);
    widget->setFocusPolicy(policies[1]);
}
