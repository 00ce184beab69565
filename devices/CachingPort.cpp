#include "CachingPort.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstring>

namespace {
constexpr quint64 kRunSize = 512; // bytes that one request can fetch
}

CachingPort::CachingPort(std::unique_ptr<RegisterPort> far)
    : m_far(std::move(far))
{}

void CachingPort::setCachable(QVector<Extent> registers)
{
    std::sort(registers.begin(), registers.end(), [](const Extent &a, const Extent &b) { return a.begin < b.begin; });
    m_runs.clear();
    for (const Extent &next : qAsConst(registers)) {
        // Not across a gap: nobody knows what reading there does.
        if (!m_runs.isEmpty() && next.begin <= m_runs.last().end
            && qMax(next.end, m_runs.last().end) - m_runs.last().begin <= kRunSize) {
            m_runs.last().end = qMax(next.end, m_runs.last().end);
        } else if (next.end - next.begin <= kRunSize) {
            m_runs.append(next);
        }
    }
}

void CachingPort::setCaching(bool on)
{
    m_caching = on;
    drop();
}

void CachingPort::drop()
{
    m_cache->clear();
}

bool CachingPort::read(quint64 address, void *bytes, quint32 size, QString *error)
{
    if (m_offline) {
        *error = QStringLiteral("offline");
        return false;
    }
    if (address + size < address) { // no memory is there, and what follows would take it for the first one
        *error = QStringLiteral("no memory at 0x%1").arg(address, 0, 16);
        return false;
    }
    if (!m_caching) {
        return m_far->read(address, bytes, size, error);
    }
    if (copyCached(address, bytes, size)) {
        return true;
    }
    const auto behind = std::upper_bound(m_runs.begin(), m_runs.end(), address,
                                         [](quint64 value, const Extent &run) { return value < run.begin; });
    const auto run = behind == m_runs.begin() ? m_runs.end() : behind - 1;
    if (run != m_runs.end() && address + size <= run->end) {
        if (fetch(*run, address, bytes, size, error)) {
            return true;
        }
        m_runs.erase(run); // this camera does not give its registers out together
    }
    return fetch({address, address + size}, address, bytes, size, error);
}

bool CachingPort::write(quint64 address, const void *bytes, quint32 size, QString *error)
{
    drop();
    return m_far->write(address, bytes, size, error);
}

bool CachingPort::copyCached(quint64 address, void *bytes, quint32 size) const
{
    const auto behind = m_cache->upper_bound(address);
    if (behind == m_cache->begin()) {
        return false;
    }
    const auto &known = *std::prev(behind);
    const quint64 offset = address - known.first;
    if (offset + size > quint64(known.second.size())) {
        return false;
    }
    std::memcpy(bytes, known.second.constData() + offset, size);
    return true;
}

/// Reads the whole extent, and copies what was asked for.
bool CachingPort::fetch(const Extent &extent, quint64 address, void *bytes, quint32 size, QString *error)
{
    QByteArray all(int(extent.end - extent.begin), '\0');
    if (!m_far->read(extent.begin, all.data(), quint32(all.size()), error)) {
        return false;
    }
    std::memcpy(bytes, all.constData() + (address - extent.begin), size);
    if (m_cache->empty()) {
        dropAfterThisAction();
    }
    (*m_cache)[extent.begin] = all;
    return true;
}

void CachingPort::dropAfterThisAction()
{
    if (!QCoreApplication::instance()) {
        return;
    }
    const std::weak_ptr<Cache> cache = m_cache;
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [cache] {
            if (const auto still = cache.lock()) {
                still->clear();
            }
        },
        Qt::QueuedConnection);
}
