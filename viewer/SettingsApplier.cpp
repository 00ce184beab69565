#include "SettingsApplier.h"

#include <algorithm>

namespace {

constexpr char kModeNode[] = "InputTriggerMode";
constexpr char kSourceNode[] = "InputTriggerSource";
constexpr int kMaxWrites = 2; // of one node: again when the write of another one changed it

} // namespace

SettingsApplier::SettingsApplier(Device &device, const SettingsFile &settings, Reason reason)
    : m_device(device)
    , m_reason(std::move(reason))
    , m_hasMode(canReadMode())
{
    for (const SettingsFile::Entry &entry : settings.entries) {
        m_items.append({entry, tr("not reached")});
    }
    for (const char *first : {kSourceNode, kModeNode}) {
        std::stable_partition(m_items.begin(), m_items.end(),
                              [first](const Item &item) { return item.entry.node == QLatin1String(first); });
    }
}

bool SettingsApplier::step()
{
    if (m_position == total() && m_hasWritten) {
        m_position = 0;
        m_hasWritten = false;
    }
    if (m_position == total() || m_isLost) {
        return false;
    }
    visit(m_items[m_position++]);
    m_done = m_isLost ? total() : std::max(m_done, m_position);
    return true;
}

QVector<SettingsApplier::Problem> SettingsApplier::problems() const
{
    QVector<Problem> problems;
    for (const Item &item : m_items) {
        if (!item.reason.isEmpty()) {
            problems.append({item.entry.node,
                             QStringLiteral("%1 = %2: %3")
                                 .arg(item.entry.node, SettingsFile::shown(item.entry.value), item.reason)});
        }
    }
    return problems;
}

void SettingsApplier::visit(Item &item)
{
    const SettingsFile::Entry &entry = item.entry;
    const RuvoNodeType type = m_device.getNodeType(entry.node);
    const RuvoNodeAccessMode mode = m_device.getNodeAccessMode(entry.node);
    const bool isReadable = type == entry.type && (mode == RuvoNodeReadWrite || mode == RuvoNodeReadOnly);
    const QVariant held = isReadable ? SettingsFile::value(m_device, entry.node, type) : QVariant();
    item.reason.clear();
    if (held == entry.value || (mode == RuvoNodeWriteOnly && item.writes > 0)) {
        return;
    }
    if (mode == RuvoNodeNotImplemented || type == RuvoNodeUnknown) {
        item.reason = tr("this camera has no such node");
    } else if (type != entry.type) {
        item.reason = tr("this node of the camera is of another type");
    } else if (mode == RuvoNodeReadOnly) {
        item.reason = tr("can only be read now (is the camera acquiring?)");
    } else if (mode != RuvoNodeReadWrite && mode != RuvoNodeWriteOnly) {
        item.reason = canReadMode() ? tr("cannot be written in the present mode") : failed(tr("cannot be written"));
    } else if (item.writes == kMaxWrites) {
        item.reason = held.isValid() ? tr("the camera holds %1 instead").arg(SettingsFile::shown(held))
                                     : failed(tr("cannot be read back"));
    } else if (SettingsFile::write(m_device, entry)) {
        ++item.writes;
        m_hasWritten = true;
    } else {
        item.reason = failed(tr("refused"));
    }
    m_isLost = m_hasMode && !item.reason.isEmpty() && !canReadMode();
    if (m_isLost) { // and what it took is perhaps lost with it
        const QString reason = failed(tr("the camera no longer answers"));
        std::for_each(m_items.begin(), m_items.end(), [&reason](Item &lost) { lost.reason = reason; });
    }
}

QString SettingsApplier::failed(const QString &what) const
{
    const QString reason = m_reason ? m_reason().simplified() : QString();
    return reason.isEmpty() ? what : QStringLiteral("%1 (%2)").arg(what, reason);
}

bool SettingsApplier::canReadMode() const
{
    return SettingsFile::value(m_device, QLatin1String(kModeNode), RuvoNodeEnumeration).isValid();
}
