#pragma once

#include <QAccessible>

namespace VyViewer {

/// Makes widgets known to assistive technology for as long as it lives. A static one is gone when the library
/// is unloaded; the plain function pointer that Qt keeps would dangle.
class AccessibleFactory
{
public:
    explicit AccessibleFactory(QAccessible::InterfaceFactory create)
        : m_create(create)
    {
        QAccessible::installFactory(m_create);
    }
    ~AccessibleFactory() { QAccessible::removeFactory(m_create); }

private:
    Q_DISABLE_COPY(AccessibleFactory)
    const QAccessible::InterfaceFactory m_create;
};

} // namespace VyViewer
