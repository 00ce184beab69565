#include "SettingsFile.h"

#include <VyViewerCore/Device.h>

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSet>
#include <QTextCodec>

#include <charconv>
#include <climits>
#include <cmath>
#include <iterator>

namespace {

constexpr qint64 kMaxSize = qint64(4) * 1024 * 1024; // bytes
constexpr int kMaxShown = 80;                        // characters
constexpr int kVersion = 1;
constexpr char kFormat[] = "trigger-settings";
constexpr struct
{
    const char *key;
    const char *node;
    QString SettingsFile::*field;
} kCamera[] = {{"vendor", "DeviceVendorName", &SettingsFile::vendor},
               {"model", "DeviceModelName", &SettingsFile::model},
               {"serial", "DeviceSerialNumber", &SettingsFile::serial}};

/// By RuvoNodeType.
QStringList typeNames()
{
    return {QString(), QStringLiteral("boolean"), QStringLiteral("integer"), QStringLiteral("float"),
            QStringLiteral("enumeration"), QString(), QStringLiteral("string")};
}

/// The shortest number that gives the same float back stands for a float: 12.3, not 12.300000190734863.
QJsonValue toJson(const QVariant &value)
{
    if (value.userType() != QMetaType::Float) {
        return QJsonValue::fromVariant(value);
    }
    char digits[32];
    const char *const end = std::to_chars(digits, std::end(digits), value.toFloat()).ptr;
    const double shortest = QByteArray(digits, int(end - digits)).toDouble();
    return float(shortest) == value.toFloat() ? shortest : double(value.toFloat()); // 7.038531e-26 is rounded twice
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

QString spelled(const QJsonValue &value)
{
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2));
}

QString cut(const QString &text)
{
    return text.size() <= kMaxShown ? text : text.left(kMaxShown - 1) + QChar(0x2026);
}

/// A pipe would keep us waiting, and a device file would be replaced.
bool isSpecial(const QString &fileName)
{
    return QFileInfo::exists(fileName) && !QFileInfo(fileName).isFile();
}

/// Of two equal keys in an object QJsonDocument keeps the last without a word. The text is valid JSON otherwise.
QString findRepeatedKey(const QString &json, int *offset)
{
    static const QRegularExpression token(QStringLiteral(R"re([][{}]|("(?:[^"\\]++|\\.)*+")(\s*+:)?)re"),
                                          QRegularExpression::DotMatchesEverythingOption);
    QVector<QSet<QString>> open; // the keys of every object around the present place; a list has none
    for (auto i = token.globalMatch(json); i.hasNext();) {
        const QRegularExpressionMatch match = i.next();
        const QString key = match.captured(1);
        *offset = match.capturedStart();
        if (key.isEmpty() && (match.captured() == QLatin1String("{") || match.captured() == QLatin1String("["))) {
            open.append(QSet<QString>());
        } else if (key.isEmpty()) {
            open.removeLast();
        } else if (match.capturedLength(2) > 0 && open.last().contains(key)) {
            return SettingsFile::tr("the key %1 is there twice").arg(cut(key));
        } else if (match.capturedLength(2) > 0) {
            open.last().insert(key);
        }
    }
    return QString();
}

QString findWrongKey(const QJsonValue &value, const QStringList &needed, const QStringList &possible = {})
{
    const QStringList keys = value.toObject().keys();
    for (const QString &key : keys) {
        if (!needed.contains(key) && !possible.contains(key)) {
            return SettingsFile::tr("the key %1 is not known").arg(cut(spelled(key)));
        }
    }
    for (const QString &key : needed) {
        if (!keys.contains(key)) {
            return SettingsFile::tr("the key \"%1\" is missing").arg(key);
        }
    }
    return QString();
}

QString parse(const QByteArray &json, QJsonObject *document)
{
    QTextCodec::ConverterState state;
    const QString text = QTextCodec::codecForName("UTF-8")->toUnicode(json.constData(), json.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0) {
        return SettingsFile::tr("the file is no text in UTF-8");
    }
    QJsonParseError failure;
    *document = QJsonDocument::fromJson(json, &failure).object();
    int offset = QString::fromUtf8(json.left(failure.offset)).size();
    const QString error = failure.error ? failure.errorString() : findRepeatedKey(text, &offset);
    if (!error.isEmpty()) {
        return SettingsFile::tr("line %1: %2").arg(text.leftRef(offset).count(QLatin1Char('\n')) + 1).arg(error);
    }
    if (document->value(QLatin1String("format")) != QJsonValue(QLatin1String(kFormat))) {
        return SettingsFile::tr("this is no file of trigger settings");
    }
    const QJsonValue version = document->value(QLatin1String("version"));
    if (version != QJsonValue(kVersion)) {
        return SettingsFile::tr("the version is %1, and only %2 is known").arg(cut(spelled(version))).arg(kVersion);
    }
    return findWrongKey(*document, {QStringLiteral("format"), QStringLiteral("version"), QStringLiteral("nodes")},
                        {QStringLiteral("camera")});
}

QString readCamera(const QJsonValue &camera, SettingsFile *file)
{
    QStringList keys;
    bool isText = camera.isObject() || camera.isUndefined();
    for (const auto &part : kCamera) {
        keys.append(QLatin1String(part.key));
        const QJsonValue text = camera.toObject().value(keys.last());
        isText = isText && (text.isString() || text.isUndefined());
        file->*part.field = text.toString();
    }
    return isText ? findWrongKey(camera, {}, keys) : SettingsFile::tr("this has to be an object of texts");
}

QString readEntry(const QJsonValue &node, SettingsFile *file, QSet<QString> *names)
{
    const QStringList keys{QStringLiteral("name"), QStringLiteral("type"), QStringLiteral("value")};
    const auto shown = [&](int key) { return cut(spelled(node[keys.at(key)])); };
    const QString wrongKey = findWrongKey(node, keys);
    const QString name = fromJson(node[keys.at(0)], RuvoNodeEnumeration).toString();
    const QString typeName = node[keys.at(1)].toString();
    const auto type = RuvoNodeType(qMax<int>(RuvoNodeUnknown, typeNames().indexOf(typeName)));
    const QVariant value = fromJson(node[keys.at(2)], type);
    if (wrongKey.isEmpty() && value.isValid() && !name.isEmpty() && !names->contains(name)) {
        names->insert(name);
        file->entries.append({name, type, value});
        return QString();
    }
    return !wrongKey.isEmpty()       ? wrongKey
           : name.isEmpty()          ? SettingsFile::tr("%1 is no name of a node").arg(shown(0))
           : names->contains(name)   ? SettingsFile::tr("this node is there twice")
           : type == RuvoNodeUnknown ? SettingsFile::tr("the type %1 is not known").arg(shown(1))
                                     : SettingsFile::tr("the value %1 is none of type %2").arg(shown(2), typeName);
}

QString readDocument(const QJsonObject &document, SettingsFile *file)
{
    QString error = readCamera(document.value(QLatin1String("camera")), file);
    if (!error.isEmpty()) {
        return QStringLiteral("\"camera\": ") + error;
    }
    if (!document.value(QLatin1String("nodes")).isArray()) {
        return SettingsFile::tr("\"nodes\" is no list");
    }
    QSet<QString> names;
    const QJsonArray nodes = document.value(QLatin1String("nodes")).toArray();
    for (const QJsonValue &node : nodes) {
        error = readEntry(node, file, &names);
        if (!error.isEmpty()) {
            const QString name = cut(node[QLatin1String("name")].toString().simplified());
            const QString number = SettingsFile::tr("entry %1").arg(file->entries.size() + 1);
            return QStringLiteral("%1: %2").arg(name.isEmpty() ? number : name, error);
        }
    }
    return QString();
}

} // namespace

SettingsFile SettingsFile::read(Device &device, const QStringList &nodes)
{
    static const QRegularExpression isSetting(QStringLiteral("^(InputTrigger|InputIOTrigger|InputKeyTrigger|Trigger)"));
    SettingsFile settings;
    QStringList candidates;
    for (const QString &node : nodes) {
        const RuvoNodeType type = device.getNodeType(node);
        if (typeName(type).isEmpty() || !isSetting.match(node).hasMatch()) {
            continue;
        }
        candidates.append(node);
        if (device.getNodeAccessMode(node) == RuvoNodeReadWrite) {
            settings.entries.append({node, type, value(device, node, type)});
            if (!settings.entries.last().value.isValid()) {
                settings.unread.append(settings.entries.takeLast().node);
            }
        }
    }
    // On a camera that is gone no node is available, which looks like a mode with few settings.
    const Entry first = settings.entries.value(0);
    if (!settings.entries.isEmpty() && !value(device, first.node, first.type).isValid()) {
        settings.entries.clear();
        settings.unread = candidates;
    }
    for (const auto &part : kCamera) {
        settings.*part.field = value(device, QLatin1String(part.node), RuvoNodeString).toString();
    }
    return settings;
}

QVariant SettingsFile::value(Device &device, const QString &node, RuvoNodeType type)
{
    long status = -1;
    bool on = false;
    int integer[4] = {}; // with the limits, of no interest here
    float number[4] = {};
    QString text;
    QList<QString> entries;
    switch (device.getNodeType(node) == type ? type : RuvoNodeUnknown) {
    case RuvoNodeBoolean:
        return device.getParamBool(node, on) == 0 ? QVariant(on) : QVariant();
    case RuvoNodeInteger:
        status = device.getParamInt(node, integer[0], integer[1], integer[2], integer[3]);
        return status == 0 ? QVariant(integer[0]) : QVariant();
    case RuvoNodeFloat:
        status = device.getParamFloat(node, number[0], number[1], number[2], number[3]);
        return status == 0 && std::isfinite(number[0]) ? QVariant(number[0]) : QVariant();
    case RuvoNodeEnumeration:
        status = device.getParamEnum(node, text, entries);
        break;
    case RuvoNodeString:
        status = device.getParamString(node, text);
        break;
    default:
        break;
    }
    return status == 0 ? fromJson(text, type) : QVariant();
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
    if (text.size() > kMaxSize) {
        return tr("the file is too large");
    }
    SettingsFile loaded;
    QJsonObject document;
    QString error = parse(text, &document);
    error = error.isEmpty() ? readDocument(document, &loaded) : error;
    if (error.isEmpty()) {
        *this = loaded;
    }
    return error;
}

QString SettingsFile::save(const QString &fileName) const
{
    if (isSpecial(fileName)) {
        return tr("this is no ordinary file");
    }
    QStringList camera;
    for (const auto &part : kCamera) {
        camera.append(QStringLiteral("\"%1\": %2").arg(QLatin1String(part.key), spelled(this->*part.field)));
    }
    QStringList nodes;
    for (const Entry &entry : entries) { // each on a line of its own, which QJsonDocument does not do
        nodes.append(QStringLiteral("\n        {\"name\": %1, \"type\": \"%2\", \"value\": %3}")
                         .arg(spelled(entry.node), typeName(entry.type), spelled(toJson(entry.value))));
    }
    const QString text = QStringLiteral("{\n    \"format\": \"%1\",\n    \"version\": %2,\n    \"camera\": {%3},\n"
                                        "    \"nodes\": [%4\n    ]\n}\n")
                             .arg(QLatin1String(kFormat), QString::number(kVersion), camera.join(QLatin1String(", ")),
                                  nodes.join(QLatin1Char(',')));
    QSaveFile file(fileName); // whose commit overlooks that the rest of its buffer could not be written: flush first
    const bool written = file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) >= 0 && file.flush();
    return written && file.commit() ? QString() : file.errorString();
}

QString SettingsFile::typeName(RuvoNodeType type)
{
    return typeNames().value(type);
}

QString SettingsFile::shown(const QVariant &value)
{
    return cut(spelled(toJson(value)));
}
