#include "SettingsApplier.h"

#include <algorithm>

namespace {

constexpr char kModeNode[] = "InputTriggerMode";
constexpr char kSourceNode[] = "InputTriggerSource";
constexpr char kAcquiringNode[] = "AcquisitionStatus";

int rank(const QString &node)
{
    return node == QLatin1String(kModeNode) ? 0 : node == QLatin1String(kSourceNode) ? 1 : 2;
}

} // namespace

SettingsApplier::SettingsApplier(Device &device, const SettingsFile &settings, Reason reason)
    : m_device(device)
    , m_reason(std::move(reason))
    , m_hasMode(canReadMode())
{
    for (const SettingsFile::Entry &entry : settings.entries) {
        m_items.append({entry, Item::Open, -1, QString()});
    }
    std::stable_sort(m_items.begin(), m_items.end(), [](const Item &one, const Item &other) {
        return rank(one.entry.node) < rank(other.entry.node);
    });
}

bool SettingsApplier::step()
{
    const int index = next();
    if (index >= 0) {
        m_checking ? check(m_items[index]) : attempt(m_items[index]);
    }
    return index >= 0;
}

int SettingsApplier::done() const
{
    return m_finished ? total() : int(std::count_if(m_items.cbegin(), m_items.cend(), [](const Item &item) {
        return item.state != Item::Open;
    }));
}

QVector<SettingsApplier::Problem> SettingsApplier::problems() const
{
    QVector<Problem> problems;
    for (const Item &item : m_items) {
        if (item.state != Item::Taken || !m_anyWritable) {
            const QString why = item.state == Item::Open && !m_finished ? tr("not reached") : item.reason;
            problems.append({item.entry.node, QStringLiteral("%1 = %2: %3").arg(
                                 item.entry.node, SettingsFile::shown(item.entry.value), why)});
        }
    }
    return problems;
}

/// The item that is next; -1 when all is done.
int SettingsApplier::next()
{
    const int count = m_items.size();
    for (int i = 0; i < count && !m_checking; ++i) {
        const int index = (m_position + i) % count;
        const Item &item = m_items.at(index);
        if ((item.state == Item::Open || item.state == Item::Changed) && item.tried != m_writes) {
            m_position = index + 1;
            return index;
        }
    }
    m_position = m_checking ? m_position : 0;
    m_checking = true;
    if (m_position < count && !m_finished) {
        return m_position++;
    }
    m_finished = m_finished || m_again || std::none_of(m_items.cbegin(), m_items.cend(), [](const Item &item) {
        return item.state == Item::Changed;
    });
    if (m_finished) {
        return -1;
    }
    m_again = true;
    m_checking = false;
    return next();
}

void SettingsApplier::attempt(Item &item)
{
    item.tried = m_writes;
    const SettingsFile::Entry &entry = item.entry;
    const RuvoNodeType type = m_device.getNodeType(entry.node);
    if (type != entry.type) {
        item.state = Item::Impossible;
        item.reason = type == RuvoNodeUnknown ? whyNotNow(RuvoNodeNotImplemented)
                                              : tr("this node of the camera is of another type than %1")
                                                    .arg(SettingsFile::typeName(entry.type));
        return;
    }
    const RuvoNodeAccessMode mode = m_device.getNodeAccessMode(entry.node);
    const bool writable = mode == RuvoNodeReadWrite || mode == RuvoNodeWriteOnly;
    const bool readable = mode == RuvoNodeReadWrite || mode == RuvoNodeReadOnly;
    m_anyWritable = m_anyWritable || writable;
    item.reason = writable ? QString() : whyNotNow(mode);
    if (readable && SettingsFile::value(m_device, entry.node, type) == entry.value) {
        item.state = Item::Taken;
    } else if (writable && write(entry) == 0) {
        item.state = Item::Taken;
        ++m_writes;
    } else {
        item.reason = writable ? failed(tr("refused")) : item.reason;
        giveUpIfLost(writable ? &item : nullptr);
    }
}

/// The write of another node may have changed this one since.
void SettingsApplier::check(Item &item)
{
    const SettingsFile::Entry &entry = item.entry;
    if (item.state != Item::Taken || m_device.getNodeAccessMode(entry.node) == RuvoNodeWriteOnly) {
        return;
    }
    const QVariant held = SettingsFile::value(m_device, entry.node, entry.type);
    if (!held.isValid()) {
        item.state = Item::Changed;
        item.reason = failed(tr("cannot be read back"));
        giveUpIfLost(&item);
    } else if (held != entry.value) {
        item.state = Item::Changed;
        item.reason = tr("the camera holds %1 instead of %2")
                          .arg(SettingsFile::shown(held), SettingsFile::shown(entry.value));
    }
}

long SettingsApplier::write(const SettingsFile::Entry &entry)
{
    switch (entry.type) {
    case RuvoNodeBoolean:
        return m_device.setParamBool(entry.node, entry.value.toBool());
    case RuvoNodeInteger:
        return m_device.setParamInt(entry.node, entry.value.toInt());
    case RuvoNodeFloat:
        return m_device.setParamFloat(entry.node, entry.value.toFloat());
    case RuvoNodeEnumeration:
        return m_device.setParamEnum(entry.node, entry.value.toString());
    default:
        return m_device.setParamString(entry.node, entry.value.toString());
    }
}

QString SettingsApplier::whyNotNow(RuvoNodeAccessMode mode) const
{
    if (mode == RuvoNodeReadOnly) {
        return SettingsFile::value(m_device, QLatin1String(kAcquiringNode), RuvoNodeBoolean).toBool()
                   ? tr("cannot be written while the camera is acquiring") : tr("can only be read now");
    }
    return mode == RuvoNodeNotImplemented ? tr("this camera has no such node")
                                          : tr("cannot be written in the present mode");
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

/// What was taken may be lost with the device: it cannot be asked. `but` has a reason of its own.
void SettingsApplier::giveUpIfLost(const Item *but)
{
    m_finished = m_hasMode && !canReadMode();
    m_checking = m_checking || m_finished;
    for (Item &item : m_items) {
        if (m_finished && item.state != Item::Impossible && &item != but) {
            item.state = Item::Changed;
            item.reason = tr("the camera no longer answers");
        }
    }
}
