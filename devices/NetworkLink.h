#pragma once

#include "RegisterPort.h"

#include <QByteArray>
#include <QCoreApplication>

#include <functional>
#include <memory>

/// The connection to one GigE Vision camera.
///
/// All that is said to the camera is said on a thread of the link's own, so that whoever asks waits no longer than
/// he wants to: opening, releasing and retrying take seconds when the camera is gone. The first request that is not
/// answered in time, or the loss of control, ends the connection for good; from then on every request fails at
/// once. One thread may use a link.
class NetworkLink final : public RegisterPort
{
    Q_DECLARE_TR_FUNCTIONS(NetworkLink)
public:
    static constexpr quint16 kControlPort = 3956; ///< of every such camera

    /// Takes control of the camera at an IPv4 address, unless somebody else has it. Waits up to some five seconds
    /// for it, and as long again where the same camera is just being released. Null and the reason when it cannot
    /// be opened.
    static std::unique_ptr<NetworkLink> open(const QString &address, QString *error);

    /// Does not wait for the camera to be released; the end of the process does.
    ~NetworkLink() override;

    QByteArray description() const; ///< in GenICam's XML, unchecked
    bool isController() const;      ///< else somebody else is
    QString lostReason() const;     ///< empty while the connection stands
    quint64 requests() const;       ///< made so far

    /// Called once, on any thread, when the connection is lost; it must not call the link.
    void onLost(std::function<void()> callback);

    /// One request for up to 512 bytes, one for each 512 bytes beyond. Both wait two seconds at most.
    bool read(quint64 address, void *bytes, quint32 size, QString *error) override;
    bool write(quint64 address, const void *bytes, quint32 size, QString *error) override;

private:
    struct Shared;
    explicit NetworkLink(std::shared_ptr<Shared> shared);
    bool request(quint64 address, QByteArray &bytes, bool isWrite, QString *error);

    const std::shared_ptr<Shared> m_shared; // with the thread
    quint64 m_requests = 0;
};
