#include "KeyboardFocus.h"

#include <QApplication>
#include <QSignalBlocker>
#include <QWidget>

QPointer<QWidget> KeyboardFocus::giveUp(const QWidget *widget)
{
    QWidget *const holder = QApplication::focusWidget();
    if (!holder || (holder != widget && !widget->isAncestorOf(holder))) {
        return nullptr;
    }
    const QSignalBlocker blocker(holder);
    holder->clearFocus();
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
    giveUp(widget);
    widget->hide();
}

void KeyboardFocus::placeBehind(QWidget *predecessor, QWidget *widget)
{
    const Qt::FocusPolicy policy = predecessor->focusPolicy();
    predecessor->setFocusPolicy(Qt::TabFocus);
    QWidget::setTabOrder(predecessor, widget);
    predecessor->setFocusPolicy(policy);
}
