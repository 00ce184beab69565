#include "MemoryDevice.h"

MemoryDevice::MemoryDevice(const Nodes &source)
    : nodes(source)
{
    m_enabled.flag = true;
    for (size_t number = 2; number < nodes.pages.size(); ++number) {
        m_byName.insert(QStringLiteral("TriggerStopConfig%1Enable").arg(number), &m_enabled);
    }
    for (Nodes::Page &page : nodes.pages) {
        for (Node &node : page) {
            m_byName.insert(node.name, &node);
        }
    }
}

long MemoryDevice::getParamInt(const QString &name, int &value, int &min, int &max, int &inc)
{
    min = 0;
    max = Node::kMaximum;
    inc = 1;
    return read(name, &Node::integer, value);
}

long MemoryDevice::getParamFloat(const QString &name, float &value, float &min, float &max, float &inc)
{
    min = 0;
    max = Node::kMaximum;
    inc = 1;
    return read(name, &Node::real, value);
}

long MemoryDevice::getParamEnum(const QString &name, QString &value, QList<QString> &entries)
{
    ++calls;
    const Node *const node = find(name);
    if (!node) {
        return -1;
    }
    value = node->text;
    entries = node->entries;
    return 0;
}

long MemoryDevice::setParamEnum(const QString &name, const QString &value)
{
    if (followsSource && name == QLatin1String("InputTriggerSource")) {
        nodes.offer(value);
    }
    return write(name, &Node::text, value);
}

long MemoryDevice::executeCMD(const QString &name)
{
    ++calls;
    return find(name) ? 0 : -1;
}

RuvoNodeType MemoryDevice::getNodeType(const QString &name)
{
    ++calls;
    const Node *const node = find(name);
    return node ? node->type : RuvoNodeUnknown;
}

RuvoNodeAccessMode MemoryDevice::getNodeAccessMode(const QString &name)
{
    ++calls;
    const Node *const node = find(name);
    return !node ? RuvoNodeNotImplemented : node->available ? RuvoNodeReadWrite : RuvoNodeNotAvailable;
}

Node *MemoryDevice::find(const QString &name)
{
    return m_byName.value(name);
}

template <typename Value>
long MemoryDevice::read(const QString &name, Value Node::*field, Value &value)
{
    ++calls;
    const Node *const node = find(name);
    if (!node) {
        return -1;
    }
    value = node->*field;
    return 0;
}

template <typename Value>
long MemoryDevice::write(const QString &name, Value Node::*field, const Value &value)
{
    ++calls;
    Node *const node = find(name);
    if (!node) {
        return -1;
    }
    node->*field = value;
    return 0;
}
