#include "SpinBoxAccessible.h"

#include <QAbstractSpinBox>
#include <QLineEdit>

namespace VyViewer {

SpinBoxAccessible::SpinBoxAccessible(QAbstractSpinBox *box)
    : QAccessibleWidget(box, QAccessible::SpinBox)
{}

void *SpinBoxAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface) {
        return static_cast<QAccessibleValueInterface *>(this);
    }
    if (type == QAccessible::TextInterface || type == QAccessible::EditableTextInterface) {
        return editText()->interface_cast(type);
    }
    return QAccessibleWidget::interface_cast(type);
}

QString SpinBoxAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? box()->text() : QAccessibleWidget::text(kind);
}

QStringList SpinBoxAccessible::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (box()->isEnabled()) {
        names += {increaseAction(), decreaseAction()};
    }
    return names;
}

void SpinBoxAccessible::doAction(const QString &name)
{
    if (name != increaseAction() && name != decreaseAction()) {
        QAccessibleWidget::doAction(name);
    } else if (box()->isEnabled()) {
        name == increaseAction() ? box()->stepUp() : box()->stepDown();
        Q_EMIT box()->editingFinished();
    }
}

QVariant SpinBoxAccessible::currentValue() const
{
    return box()->property("value");
}

void SpinBoxAccessible::setCurrentValue(const QVariant &value)
{
    if (box()->isEnabled()) {
        box()->setProperty("value", value);
        QAccessibleValueChangeEvent change(box(), currentValue());
        QAccessible::updateAccessibility(&change);
        Q_EMIT box()->editingFinished();
    }
}

QVariant SpinBoxAccessible::maximumValue() const
{
    return box()->property("maximum");
}

QVariant SpinBoxAccessible::minimumValue() const
{
    return box()->property("minimum");
}

QVariant SpinBoxAccessible::minimumStepSize() const
{
    return box()->property("singleStep");
}

/// The line edit in the box. By the name that it has in there, Qt knows it for a part without a text of its own.
QAccessibleInterface *SpinBoxAccessible::editText() const
{
    auto *const edit = box()->findChild<QLineEdit *>();
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(edit);
    if (!interface->textInterface()) {
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(interface));
        const QString name = edit->objectName();
        edit->setObjectName(QString());
        interface = QAccessible::queryAccessibleInterface(edit);
        edit->setObjectName(name);
    }
    return interface;
}

QAbstractSpinBox *SpinBoxAccessible::box() const
{
    return qobject_cast<QAbstractSpinBox *>(widget());
}

} // namespace VyViewer
