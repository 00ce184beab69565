#include "VyScrollArea.h"

#include "LightGround.h"

#include <QApplication>
#include <QScrollBar>

namespace VyViewer {

VyScrollArea::VyScrollArea(QWidget *parent)
    : QScrollArea(parent)
{
    // No stop for Tab: the keys that scroll reach the area from whatever has the focus inside it. A click on
    // its ground still takes the focus, so that an edit left that way is committed.
    setFocusPolicy(Qt::ClickFocus);
    // Always there, so that contents which outgrow the area at a click do not move away from under the pointer.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    // Under a palette with a black window the handle would be black on black.
    for (QScrollBar *bar : {verticalScrollBar(), horizontalScrollBar()}) {
        new LightGround(bar);
    }
    // Qt brings into view what Tab reaches from within, but not what it reaches from outside, or what a program focuses.
    // Nothing moves under the pointer that presses, nor under the one that is about to: old is null in a window that
    // is activated.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *old, QWidget *now) {
        if (old && now && QGuiApplication::mouseButtons() == Qt::NoButton && widget() && widget()->isAncestorOf(now)) {
            ensureWidgetVisible(now);
        }
    });
}

VyScrollArea::~VyScrollArea()
{
    // The contents that now go hand on the focus, while this is not an area any more.
    QObject::disconnect(qApp, nullptr, this, nullptr);
}

} // namespace VyViewer
