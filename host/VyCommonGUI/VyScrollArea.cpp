#include "VyScrollArea.h"

namespace VyViewer {

VyScrollArea::VyScrollArea(QWidget *parent)
    : QScrollArea(parent)
{
    // No stop for Tab: the keys that scroll reach the area from whatever has the focus inside it. A click on
    // its ground still takes the focus, so that an edit left that way is committed.
    setFocusPolicy(Qt::ClickFocus);
    // Always there, so that contents which outgrow the area at a click do not move away from under the pointer.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

VyScrollArea::~VyScrollArea() = default;

} // namespace VyViewer
