#pragma once

#include <QString>

#include <memory>

/// The simulated camera as a GigE Vision device on a network: the same description, power-up values and behaviour
/// as the one in this process. It answers on a thread of its own; the behaviour needs update().
class CameraServer
{
public:
    struct Settings
    {
        QString address;     // IPv4, one of this machine's
        QString serial;      // empty: the description's
        QString description; // file name; empty: the built-in one
    };

    /// Returns null, and the reason in one line, when the description cannot be used, the address is not ours, or
    /// its port is taken. A camera that is returned has been seen to answer.
    static std::unique_ptr<CameraServer> start(const Settings &settings, QString *error);
    ~CameraServer();

    /// Carries out the commands that were given meanwhile; every few milliseconds.
    void update();

private:
    struct Private;
    explicit CameraServer(std::unique_ptr<Private> implementation);

    const std::unique_ptr<Private> d;
};
