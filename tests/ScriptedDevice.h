#pragma once

#include <VyViewerCore/Device.h>

#include <QHash>
#include <QStringList>
#include <QVariant>

#include <functional>

/// An in-memory device that writes down every call in order and does as it is told: a node can refuse,
/// adjust, fail, or change its access mode at any moment.
///
/// Calls are written as "type NODE", "mode NODE", "get NODE", "set NODE=VALUE" and "run NODE".
class ScriptedDevice : public Device
{
public:
    struct Node
    {
        RuvoNodeType type = RuvoNodeUnknown;
        RuvoNodeAccessMode mode = RuvoNodeReadWrite;
        QVariant value;
        double min = 0;
        double max = 65535;
        double inc = 1;
        QList<QString> entries;
        bool failsReads = false;
        bool refusesWrites = false;
    };

    /// The node of that name; made on first use, with a type guessed from its name as devices name them.
    Node &node(const QString &name);
    Node &node(const char *name) { return node(QString::fromLatin1(name)); }

    /// Runs after every write and command, so that a test can let the device adjust itself.
    std::function<void(const QString &name)> afterWrite;

    /// Forgets all nodes and calls.
    void reset();

    QStringList calls;
    QStringList takeCalls();
    /// What was written or run, without the reads.
    QStringList writes() const;

    long getParamInt(const QString &name, int &value, int &min, int &max, int &inc) override;
    long getParamFloat(const QString &name, float &value, float &min, float &max, float &inc) override;
    long getParamBool(const QString &name, bool &value) override;
    long getParamEnum(const QString &name, QString &value, QList<QString> &entries) override;
    long getParamString(const QString &name, QString &value) override;
    long setParamInt(const QString &name, int value) override;
    long setParamFloat(const QString &name, float value) override;
    long setParamBool(const QString &name, bool value) override;
    long setParamEnum(const QString &name, const QString &value) override;
    long setParamString(const QString &name, const QString &value) override;
    long executeCMD(const QString &name) override;
    RuvoNodeType getNodeType(const QString &name) override;
    RuvoNodeAccessMode getNodeAccessMode(const QString &name) override;

private:
    const Node *read(const QString &name);
    template <typename Number>
    long readNumber(const QString &name, Number &value, Number &min, Number &max, Number &inc);
    long write(const QString &name, const QVariant &value);

    QHash<QString, Node> m_nodes;
};
