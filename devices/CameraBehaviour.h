#pragma once

#include <QByteArray>
#include <QVector>
#include <QtGlobal>

#include <functional>

/// The registers of a simulated camera, wherever they are kept.
class CameraMemory
{
public:
    static constexpr quint32 kSize = 0x10000; // bytes, from address 0

    static bool contains(quint64 address, quint64 size) { return size <= kSize && address <= kSize - size; }

    CameraMemory() = default;
    Q_DISABLE_COPY(CameraMemory)
    virtual ~CameraMemory() = default;
    virtual void read(quint64 address, void *bytes, quint32 size) const = 0;
    virtual void write(quint64 address, const void *bytes, quint32 size) = 0;
};

/// What the simulated camera does of itself: it carries out commands, keeps user sets and counts triggers.
///
/// It works on nothing but the camera's memory, whenever it is told to update(): around every access when the
/// memory is in this process, from time to time when a server hands the memory out.
class CameraBehaviour
{
public:
    struct Registers
    {
        quint64 acquisitionStart, acquisitionStop, acquisitionStatus;
        quint64 softwareTrigger, triggerCount;
        quint64 userSetSelector, userSetLoad, userSetSave;
        quint64 mode, source, autoInterval, sensingWait;
        quint64 contents; // all that a user set holds
        quint32 contentsSize;
        quint32 modeNone, sourceAuto, sourceSensing; // values of the registers `mode` and `source`
    };
    using Clock = std::function<qint64()>; // milliseconds

    /// The memory, not owned, holds the power-up values: they become the user set Default.
    CameraBehaviour(CameraMemory &memory, const Registers &registers, Clock clock);

    void update();

private:
    quint32 value(quint64 address) const;
    void setValue(quint64 address, quint32 value);
    void carryOut(quint64 command, const std::function<void()> &act);
    quint32 ownTriggerInterval() const;
    void countOwnTriggers();
    void saveUserSet();
    void loadUserSet();

    CameraMemory &m_memory;
    const Registers m_registers;
    const Clock m_clock;
    QVector<QByteArray> m_userSets;
    qint64 m_counted = 0; // until when the camera's own triggers are in the counter
};
