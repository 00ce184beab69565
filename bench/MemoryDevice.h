#pragma once

#include "Nodes.h"

#include <VyViewerCore/Device.h>

#include <QHash>

/// A device whose calls cost next to nothing. Counts them.
class MemoryDevice final : public Device
{
public:
    explicit MemoryDevice(const Nodes &nodes);

    Nodes nodes;                // not to be given other nodes, only other values
    bool followsSource = false; // whether choosing a trigger source withdraws what belongs to the others
    quint64 calls = 0;

    long getParamInt(const QString &name, int &value, int &min, int &max, int &inc) override;
    long getParamFloat(const QString &name, float &value, float &min, float &max, float &inc) override;
    long getParamBool(const QString &name, bool &value) override { return read(name, &Node::flag, value); }
    long getParamEnum(const QString &name, QString &value, QList<QString> &entries) override;
    long getParamString(const QString &name, QString &value) override { return read(name, &Node::text, value); }
    long setParamInt(const QString &name, int value) override { return write(name, &Node::integer, value); }
    long setParamFloat(const QString &name, float value) override { return write(name, &Node::real, value); }
    long setParamBool(const QString &name, bool value) override { return write(name, &Node::flag, value); }
    long setParamEnum(const QString &name, const QString &value) override;
    long setParamString(const QString &name, const QString &value) override { return write(name, &Node::text, value); }
    long executeCMD(const QString &name) override;
    RuvoNodeType getNodeType(const QString &name) override;
    RuvoNodeAccessMode getNodeAccessMode(const QString &name) override;

private:
    Node *find(const QString &name);
    template <typename Value>
    long read(const QString &name, Value Node::*field, Value &value);
    template <typename Value>
    long write(const QString &name, Value Node::*field, const Value &value);

    Node m_enabled; // every stop configuration is
    QHash<QString, Node *> m_byName;
};
