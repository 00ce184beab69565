#include "VyLineEdit.h"

#include <QEvent>
#include <QStyleOption>

namespace VyViewer {

namespace {

/// Has the text of line edits begin where it begins in the style's spin boxes.
class TextInset : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Polish || event->type() == QEvent::StyleChange) {
            inset(static_cast<QLineEdit *>(watched));
        }
        return QObject::eventFilter(watched, event);
    }

private:
    static void inset(QLineEdit *edit)
    {
        const QStyle *const style = edit->style();
        QStyleOptionSpinBox box;
        box.rect = QRect(0, 0, 100, 30);
        box.frame = true;
        QStyleOptionFrame frame;
        frame.rect = box.rect;
        box.direction = frame.direction = Qt::LeftToRight;
        frame.lineWidth = style->pixelMetric(QStyle::PM_DefaultFrameWidth, &frame, edit);
        const int missing = style->subControlRect(QStyle::CC_SpinBox, &box, QStyle::SC_SpinBoxEditField, edit).left()
            - style->subElementRect(QStyle::SE_LineEditContents, &frame, edit).left();
        edit->setTextMargins(qMax(0, missing), 0, qMax(0, missing), 0);
    }
};

} // namespace

VyLineEdit::VyLineEdit(QWidget *parent)
    : QLineEdit(parent)
{
    static TextInset inset; // one for all
    installEventFilter(&inset);
}

VyLineEdit::~VyLineEdit() = default;

} // namespace VyViewer
