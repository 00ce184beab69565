#include "CameraDescription.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <cstring>

namespace {

constexpr qint64 kMaxDescription = qint64(16) * 1024 * 1024; // bytes
constexpr int kMaxDepth = 32;       // of elements and of references: a description needs about six
constexpr int kMaxReads = 10000;    // for one value, with all that it refers to: ours need about ten
constexpr int kMaxRegister = 65536; // bytes

/// The elements that name a node whose value goes into the value of the node they stand in.
constexpr char kValueReferences[] = "pValue pAddress pVariable pIndex pValueIndexed pValueDefault pLength pOffset";

/// Of an element or an attribute of GenICam. Other ones may be spelled as not every XML parser takes them.
bool isName(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^[A-Za-z]\\w*\\z"));
    return form.match(text).hasMatch();
}

/// QXmlStreamReader takes more for a text.
bool isText(const QString &text)
{
    return text.isValidUtf16() && std::none_of(text.begin(), text.end(), [](QChar c) {
               return c.unicode() > 0xfffd || (c.unicode() < 0x20 && !QStringLiteral("\t\n\r").contains(c));
           });
}

/// What a node cannot work without: Aravis takes it for given.
constexpr char kRegisters[] = "IntReg MaskedIntReg FloatReg StringReg StructReg Register";
constexpr struct
{
    const char *kinds;
    const char *need;
    const char *orElse;
} kNeeds[] = {
    {kRegisters, "pPort", "pPort"},
    {kRegisters, "Length", "pLength"},
    {"Integer Float Boolean Enumeration Command String", "pValue", "Value"},
    {"Command", "CommandValue", "pCommandValue"},
    {"EnumEntry", "Value", "pValue"},
    {"IntConverter Converter", "pValue", "pValue"},
    {"IntConverter Converter", "FormulaFrom", "FormulaFrom"},
    {"IntSwissKnife SwissKnife", "Formula", "Formula"},
};

/// The nodes that Aravis knows, and what may name other ones. Elsewhere it looks for such a node without end.
constexpr char kKinds[] = "Integer IntReg MaskedIntReg IntConverter IntSwissKnife Float FloatReg Converter SwissKnife "
                          "Boolean Enumeration Command String StringReg Register StructReg StructEntry Category Port";
constexpr char kLists[] = "pFeature pSelected pInvalidator";

/// And what Aravis does not expect elsewhere.
constexpr struct
{
    const char *element;
    const char *parents;
} kPlaces[] = {
    {"StructEntry", "StructReg"},
    {"SwissKnife", "RegisterDescription Group"}, // in a register it would be an address that is no integer
};

bool isOneOf(const char *words, const QString &word)
{
    for (const char *at = words; *at;) { // without a list of them: every element is looked up a dozen times
        const char *const end = std::strchr(at, ' ');
        const QLatin1String each(at, end ? int(end - at) : int(std::strlen(at)));
        if (each == word) {
            return true;
        }
        at = end ? end + 1 : "";
    }
    return false;
}

class Parser
{
public:
    explicit Parser(CameraDescription &description, const QByteArray &xml)
        : m_description(description)
        , m_reader(xml)
        , m_writer(&description.xml)
    {}

    QString parse()
    {
        while (!m_reader.atEnd() && m_error.isEmpty()) {
            switch (m_reader.readNext()) {
            case QXmlStreamReader::DTD: // entities can make a small file a giant one
                m_error = QStringLiteral("it has a document type");
                break;
            case QXmlStreamReader::StartElement:
                start();
                break;
            case QXmlStreamReader::Characters:
                m_text += m_reader.text();
                break;
            case QXmlStreamReader::EndElement:
                end();
                break;
            default:
                break;
            }
        }
        if (m_reader.hasError()) {
            return QStringLiteral("line %1: %2").arg(m_reader.lineNumber()).arg(m_reader.errorString());
        }
        if (!m_error.isEmpty()) {
            return QStringLiteral("line %1: %2").arg(m_reader.lineNumber()).arg(m_error);
        }
        return checkReferences();
    }

private:
    struct Element
    {
        QString node; // that it is, or else stands in
        QStringList children;
    };
    struct Cost // of reading a node's value: how many nodes are read, and how many wait for each other
    {
        int reads;
        int depth;
    };
    struct Reference
    {
        QString from, element, to;
    };

    void start()
    {
        const QStringRef element = m_reader.name();
        if (m_open.isEmpty() && element != QLatin1String("RegisterDescription")) {
            m_error = QStringLiteral("it is no GenICam description");
            return;
        }
        if (m_open.size() == kMaxDepth) {
            m_error = QStringLiteral("its elements are nested too deeply");
            return;
        }
        QString outer;
        if (!m_open.isEmpty()) {
            outer = m_open.last().node;
            m_open.last().children.append(element.toString());
        }
        copyStart(element.toString());
        const QStringRef name = m_reader.attributes().value(QLatin1String("Name"));
        // The Name of a variable is the one it has in the formula.
        const bool isOfFormula = element == QLatin1String("pVariable") || element == QLatin1String("Constant")
            || element == QLatin1String("Expression");
        const bool isNode = !name.isEmpty() && !isOfFormula;
        if (isOfFormula && name.isEmpty()) {
            m_error = QStringLiteral("%1 has a %2 without a name").arg(outer, element.toString());
        }
        m_open.append({isNode ? name.toString() : outer, {}});
        if (isNode && element != QLatin1String("EnumEntry")) {
            m_kinds.insert(name.toString(), element.toString());
            if (!outer.isEmpty()) { // an entry of a structure register is read with it
                m_values[name.toString()].append(outer);
            }
        }
        m_text.clear();
    }

    void copyStart(const QString &element)
    {
        m_writer.writeStartElement(element);
        bool isFit = isName(element);
        const QXmlStreamAttributes attributes = m_reader.attributes();
        for (const QXmlStreamAttribute &attribute : attributes) {
            if (attribute.prefix().isEmpty() && isName(attribute.name().toString())) {
                m_writer.writeAttribute(attribute.name().toString(), attribute.value().toString());
                isFit = isFit && isText(attribute.value().toString());
            }
        }
        if (!isFit) {
            m_error = QStringLiteral("it has a name that is none");
        }
    }

    void end()
    {
        const Element closed = m_open.takeLast();
        const QString element = m_reader.name().toString();
        const QString text =
            closed.children.isEmpty() ? m_text.trimmed() : QString(); // between elements it means nothing
        m_writer.writeCharacters(text);
        m_writer.writeEndElement();
        if (!isText(text)) {
            m_error = QStringLiteral("%1 has a text that is none").arg(closed.node);
        }
        if (element == QLatin1String("PowerUp")) {
            m_description.powerUp.append({closed.node.toUtf8(), m_text.toUtf8()});
        } else if (element == QLatin1String("Length")) {
            const int length = text.toInt(nullptr, 0);
            if (length < 1 || length > kMaxRegister) {
                m_error = QStringLiteral("the register %1 has the length \"%2\"").arg(closed.node, text);
            }
        } else if (element.size() > 1 && element[0] == QLatin1Char('p') && element[1].isUpper()) {
            m_references.append({closed.node, element, text});
            if (isOneOf(kValueReferences, element)) {
                m_values[closed.node].append(text);
            }
        }
        for (const auto &needs : kNeeds) {
            if (isOneOf(needs.kinds, element) && !closed.children.contains(QLatin1String(needs.need))
                && !closed.children.contains(QLatin1String(needs.orElse))) {
                m_error = QStringLiteral("%1 has no %2").arg(closed.node, QLatin1String(needs.need));
            }
        }
        for (const auto &place : kPlaces) {
            if (closed.children.contains(QLatin1String(place.element)) && !isOneOf(place.parents, element)) {
                m_error = QStringLiteral("a %1 stands in %2").arg(QLatin1String(place.element), element);
            }
        }
        m_text.clear();
    }

    QString checkReferences()
    {
        if (m_kinds.isEmpty()) {
            return QStringLiteral("it describes no nodes");
        }
        for (const Reference &reference : qAsConst(m_references)) {
            if (!m_kinds.contains(reference.to)) {
                return QStringLiteral("%1 refers to %2, which it does not have").arg(reference.from, reference.to);
            }
            if (!isOneOf(kKinds, m_kinds.value(reference.to)) && !isOneOf(kLists, reference.element)) {
                return QStringLiteral("%1 refers to %2, of a kind that is not known").arg(reference.from, reference.to);
            }
            if (reference.element == QLatin1String("pLength")
                && m_kinds.value(reference.from) != QLatin1String("Register")) {
                return QStringLiteral("%1 has no length of its own").arg(reference.from); // which may become any
            }
            if (reference.element == QLatin1String("pPort") && m_kinds.value(reference.to) != QLatin1String("Port")) {
                return QStringLiteral("%1 takes %2 for a port").arg(reference.from, reference.to);
            }
        }
        for (auto it = m_kinds.cbegin(); it != m_kinds.cend(); ++it) {
            const Cost cost = costOf(it.key(), 1);
            if (cost.reads > kMaxReads || cost.depth > kMaxDepth) {
                return QStringLiteral("the value of %1 refers to itself, or to too many others").arg(it.key());
            }
        }
        return QString();
    }

    Cost costOf(const QString &node, int depth)
    {
        if (depth > kMaxDepth) { // or there is no end to it
            return {1, kMaxDepth};
        }
        const auto known = m_costs.constFind(node);
        if (known != m_costs.constEnd()) {
            return *known;
        }
        Cost sum{1, 1};
        for (const QString &value : m_values.value(node)) {
            const Cost cost = costOf(value, depth + 1);
            sum.reads = qMin(sum.reads + cost.reads, kMaxReads + 1);
            sum.depth = qMax(sum.depth, cost.depth + 1);
            if (sum.reads > kMaxReads || sum.depth > kMaxDepth) {
                break;
            }
        }
        m_costs.insert(node, sum);
        return sum;
    }

    CameraDescription &m_description;
    QXmlStreamReader m_reader;
    QXmlStreamWriter m_writer;
    QString m_error;
    QString m_text;
    QVector<Element> m_open;
    QHash<QString, QString> m_kinds; // element names of the nodes
    QHash<QString, Cost> m_costs;
    QHash<QString, QVector<QString>> m_values;
    QVector<Reference> m_references;
};

} // namespace

QString CameraDescription::fileName(const QString &name)
{
    Q_INIT_RESOURCE(smartcamera); // a static library does not do it by itself
    return name.isEmpty() ? QStringLiteral(":/devices/smartcamera.xml") : name;
}

QByteArray CameraDescription::read(const QString &name, QString *error)
{
    QFile file(fileName(name));
    if (!QFileInfo(file).isFile()) { // a pipe would keep us waiting
        *error = QStringLiteral("there is no such file");
        return {};
    }
    if (!file.open(QIODevice::ReadOnly)) {
        *error = file.errorString();
        return {};
    }
    QByteArray bytes = file.read(kMaxDescription + 1);
    if (file.error() != QFileDevice::NoError) {
        *error = file.errorString();
    } else if (bytes.size() > kMaxDescription) {
        *error = QStringLiteral("the file is too large");
    } else if (bytes.isEmpty()) {
        *error = QStringLiteral("the file is empty");
    }
    return bytes;
}

QString CameraDescription::parse(const QByteArray &text)
{
    return Parser(*this, text).parse();
}
