#include "NodeModel.h"

#include "TracedDevice.h"

#include "devices/GenicamDevice.h"

#include <limits>

namespace {

QString accessText(RuvoNodeAccessMode mode)
{
    const QString names[] = {NodeModel::tr("not implemented"), NodeModel::tr("not available"),
                             NodeModel::tr("write-only"), NodeModel::tr("read-only"), NodeModel::tr("read/write")};
    return names[qBound(int(RuvoNodeNotImplemented), int(mode), int(RuvoNodeReadWrite))];
}

/// Without the limits that only the type of the number sets; a maximum of -1 stands for none.
template <typename Number>
QString rangeText(Number min, Number max, Number increment)
{
    const auto text = &TracedDevice::text;
    const bool hasMin = min != std::numeric_limits<Number>::lowest();
    const bool hasMax = max != std::numeric_limits<Number>::max() && (max != -1 || (hasMin && min <= max));
    QStringList parts;
    if (hasMin && hasMax) {
        parts.append(QStringLiteral("%1 … %2").arg(text(min), text(max)));
    } else if (hasMin || hasMax) {
        parts.append(hasMin ? QStringLiteral("≥ ") + text(min) : QStringLiteral("≤ ") + text(max));
    }
    if (increment > 0 && increment != 1) {
        parts.append(NodeModel::tr("step %1").arg(text(increment)));
    }
    return parts.join(QStringLiteral(", "));
}

/// Reads the value, which the device tells whoever traces it, and returns the range or the entries.
QString read(Device &device, RuvoNodeType type, const QString &node)
{
    int numbers[4] = {};
    float reals[4] = {};
    bool isOn = false;
    QString value;
    QList<QString> entries;
    switch (type) {
    case RuvoNodeInteger:
        device.getParamInt(node, numbers[0], numbers[1], numbers[2], numbers[3]);
        return rangeText(numbers[1], numbers[2], numbers[3]);
    case RuvoNodeFloat:
        device.getParamFloat(node, reals[0], reals[1], reals[2], reals[3]);
        return rangeText(reals[1], reals[2], reals[3]);
    case RuvoNodeBoolean:
        device.getParamBool(node, isOn);
        return {};
    case RuvoNodeEnumeration:
        device.getParamEnum(node, value, entries);
        return QStringList(entries).join(QStringLiteral(", "));
    default:
        device.getParamString(node, value);
        return {};
    }
}

} // namespace

void NodeModel::refresh(GenicamDevice *device)
{
    const QStringList nodes = device ? device->nodes() : QStringList();
    setHorizontalHeaderLabels(
        {tr("Node"), tr("Type"), tr("Access"), tr("Value"), tr("Range"), tr("Unit"), tr("Description")});
    setRowCount(nodes.size());
    for (int row = 0; device && row < nodes.size(); ++row) {
        const QString &node = nodes[row];
        const RuvoNodeType type = device->getNodeType(node);
        const RuvoNodeAccessMode mode = device->getNodeAccessMode(node);
        TracedDevice::Call call{};
        TracedDevice traced(
            *device, [&](const auto &made) { call = made; }, [&] { return device->lastError(); });
        const bool isReadable = mode == RuvoNodeReadOnly || mode == RuvoNodeReadWrite;
        const QString range = isReadable ? read(traced, type, node) : QString();
        const bool isRead = call.status == 0;
        const QString cells[] = {node,
                                 TracedDevice::name(type),
                                 accessText(mode),
                                 isRead ? call.value : QStringLiteral("– ") + call.reason,
                                 isRead ? range : QString(),
                                 device->unit(node),
                                 device->description(node).simplified()};
        for (int column = Node; column <= Description; ++column) { // what stays the same is not reported as changed
            setData(index(row, column), cells[column], Qt::DisplayRole);
        }
    }
}
