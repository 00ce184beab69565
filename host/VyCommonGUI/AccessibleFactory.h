#pragma once

#include <QAccessible>

namespace VyViewer {

/// Makes widgets known to assistive technology for as long as it lives. A static one is gone when the library
/// is unloaded; the plain function pointer that Qt keeps would dangle.
///
/// Those of one class of ours: a base class would take in the host's widgets as well.
template <typename Widget, typename Accessible>
class AccessibleFactory
{
public:
    AccessibleFactory() { QAccessible::installFactory(create); }
    ~AccessibleFactory() { QAccessible::removeFactory(create); }

private:
    Q_DISABLE_COPY(AccessibleFactory)

    static QAccessibleInterface *create(const QString &, QObject *object)
    {
        auto *const widget = qobject_cast<Widget *>(object);
        return widget ? new Accessible(widget) : nullptr;
    }
};

} // namespace VyViewer
