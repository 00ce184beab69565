#pragma once

#include "RegisterPort.h"

#include <QVector>

#include <map>
#include <memory>

/// A camera's registers at the far end of a port, with as few requests as a consistent picture of them needs.
///
/// What was read is kept until something may have changed it: a write, drop(), or the return to the event loop,
/// with which a user action ends. So all that is read within one action belongs together, and the next one reads
/// the camera anew. Registers that the description allows to be cached and that lie side by side are fetched
/// together.
class CachingPort final : public RegisterPort
{
public:
    struct Extent
    {
        quint64 begin, end;
    }; // addresses; `end` is the first one behind

    explicit CachingPort(std::unique_ptr<RegisterPort> far);

    /// The registers that may be read although nobody asked. While it is unknown every read goes out as it comes.
    void setCachable(QVector<Extent> registers);
    void setCaching(bool on);
    void drop();

    /// While offline, reads fail without a request.
    void setOffline(bool offline) { m_offline = offline; }

    bool read(quint64 address, void *bytes, quint32 size, QString *error) override;
    bool write(quint64 address, const void *bytes, quint32 size, QString *error) override;

private:
    using Cache = std::map<quint64, QByteArray>; // by address

    bool copyCached(quint64 address, void *bytes, quint32 size) const;
    bool fetch(const Extent &extent, quint64 address, void *bytes, quint32 size, QString *error);
    void dropAfterThisAction();

    const std::unique_ptr<RegisterPort> m_far;
    const std::shared_ptr<Cache> m_cache = std::make_shared<Cache>();
    QVector<Extent> m_runs; // by address; one request each
    bool m_caching = true;
    bool m_offline = false;
};
