#pragma once

#include "VyViewerCore/Device.h"

#include <QCoreApplication>
#include <QStringList>

#include <functional>
#include <memory>

class NetworkLink;
class RegisterPort;

/// A GenICam device, or its simulation inside this process, as the host sees it.
///
/// Beyond what Device promises, every call first looks at the node's access mode: what is not readable is not
/// read, and nothing is written that is locked, unavailable, out of range, off its increment or no entry of
/// now. Not thread-safe: one thread per device.
class GenicamDevice final : public Device
{
    Q_DECLARE_TR_FUNCTIONS(GenicamDevice)
public:
    enum Status : long {
        Ok = 0,
        NoSuchNode,   ///< no node of that name, or it is of another type
        NoAccess,     ///< the node cannot be read, written or executed at this moment
        InvalidValue, ///< out of range, off the increment, not an available entry, too long
        DeviceFailure ///< the device did not answer, or not with a value of the node's type
    };

    /// Milliseconds from any fixed moment; never runs backwards.
    using Clock = std::function<qint64()>;

    /// The simulated camera. An empty file name stands for the built-in description; `clock` replaces the
    /// real time by which it triggers itself. Returns null, and the reason in one line, when the description
    /// cannot be used.
    static std::unique_ptr<GenicamDevice> openBuiltIn(const QString &descriptionFile, QString *error, Clock clock = {});
    static std::unique_ptr<GenicamDevice> openDescription(const QByteArray &description, QString *error,
                                                          Clock clock = {});

    /// The GigE Vision camera at an IPv4 address. Takes control of it, unless somebody else has it: then it can
    /// only be read. Blocks, some five seconds when nothing answers: not for the GUI thread. The result may be
    /// handed to another thread. Returns null, and the reason in one line, when it cannot be opened.
    static std::unique_ptr<GenicamDevice> openNetwork(const QString &address, QString *error);

    /// A camera anywhere, of which there are the description and a port to its registers. `link` is that port
    /// where it is a network.
    static std::unique_ptr<GenicamDevice> openPort(std::unique_ptr<RegisterPort> port, const QByteArray &description,
                                                   QString *error, NetworkLink *link = nullptr);

    /// The one at an address or, where that is empty, the simulated one.
    static std::unique_ptr<GenicamDevice> open(const QString &address, const QString &descriptionFile, QString *error);

    /// Does not wait for a camera on the network to be released.
    ~GenicamDevice() override;

    /// Why the last failed call failed, in words for the log or the status bar.
    QString lastError() const;

    /// Somebody else controls the camera: nothing can be written.
    bool isReadOnly() const;

    /// Why a camera on the network is lost, or empty. It is after the first request that was not answered in
    /// time, two seconds at most, or when it was restarted or obeys somebody else; from then on every call fails
    /// at once. `callback` is called once, on any thread, and must not call the device.
    QString lostReason() const;
    void onLost(std::function<void()> callback);

    /// What is read over a network is kept until a write, a command, or the return to the event loop. Whoever
    /// learns otherwise that the camera has changed drops it.
    void dropCache();
    void setCaching(bool on);
    /// Requests sent to the camera so far; 0 for one in this process.
    quint64 roundTrips() const;

    /// Every feature of the camera's own description, in its order; of each the unit and an explanation, empty
    /// where the description gives none.
    QStringList nodes() const;
    QString unit(const QString &name) const;
    QString description(const QString &name) const;

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
    struct Private;
    explicit GenicamDevice(std::unique_ptr<Private> implementation);

    const std::unique_ptr<Private> d;
};
