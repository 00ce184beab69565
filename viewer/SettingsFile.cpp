#include "SettingsFile.h"

#include "TracedDevice.h"
#include "WholeFile.h"

#include <VyViewerCore/Device.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>

#include <climits>
#include <cmath>
#include <tuple>

namespace {

constexpr qint64 kMaxSize = qint64(4) * 1024 * 1024; // bytes
constexpr int kMaxShown = 80;                        // characters
constexpr int kVersion = 1;
const QLatin1String kFormat("trigger-settings");
const QLatin1String kName("name"); // the keys of an entry
const QLatin1String kType("type");
const QLatin1String kValue("value");

/// `More` are the limits or the entries, of no interest here.
template <auto Get, typename Value, typename... More>
QVariant get(Device &device, const QString &node)
{
    Value value{};
    std::tuple<More...> unused;
    const long status = std::apply([&](More &...more) { return (device.*Get)(node, value, more...); }, unused);
    return status == 0 ? QVariant(value) : QVariant();
}

template <auto Set, typename Value>
long set(Device &device, const QString &node, const QVariant &value)
{
    return (device.*Set)(node, value.value<Value>());
}

/// The types of which a setting can be.
constexpr struct Type
{
    RuvoNodeType type;
    const char *name; // in the file
    QVariant (*get)(Device &device, const QString &node);
    long (*set)(Device &device, const QString &node, const QVariant &value);
} kTypes[] = {
    {RuvoNodeBoolean, "boolean", get<&Device::getParamBool, bool>, set<&Device::setParamBool, bool>},
    {RuvoNodeInteger, "integer", get<&Device::getParamInt, int, int, int, int>, set<&Device::setParamInt, int>},
    {RuvoNodeFloat, "float", get<&Device::getParamFloat, float, float, float, float>,
     set<&Device::setParamFloat, float>},
    {RuvoNodeEnumeration, "enumeration", get<&Device::getParamEnum, QString, QList<QString>>,
     set<&Device::setParamEnum, QString>},
    {RuvoNodeString, "string", get<&Device::getParamString, QString>, set<&Device::setParamString, QString>},
};

/// By the one or the other; nullptr when there is none.
const Type *findType(RuvoNodeType type, const QString &name = {})
{
    for (const Type &known : kTypes) {
        if (type == known.type || name == QLatin1String(known.name)) {
            return &known;
        }
    }
    return nullptr;
}

/// Invalid for what does not fit the type.
QVariant fromJson(const QJsonValue &value, RuvoNodeType type)
{
    const double number = value.toDouble(qQNaN());
    const QString text = value.toString();
    QVariant result;
    if (type == RuvoNodeBoolean && value.isBool()) {
        result = value.toBool();
    } else if (type == RuvoNodeInteger && number >= INT_MIN && number <= INT_MAX && number == std::floor(number)) {
        result = int(number);
    } else if (type == RuvoNodeFloat && std::isfinite(float(number))) {
        result = float(number);
    } else if ((type == RuvoNodeString && value.isString()) || (type == RuvoNodeEnumeration && !text.isEmpty())) {
        result = text.contains(QChar(QChar::Null)) ? QVariant() : text;
    }
    return result;
}

/// The fewest digits that give it back stand for a float: 12.3, not 12.300000190734863.
QString spelled(const QVariant &value)
{
    if (value.userType() == QMetaType::Float) {
        return TracedDevice::text(value);
    }
    const QByteArray list = QJsonDocument(QJsonArray{QJsonValue::fromVariant(value)}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2));
}

/// A pipe would keep us waiting, and a device file would be replaced.
bool isSpecial(const QString &fileName)
{
    return QFileInfo::exists(fileName) && !QFileInfo(fileName).isFile();
}

/// An unknown key may be a known one misspelled. One that is missing shows by its value.
QString findUnknownKey(const QJsonObject &object, const QStringList &known)
{
    const QStringList keys = object.keys();
    for (const QString &key : keys) {
        if (!known.contains(key)) {
            return SettingsFile::tr("the key %1 is not known").arg(SettingsFile::shown(key));
        }
    }
    return QString();
}

QString readEntry(const QJsonObject &node, QSet<QString> *names, QVector<SettingsFile::Entry> *entries)
{
    const QString name = node.value(kName).toString();
    const Type *const type = findType(RuvoNodeUnknown, node.value(kType).toString());
    const QVariant value = type ? fromJson(node.value(kValue), type->type) : QVariant();
    if (name.isEmpty()) {
        return SettingsFile::tr("the name is missing");
    }
    if (names->contains(name)) {
        return SettingsFile::tr("this node is there twice");
    }
    if (!type) {
        return SettingsFile::tr("the type %1 is not known").arg(SettingsFile::shown(node.value(kType).toVariant()));
    }
    if (!value.isValid()) {
        return SettingsFile::tr("the value %1 is none of type %2")
            .arg(SettingsFile::shown(node.value(kValue).toVariant()), QLatin1String(type->name));
    }
    names->insert(name);
    entries->append({name, type->type, value});
    return QString();
}

QString readDocument(const QJsonObject &document, QVector<SettingsFile::Entry> *entries)
{
    const QJsonValue version = document.value(QLatin1String("version"));
    const QJsonValue nodes = document.value(QLatin1String("nodes"));
    if (document.value(QLatin1String("format")) != QJsonValue(kFormat)) {
        return SettingsFile::tr("this is no file of trigger settings");
    }
    if (version != QJsonValue(kVersion)) {
        return SettingsFile::tr("the version is %1, and only %2 is known")
            .arg(SettingsFile::shown(version.toVariant()), QString::number(kVersion));
    }
    if (!nodes.isArray()) {
        return SettingsFile::tr("\"nodes\" is no list");
    }
    QString error = findUnknownKey(document,
                                   {QStringLiteral("format"), QStringLiteral("version"), QStringLiteral("camera"),
                                    QStringLiteral("nodes")});
    QSet<QString> names;
    const QJsonArray list = nodes.toArray();
    for (int i = 0; i < list.size() && error.isEmpty(); ++i) {
        const QJsonObject node = list.at(i).toObject();
        error = findUnknownKey(node, {kName, kType, kValue});
        error = error.isEmpty() ? readEntry(node, &names, entries) : error;
        if (!error.isEmpty()) {
            const QString name = SettingsFile::shown(node.value(kName).toVariant());
            return SettingsFile::tr("entry %1, %2: %3").arg(QString::number(i + 1), name, error);
        }
    }
    return error;
}

} // namespace

SettingsFile SettingsFile::read(Device &device, const QStringList &nodes)
{
    static const QRegularExpression isSetting(QStringLiteral("^(InputTrigger|InputIOTrigger|InputKeyTrigger|Trigger)"));
    SettingsFile settings;
    for (const QString &node : nodes) {
        const RuvoNodeType type = device.getNodeType(node);
        if (!findType(type) || !isSetting.match(node).hasMatch()
            || device.getNodeAccessMode(node) != RuvoNodeReadWrite) {
            continue;
        }
        const Entry entry{node, type, value(device, node, type)};
        if (entry.value.isValid()) {
            settings.entries.append(entry);
        } else {
            settings.unread.append(node);
        }
    }
    // On a camera that is gone no node is available, which looks like a mode with few settings.
    const Entry first = settings.entries.value(0);
    if (!settings.entries.isEmpty() && !value(device, first.node, first.type).isValid()) {
        settings.unread.append(first.node);
    }
    settings.vendor = value(device, QStringLiteral("DeviceVendorName"), RuvoNodeString).toString();
    settings.model = value(device, QStringLiteral("DeviceModelName"), RuvoNodeString).toString();
    settings.serial = value(device, QStringLiteral("DeviceSerialNumber"), RuvoNodeString).toString();
    return settings;
}

QString SettingsFile::load(const QString &fileName)
{
    QFile file(fileName);
    if (isSpecial(fileName)) {
        return tr("this is no ordinary file");
    }
    const QByteArray text = file.open(QIODevice::ReadOnly) ? file.read(kMaxSize + 1) : QByteArray();
    if (file.error() != QFileDevice::NoError) {
        return file.errorString();
    }
    return parse(text);
}

QString SettingsFile::parse(const QByteArray &text)
{
    if (text.size() > kMaxSize) {
        return tr("the file is too large");
    }
    QJsonParseError failure;
    const QJsonObject document = QJsonDocument::fromJson(text, &failure).object();
    if (failure.error != QJsonParseError::NoError) {
        return tr("line %1: %2").arg(text.left(failure.offset).count('\n') + 1).arg(failure.errorString());
    }
    QVector<Entry> loaded;
    QString error = readDocument(document, &loaded);
    if (error.isEmpty()) {
        entries = loaded;
    }
    return error;
}

QString SettingsFile::save(const QString &fileName) const
{
    return isSpecial(fileName) ? tr("this is no ordinary file") : WholeFile::write(fileName, text());
}

QByteArray SettingsFile::text() const
{
    QStringList nodes;
    for (const Entry &entry : entries) { // each on a line of its own, which QJsonDocument does not do
        nodes.append(QStringLiteral("\n        {\"name\": %1, \"type\": \"%2\", \"value\": %3}")
                         .arg(spelled(entry.node), QLatin1String(findType(entry.type)->name), spelled(entry.value)));
    }
    return QStringLiteral("{\n    \"format\": \"%1\",\n    \"version\": %2,\n"
                          "    \"camera\": {\"vendor\": %3, \"model\": %4, \"serial\": %5},\n"
                          "    \"nodes\": [%6\n    ]\n}\n")
        .arg(kFormat, QString::number(kVersion), spelled(vendor), spelled(model), spelled(serial),
             nodes.join(QLatin1Char(',')))
        .toUtf8();
}

QVariant SettingsFile::value(Device &device, const QString &node, RuvoNodeType type)
{
    const Type *const known = findType(type);
    return known ? fromJson(QJsonValue::fromVariant(known->get(device, node)), type) : QVariant();
}

bool SettingsFile::write(Device &device, const Entry &entry)
{
    const Type *const known = findType(entry.type);
    return known && entry.value.isValid() && known->set(device, entry.node, entry.value) == 0;
}

QVariant SettingsFile::fromText(const QString &text, RuvoNodeType type)
{
    if (type == RuvoNodeEnumeration || type == RuvoNodeString) {
        return fromJson(text, type);
    }
    const QJsonArray list = QJsonDocument::fromJson('[' + text.toUtf8() + ']').array();
    return list.size() == 1 ? fromJson(list.first(), type) : QVariant();
}

QString SettingsFile::shown(const QVariant &value)
{
    const QString text = spelled(value);
    return text.size() <= kMaxShown ? text : text.left(kMaxShown - 1) + QChar(0x2026);
}
