#pragma once

#include <QString>
#include <QtGlobal>

/// The way to a camera's registers: its memory in this process, or a network.
class RegisterPort
{
public:
    RegisterPort() = default;
    virtual ~RegisterPort() = default;
    Q_DISABLE_COPY(RegisterPort)

    /// All bytes or none; otherwise false and the reason.
    virtual bool read(quint64 address, void *bytes, quint32 size, QString *error) = 0;
    virtual bool write(quint64 address, const void *bytes, quint32 size, QString *error) = 0;
};
