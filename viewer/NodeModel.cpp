#include "NodeModel.h"

#include "RecordTable.h"
#include "TracedDevice.h"

#include "devices/GenicamDevice.h"

#include <limits>

namespace {

QString text(int value) { return QString::number(value); }
QString text(float value) { return TracedDevice::text(value); }

QString accessText(RuvoNodeAccessMode mode)
{
    const QString names[] = {NodeModel::tr("not implemented"), NodeModel::tr("not available"),
                             NodeModel::tr("write-only"), NodeModel::tr("read-only"), NodeModel::tr("read/write")};
    return names[qBound(int(RuvoNodeNotImplemented), int(mode), int(RuvoNodeReadWrite))];
}

/// Reads a node whose value can be read now. Returns the status.
template <typename Number>
long readNumber(GenicamDevice *device, long (Device::*read)(const QString &, Number &, Number &, Number &, Number &),
                const QString &node, QString &value, QString &range)
{
    using Limits = std::numeric_limits<Number>;
    Number number = 0;
    Number min = 0;
    Number max = 0;
    Number increment = 0;
    const long status = (device->*read)(node, number, min, max, increment);
    value = text(number);
    // Without the limits that only the type of the number sets.
    const bool isOpen = max == Limits::max() || (max == -1 && min > max);
    const QString lower = min == Limits::lowest() ? QString() : text(min);
    range = NodeModel::tr("%1 … %2").arg(lower, isOpen ? QString() : text(max)).trimmed();
    if (increment > 0 && increment != 1) {
        range = NodeModel::tr("%1, step %2").arg(range, text(increment));
    }
    return status;
}

long readValue(GenicamDevice *device, const QString &node, QString &value, QString &range)
{
    switch (device->getNodeType(node)) {
    case RuvoNodeInteger:
        return readNumber(device, &Device::getParamInt, node, value, range);
    case RuvoNodeFloat:
        return readNumber(device, &Device::getParamFloat, node, value, range);
    case RuvoNodeBoolean: {
        bool isOn = false;
        const long status = device->getParamBool(node, isOn);
        value = isOn ? QStringLiteral("true") : QStringLiteral("false");
        return status;
    }
    case RuvoNodeEnumeration: {
        QList<QString> entries;
        const long status = device->getParamEnum(node, value, entries);
        range = QStringList(entries).join(QStringLiteral(", "));
        return status;
    }
    default:
        return device->getParamString(node, value);
    }
}

} // namespace

void NodeModel::setDevice(GenicamDevice *device)
{
    m_device = device;
    m_nodes.clear();
    setRowCount(0);
}

void NodeModel::refresh()
{
    const QStringList nodes = m_device ? m_device->nodes() : QStringList();
    if (nodes != m_nodes) {
        setRowCount(0);
        m_nodes = nodes;
        setRowCount(m_nodes.size());
    }
    for (int row = 0; row < m_nodes.size(); ++row) {
        const QString &node = m_nodes[row];
        const RuvoNodeAccessMode mode = m_device->getNodeAccessMode(node);
        QString value;
        QString range;
        QString error;
        if ((mode == RuvoNodeReadOnly || mode == RuvoNodeReadWrite) && readValue(m_device, node, value, range) != 0) {
            value = QStringLiteral("–");
            range.clear();
            error = m_device->lastError();
        }
        const QString cells[] = {node, TracedDevice::name(m_device->getNodeType(node)), accessText(mode), value, range,
                                 m_device->unit(node), m_device->description(node).simplified()};
        for (int column = Node; column <= Description; ++column) { // what stays the same is not reported as changed
            const QString &tip = column == Value && !error.isEmpty() ? error : cells[column];
            setData(index(row, column), cells[column], Qt::DisplayRole);
            setData(index(row, column), RecordTable::toolTip(tip), Qt::ToolTipRole);
        }
    }
}

void NodeModel::retranslateHeadings()
{
    setHorizontalHeaderLabels({tr("Node"), tr("Type"), tr("Access"), tr("Value"), tr("Range"), tr("Unit"),
                               tr("Description")});
}
