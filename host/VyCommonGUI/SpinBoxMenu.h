#pragma once

#include <QAbstractSpinBox>

class QContextMenuEvent;
class QLineEdit;

namespace VyViewer {

/// Opens the context menu of a spin box and returns at once. The base class waits in a nested event loop,
/// in which a host may destroy the spin box under its own feet.
void popUpSpinBoxMenu(QAbstractSpinBox *box, QLineEdit *edit, QAbstractSpinBox::StepEnabled steps,
                      QContextMenuEvent *event);

} // namespace VyViewer
