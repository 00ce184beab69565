#include "ComboBoxAccessible.h"

#include "VyComboBox.h"

#include <QAbstractItemView>

namespace VyViewer {

ComboBoxAccessible::ComboBoxAccessible(VyComboBox *box)
    : QAccessibleWidget(box, QAccessible::ComboBox)
{}

void *ComboBoxAccessible::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface *>(this)
                                              : QAccessibleWidget::interface_cast(type);
}

QString ComboBoxAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? box()->currentText() : QAccessibleWidget::text(kind);
}

QAccessible::State ComboBoxAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = box()->openList() != nullptr;
    state.collapsed = !state.expanded;
    return state;
}

QAccessibleInterface *ComboBoxAccessible::child(int index) const
{
    if (index != 0) {
        return nullptr;
    }
    QAbstractItemView *const list = box()->view();
    // Later: keys and the pointer select an entry before they move to it.
    qRegisterMetaType<QItemSelection>();
    QObject::connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, box(), &VyComboBox::chooseSelected,
                     Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
    return QAccessible::queryAccessibleInterface(list);
}

int ComboBoxAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    return child && child->role() == QAccessible::List ? 0 : -1;
}

QStringList ComboBoxAccessible::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (box()->isEnabled()) {
        names = QStringList{showMenuAction(), pressAction()} + names;
    }
    return names;
}

void ComboBoxAccessible::doAction(const QString &name)
{
    if (name != showMenuAction() && name != pressAction()) {
        QAccessibleWidget::doAction(name);
    } else if (box()->openList()) {
        box()->hidePopup();
    } else if (box()->isEnabled()) {
        box()->showPopup();
    }
}

QString ComboBoxAccessible::attributes(int, int *start, int *end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

VyComboBox *ComboBoxAccessible::box() const
{
    return qobject_cast<VyComboBox *>(widget());
}

} // namespace VyViewer
