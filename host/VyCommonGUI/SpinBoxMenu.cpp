#include "SpinBoxMenu.h"

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>

namespace VyViewer {

void popUpSpinBoxMenu(QAbstractSpinBox *box, QLineEdit *edit, QAbstractSpinBox::StepEnabled steps,
                      QContextMenuEvent *event)
{
    QMenu *const menu = edit->createStandardContextMenu(); // a child of the line edit
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addSeparator();
    const auto addStep = [&](const char *text, QAbstractSpinBox::StepEnabledFlag flag, int step) {
        // Not a literal in tr(): Qt's own catalogue has these texts, ours need not repeat them.
        QAction *const action = menu->addAction(QAbstractSpinBox::tr(text));
        action->setEnabled(steps.testFlag(flag));
        QObject::connect(action, &QAction::triggered, box, [box, step] { box->stepBy(step); });
    };
    addStep("&Step up", QAbstractSpinBox::StepUpEnabled, 1);
    addStep("Step &down", QAbstractSpinBox::StepDownEnabled, -1);
    menu->popup(event->reason() == QContextMenuEvent::Mouse ? event->globalPos()
                                                            : box->mapToGlobal(box->rect().center()));
}

} // namespace VyViewer
