#include "Failure.h" // before Qt

#include "NetworkLink.h"

#include "PortDevice.h"

#include <QHash>

#include <chrono>
#include <condition_variable>
#include <cstring>
#include <deque>
#include <mutex>
#include <thread>

namespace {

constexpr std::chrono::milliseconds kTimeout(2000); // for one request, with its repetitions
constexpr quint32 kRequestSize = 512;               // bytes that one packet carries

/// The cameras that are being released. Until that is done they are reserved: who opens one again waits for it, and
/// so does the end of the process.
class Releases
{
public:
    void begin(const QByteArray &address) { add(address, 1); }
    void end(const QByteArray &address) { add(address, -1); }
    void wait(const QByteArray &address)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [this, &address] { return !m_counts.contains(address); });
    }
    ~Releases()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [this] { return m_counts.isEmpty(); });
    }

private:
    void add(const QByteArray &address, int change)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if ((m_counts[address] += change) == 0) {
            m_counts.remove(address);
        }
        m_changed.notify_all();
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    QHash<QByteArray, int> m_counts;
};

Releases &releases()
{
    static Releases instance;
    return instance;
}

/// Our own address on the network where the camera is: nothing is sent to find out.
GInetAddress *localAddress(GInetAddress *remote, GError **error)
{
    const Reference<GSocket> socket(
        g_socket_new(G_SOCKET_FAMILY_IPV4, G_SOCKET_TYPE_DATAGRAM, G_SOCKET_PROTOCOL_UDP, error));
    const Reference<GSocketAddress> target(g_inet_socket_address_new(remote, NetworkLink::kControlPort));
    if (!socket || !g_socket_connect(socket.get(), target.get(), nullptr, error)) {
        return nullptr;
    }
    const Reference<GSocketAddress> local(g_socket_get_local_address(socket.get(), error));
    return local ? G_INET_ADDRESS(g_object_ref(g_inet_socket_address_get_address(G_INET_SOCKET_ADDRESS(local.get()))))
                 : nullptr;
}

DevicePointer openDevice(const QByteArray &address, QString *error)
{
    const Reference<GInetAddress> remote(g_inet_address_new_from_string(address.constData()));
    if (!remote || g_inet_address_get_family(remote.get()) != G_SOCKET_FAMILY_IPV4
        || g_inet_address_get_is_any(remote.get()) || g_inet_address_get_is_multicast(remote.get())) {
        *error = NetworkLink::tr("it is not the IPv4 address of a camera, such as 192.168.0.10");
        return nullptr;
    }
    Failure failure;
    const Reference<GInetAddress> local(localAddress(remote.get(), failure.slot()));
    DevicePointer device(local ? arv_gv_device_new(local.get(), remote.get(), failure.slot()) : nullptr);
    if (!device) {
        const bool isSilent = failure.is(ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_TIMEOUT);
        *error = isSilent ? NetworkLink::tr("no camera answers") : failure.text();
    }
    return device;
}

} // namespace

struct NetworkLink::Shared
{
    struct Request
    {
        quint64 address;
        QByteArray bytes;
        bool isWrite;
        bool done = false;
        QString error;
    };

    explicit Shared(QByteArray of)
        : address(std::move(of))
    {}

    void run();
    bool open(DevicePointer &device);
    static bool serve(ArvDevice *device, Request &request);
    void lose(const QString &reason);
    void release();

    const QByteArray address;
    std::mutex mutex; // for all that follows
    std::condition_variable changed;
    enum { Opening, Open, Failed, Releasing } state = Opening;
    std::deque<std::shared_ptr<Request>> queue;
    QString error; // of opening
    QString lost;  // why, once it is
    std::function<void()> onLost;
    QByteArray description;
    bool isController = false;
};

bool NetworkLink::Shared::open(DevicePointer &device)
{
    QString why;
    device = openDevice(address, &why);
    const std::lock_guard<std::mutex> lock(mutex);
    if (device) {
        size_t size = 0;
        const char *const xml = arv_device_get_genicam_xml(device.get(), &size);
        description = QByteArray(xml, int(size));
        isController = arv_gv_device_is_controller(ARV_GV_DEVICE(device.get()));
    }
    error = why;
    state = device ? Open : Failed;
    changed.notify_all();
    return bool(device);
}

void NetworkLink::Shared::run()
{
    DevicePointer device;
    if (!open(device)) {
        return;
    }
    // On the heartbeat's thread. Releasing the device ends that thread, and we outlive the device.
    const gulong handler =
        g_signal_connect(device.get(), "control-lost", G_CALLBACK(+[](ArvDevice *, gpointer shared) {
                             static_cast<Shared *>(shared)->lose(
                                 tr("The camera is gone, was restarted, or obeys another program now."));
                         }),
                         this);
    std::unique_lock<std::mutex> lock(mutex);
    while (state == Open) {
        if (queue.empty()) {
            changed.wait(lock);
            continue;
        }
        const std::shared_ptr<Request> request = queue.front();
        queue.pop_front();
        lock.unlock();
        const bool answered = serve(device.get(), *request);
        if (!answered) {
            lose(tr("The camera does not answer any more."));
        }
        lock.lock();
        request->done = true;
        changed.notify_all();
    }
    lock.unlock();
    // While the signal is being emitted the heartbeat's thread holds a reference. Were that the last, the thread would
    // wait for its own end; without a handler there is no further emission.
    g_signal_handler_disconnect(device.get(), handler);
    while (g_atomic_int_get(&G_OBJECT(device.get())->ref_count) > 1) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    device.reset();
    releases().end(address);
}

/// Whether the camera answered, if only with a refusal.
bool NetworkLink::Shared::serve(ArvDevice *device, Request &request)
{
    Failure failure;
    const auto size = quint32(request.bytes.size());
    const bool ok = request.isWrite
        ? arv_device_write_memory(device, request.address, size, request.bytes.data(), failure.slot())
        : arv_device_read_memory(device, request.address, size, request.bytes.data(), failure.slot());
    if (ok) {
        return true;
    }
    request.error = failure.text();
    return failure && failure.error->domain == ARV_DEVICE_ERROR
        && !failure.is(ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_TIMEOUT)
        && !failure.is(ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_NOT_CONNECTED); // else it may be the network that says no
}

void NetworkLink::Shared::lose(const QString &reason)
{
    const std::lock_guard<std::mutex> lock(mutex);
    if (!lost.isEmpty() || state != Open) {
        return;
    }
    lost = reason;
    release(); // at once: it may take its time, and who opens the camera again waits for it
    if (onLost) {
        onLost(); // under the lock, so that nobody who has closed the link is called
    }
}

/// Has the thread let go of the camera. Under the lock.
void NetworkLink::Shared::release()
{
    if (state == Open) {
        state = Releasing;
        releases().begin(address);
        changed.notify_all();
    }
}

std::unique_ptr<NetworkLink> NetworkLink::open(const QString &address, QString *error)
{
    const auto shared = std::make_shared<Shared>(address.toUtf8());
    releases().wait(shared->address);
    std::thread([shared] { shared->run(); }).detach();
    std::unique_lock<std::mutex> lock(shared->mutex);
    shared->changed.wait(lock, [&shared] { return shared->state != Shared::Opening; });
    *error = shared->error;
    return shared->state == Shared::Failed ? nullptr : std::unique_ptr<NetworkLink>(new NetworkLink(shared));
}

NetworkLink::NetworkLink(std::shared_ptr<Shared> shared)
    : m_shared(std::move(shared))
{}

NetworkLink::~NetworkLink()
{
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    m_shared->onLost = nullptr;
    m_shared->release();
}

QByteArray NetworkLink::description() const
{
    return m_shared->description; // as it was opened
}

bool NetworkLink::isController() const
{
    return m_shared->isController;
}

QString NetworkLink::lostReason() const
{
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    return m_shared->lost;
}

quint64 NetworkLink::requests() const
{
    return m_requests;
}

void NetworkLink::onLost(std::function<void()> callback)
{
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    if (m_shared->lost.isEmpty()) {
        m_shared->onLost = std::move(callback);
    } else {
        callback();
    }
}

bool NetworkLink::read(quint64 address, void *bytes, quint32 size, QString *error)
{
    QByteArray answer(int(size), '\0');
    const bool ok = request(address, answer, false, error);
    if (ok) {
        std::memcpy(bytes, answer.constData(), size);
    }
    return ok;
}

bool NetworkLink::write(quint64 address, const void *bytes, quint32 size, QString *error)
{
    QByteArray data(static_cast<const char *>(bytes), int(size));
    return request(address, data, true, error);
}

bool NetworkLink::request(quint64 address, QByteArray &bytes, bool isWrite, QString *error)
{
    const auto request =
        std::make_shared<Shared::Request>(Shared::Request{address, std::move(bytes), isWrite, false, {}});
    std::unique_lock<std::mutex> lock(m_shared->mutex);
    if (m_shared->lost.isEmpty()) {
        m_requests += (quint32(request->bytes.size()) + kRequestSize - 1) / kRequestSize;
        m_shared->queue.push_back(request);
        m_shared->changed.notify_all();
        const bool inTime = m_shared->changed.wait_for(lock, kTimeout, [this, &request] {
            return request->done || !m_shared->lost.isEmpty();
        });
        if (!inTime) {
            lock.unlock();
            m_shared->lose(tr("The camera does not answer any more."));
            lock.lock();
        }
    }
    if (!m_shared->lost.isEmpty() || !request->error.isEmpty()) {
        *error = m_shared->lost.isEmpty() ? request->error : m_shared->lost;
        return false;
    }
    bytes = std::move(request->bytes);
    return true;
}
