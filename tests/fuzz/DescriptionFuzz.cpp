#include "devices/GenicamDevice.h"
#include "devices/RegisterPort.h"

#include <QRegularExpression>

#include <glib.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstring>
#include <ctime>

namespace {

/// Holds whatever is written, up to an end of its memory.
class MemoryPort final : public RegisterPort
{
    bool read(quint64 address, void *bytes, quint32 size, QString *error) override
    { return contains(address, size, error) && std::memcpy(bytes, m_bytes + address, size); }
    bool write(quint64 address, const void *bytes, quint32 size, QString *error) override
    { return contains(address, size, error) && std::memcpy(m_bytes + address, bytes, size); }
    static bool contains(quint64 address, quint32 size, QString *error)
    {
        *error = QStringLiteral("no memory");
        return address <= sizeof m_bytes && size <= sizeof m_bytes - address;
    }
    uchar m_bytes[0x10000] = {};
};

/// A complaint of the device library means that a description got past our own checks.
void refuse(const char *, GLogLevelFlags, const char *message, void *) { qFatal("%s", message); }

void use(GenicamDevice &device, const QString &node)
{
    int value = 0, min = 0, max = 0, inc = 0;
    float real = 0, low = 0, high = 0, step = 0;
    bool flag = false;
    QString text;
    QList<QString> entries;
    Q_ASSERT(device.getParamInt(node, value, min, max, inc) != 0 || inc >= 1);
    Q_ASSERT(device.getParamFloat(node, real, low, high, step) != 0
             || (std::isfinite(real) && std::isfinite(low) && std::isfinite(high) && std::isfinite(step) && step > 0));
    device.getParamBool(node, flag);
    device.getParamEnum(node, text, entries);
    device.getParamString(node, text);
    Q_ASSERT(text.size() <= 0x10000); // no register is longer
    Q_ASSERT(device.getNodeType(node) != RuvoNodeUnknown || device.getNodeAccessMode(node) == RuvoNodeNotImplemented);
    entries += {device.unit(node), device.description(node), node.repeated(99), QString(), node};
    for (const QString &written : qAsConst(entries)) {
        device.setParamEnum(node, written);
        device.setParamString(node, written);
    }
    for (const int written : {1, INT_MIN, INT_MAX, 0, value}) {
        device.setParamInt(node, written);
        device.setParamBool(node, written);
        device.setParamFloat(node, written == 1 ? FLT_TRUE_MIN : float(written) * FLT_MAX);
    }
    device.executeCMD(node);
}

void useAll(const std::unique_ptr<GenicamDevice> &device, const QByteArray &description)
{
    static const QRegularExpression name(QStringLiteral("\\sName\\s*=\\s*[\"']([^\"']*)"));
    QStringList nodes = device ? device->nodes() : QStringList();
    auto match = name.globalMatch(QString::fromUtf8(description));
    while (device && match.hasNext() && nodes.size() < 300) {
        nodes.append(match.next().captured(1)); // most are in no category
    }
    for (const QString &node : nodes.mid(0, 300) + nodes.mid(0, 300)) { // again with what was written
        use(*device, node);
    }
}

} // namespace

/// A command that never ends is waited for, which takes no time here.
extern "C" int nanosleep(const timespec *, timespec *) { return 0; }

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    // The device library traps on the smallest number divided by -1. What a variable holds is not known beforehand.
    static const QRegularExpression division(QStringLiteral("(?<![<\\x00])[/%](?!>|\\s*\\d{1,9}\\b)"));
    const QByteArray description(reinterpret_cast<const char *>(data), int(size));
    if (!division.match(QString::fromLatin1(description)).hasMatch()) {
        g_log_set_default_handler(refuse, nullptr);
        QString error;
        useAll(GenicamDevice::openDescription(description, &error), description);
        Q_ASSERT(!error.contains(QLatin1Char('\n')));
        useAll(GenicamDevice::openPort(std::make_unique<MemoryPort>(), description, &error), description);
    }
    return 0;
}
