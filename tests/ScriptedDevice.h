#pragma once

#include "Literal.h"

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
        RuvoNodeType type = RuvoNodeInteger;
        QVariant value = 7;
        QList<QString> entries = {};
        RuvoNodeAccessMode mode = RuvoNodeReadWrite;
        double min = 0;
        double max = 65535;
        double inc = 1;
        bool failsReads = false;
        bool refusesWrites = false;

        /// What the device last answered about it, and how often it has given a value.
        struct Answer
        {
            RuvoNodeType type = RuvoNodeUnknown;
            int modes = 0;
            int values = 0;
            RuvoNodeAccessMode mode = RuvoNodeNotImplemented;
            QVariant value = {};
            QList<QString> entries = {};
            double min = 0;
            double max = 0;
        } answer = {};
    };

    /// The node of that name; made on first use, with a type guessed from its name as devices name them.
    Node &node(const QString &name);
    Node &node(const char *name) { return node(QString::fromLatin1(name)); }
    /// Forgets all nodes and calls.
    void reset();

    /// Hears of every call, before it is answered.
    std::function<void(const QString &call)> onCall;

    long failure = -1; // the status of what fails
    QStringList calls;
    QStringList takeCalls();
    static bool isWrite(const QString &call)
    {
        return call.startsWith("set "_s) || call.startsWith("run "_s);
    }
    /// What was written or run, without the reads.
    QStringList writes() const;
    /// The calls by which a row that is shown refreshes itself.
    static QStringList refreshOf(const QString &name);

    long getParamInt(const QString &name, int &value, int &min, int &max, int &inc) override
    {
        return readNumber(name, value, min, max, inc);
    }
    long getParamFloat(const QString &name, float &value, float &min, float &max, float &inc) override
    {
        return readNumber(name, value, min, max, inc);
    }
    long getParamBool(const QString &name, bool &value) override { return read(name, value); }
    long getParamEnum(const QString &name, QString &value, QList<QString> &entries) override;
    long getParamString(const QString &name, QString &value) override { return read(name, value); }
    long setParamInt(const QString &name, int value) override { return write(name, value); }
    long setParamFloat(const QString &name, float value) override { return write(name, value); }
    long setParamBool(const QString &name, bool value) override { return write(name, value); }
    long setParamEnum(const QString &name, const QString &value) override { return write(name, value); }
    long setParamString(const QString &name, const QString &value) override { return write(name, value); }
    long executeCMD(const QString &name) override;
    RuvoNodeType getNodeType(const QString &name) override;
    RuvoNodeAccessMode getNodeAccessMode(const QString &name) override;

private:
    void note(const QString &call);
    template <typename Value>
    long read(const QString &name, Value &value);
    template <typename Number>
    long readNumber(const QString &name, Number &value, Number &min, Number &max, Number &inc);
    long write(const QString &name, const QVariant &value);

    QHash<QString, Node> m_nodes;
};
