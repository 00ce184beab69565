#include "Failure.h" // before Qt

#include "CameraServer.h"

#include "CameraDescription.h"
#include "NetworkLink.h"
#include "SimulatedCamera.h"

#include <QTemporaryFile>

namespace {

constexpr quint64 kSerialRegister = 0xd8; // GigE Vision's
constexpr int kSerialSize = 16;

/// The memory of the server, which hands it out on its own thread.
class Memory final : public CameraMemory
{
public:
    explicit Memory(ArvFakeCamera *camera)
        : m_camera(camera)
    {}
    void read(quint64 address, void *bytes, quint32 size) const override
    {
        arv_fake_camera_read_memory(m_camera, quint32(address), size, bytes);
    }
    void write(quint64 address, const void *bytes, quint32 size) override
    {
        arv_fake_camera_write_memory(m_camera, quint32(address), size, bytes);
    }

private:
    ArvFakeCamera *const m_camera; // the server's
};

/// Why the address cannot be served, or empty: nothing that follows would tell.
QString checkAddress(GInetAddress *address)
{
    Failure failure;
    const Reference<GSocket> socket(
        g_socket_new(G_SOCKET_FAMILY_IPV4, G_SOCKET_TYPE_DATAGRAM, G_SOCKET_PROTOCOL_UDP, failure.slot()));
    const Reference<GSocketAddress> local(g_inet_socket_address_new(address, NetworkLink::kControlPort));
    return socket && g_socket_bind(socket.get(), local.get(), FALSE, failure.slot()) ? QString() : failure.text();
}

/// Whether it is this camera that answers.
QString checkAnswer(GInetAddress *address, const QByteArray &serial)
{
    Failure failure;
    const DevicePointer client(arv_gv_device_new(address, address, failure.slot()));
    char answer[kSerialSize + 1] = {};
    if (client && arv_device_read_memory(client.get(), kSerialRegister, kSerialSize, answer, failure.slot())) {
        return serial == answer ? QString() : QStringLiteral("another camera answers there");
    }
    return QStringLiteral("the camera does not answer (%1)").arg(failure.text());
}

} // namespace

struct CameraServer::Private
{
    QString start(const Settings &settings);

    QTemporaryFile description;
    Reference<GInetAddress> address;
    Reference<ArvGvFakeCamera> server;
    SimulatedCamera camera = {}; // goes before the server, in whose memory it works
};

QString CameraServer::Private::start(const Settings &settings)
{
    address.reset(g_inet_address_new_from_string(settings.address.toUtf8().constData()));
    if (!address || g_inet_address_get_family(address.get()) != G_SOCKET_FAMILY_IPV4) {
        return QStringLiteral("'%1' is not an IPv4 address").arg(settings.address);
    }
    QString error;
    const QByteArray xml = CameraDescription::read(settings.description, &error);
    if (!error.isEmpty()) {
        return QStringLiteral("%1: %2").arg(CameraDescription::fileName(settings.description), error);
    }
    if (!description.open() || description.write(xml) != xml.size() || !description.flush()) {
        return description.errorString();
    }
    error = checkAddress(address.get());
    if (!error.isEmpty()) {
        return QStringLiteral("%1, port %2: %3").arg(settings.address).arg(NetworkLink::kControlPort).arg(error);
    }
    server.reset(arv_gv_fake_camera_new_full(settings.address.toUtf8().constData(), nullptr,
                                             description.fileName().toUtf8().constData()));
    if (!arv_gv_fake_camera_is_running(server.get())) {
        return QStringLiteral("%1 is on none of this machine's network interfaces").arg(settings.address);
    }
    auto memory = std::make_unique<Memory>(arv_gv_fake_camera_get_fake_camera(server.get()));
    camera = SimulatedCamera::switchOn(std::move(memory), xml, settings.serial, {}, &error);
    if (!error.isEmpty()) {
        return QStringLiteral("%1: %2").arg(CameraDescription::fileName(settings.description), error.simplified());
    }
    char serial[kSerialSize + 1] = {};
    arv_device_read_memory(camera.device.get(), kSerialRegister, kSerialSize, serial, nullptr);
    error = checkAnswer(address.get(), serial);
    return error.isEmpty() ? QString() : QStringLiteral("%1: %2").arg(settings.address, error);
}

std::unique_ptr<CameraServer> CameraServer::start(const Settings &settings, QString *error)
{
    auto implementation = std::make_unique<Private>();
    *error = implementation->start(settings);
    return error->isEmpty() ? std::unique_ptr<CameraServer>(new CameraServer(std::move(implementation))) : nullptr;
}

CameraServer::CameraServer(std::unique_ptr<Private> implementation)
    : d(std::move(implementation))
{}

CameraServer::~CameraServer() = default;

void CameraServer::update()
{
    d->camera.behaviour->update();
}
