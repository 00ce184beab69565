#include "CameraBehaviour.h"

#include <QtEndian>

namespace {
constexpr int kUserSets = 3; // Default, which cannot be saved, and two of the user's
}

CameraBehaviour::CameraBehaviour(CameraMemory &memory, const Registers &registers, Clock clock)
    : m_memory(memory)
    , m_registers(registers)
    , m_clock(std::move(clock))
    , m_counted(m_clock())
{
    QByteArray contents(int(m_registers.contentsSize), '\0');
    m_memory.read(m_registers.contents, contents.data(), m_registers.contentsSize);
    m_userSets.fill(contents, kUserSets);
}

void CameraBehaviour::update()
{
    countOwnTriggers(); // first: with the settings that were in force until now
    carryOut(m_registers.acquisitionStart, [this] {
        setValue(m_registers.acquisitionStatus, 1);
        m_counted = m_clock();
    });
    carryOut(m_registers.acquisitionStop, [this] { setValue(m_registers.acquisitionStatus, 0); });
    carryOut(m_registers.softwareTrigger,
             [this] { setValue(m_registers.triggerCount, value(m_registers.triggerCount) + 1); });
    carryOut(m_registers.userSetSave, [this] { saveUserSet(); });
    carryOut(m_registers.userSetLoad, [this] { loadUserSet(); });
}

quint32 CameraBehaviour::value(quint64 address) const
{
    quint32 bytes = 0;
    m_memory.read(address, &bytes, sizeof bytes);
    return qFromBigEndian(bytes);
}

void CameraBehaviour::setValue(quint64 address, quint32 value)
{
    const quint32 bytes = qToBigEndian(value);
    m_memory.write(address, &bytes, sizeof bytes);
}

/// Does what a command asks for, if it was given. Only then it shows as done: a server's clients look at any moment.
void CameraBehaviour::carryOut(quint64 command, const std::function<void()> &act)
{
    if (value(command) != 0) {
        act();
        setValue(command, 0);
    }
}

/// In milliseconds; 0 while the camera does not trigger itself.
quint32 CameraBehaviour::ownTriggerInterval() const
{
    if (value(m_registers.acquisitionStatus) == 0 || value(m_registers.mode) == m_registers.modeNone) {
        return 0;
    }
    const quint32 source = value(m_registers.source);
    if (source == m_registers.sourceAuto) {
        return value(m_registers.autoInterval);
    }
    return source == m_registers.sourceSensing ? value(m_registers.sensingWait) : 0;
}

void CameraBehaviour::countOwnTriggers()
{
    const quint32 interval = ownTriggerInterval();
    if (interval == 0) {
        return;
    }
    const qint64 triggers = (m_clock() - m_counted) / interval;
    m_counted += triggers * interval; // what is left of an interval counts for the next trigger
    setValue(m_registers.triggerCount, value(m_registers.triggerCount) + quint32(triggers));
}

void CameraBehaviour::saveUserSet()
{
    const quint32 selected = value(m_registers.userSetSelector);
    if (selected > 0 && selected < kUserSets) {
        QByteArray &set = m_userSets[int(selected)];
        m_memory.read(m_registers.contents, set.data(), quint32(set.size()));
    }
}

void CameraBehaviour::loadUserSet()
{
    const quint32 selected = value(m_registers.userSetSelector);
    if (selected < kUserSets && value(m_registers.acquisitionStatus) == 0) {
        const QByteArray &set = m_userSets.at(int(selected));
        m_memory.write(m_registers.contents, set.constData(), quint32(set.size()));
    }
}
