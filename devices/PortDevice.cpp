#include <arv.h> // before Qt

#include "PortDevice.h"

namespace {

struct Contents
{
    const QByteArray xml;
    const std::unique_ptr<RegisterPort> port;
    Reference<ArvGc> genicam; // goes first: it reads the text and the port
};

} // namespace

struct VyPortDevice
{
    ArvDevice parent;
    Contents *contents;
};
struct VyPortDeviceClass
{
    ArvDeviceClass parent;
};

G_DEFINE_TYPE(VyPortDevice, vy_port_device, arv_device_get_type())

namespace {

Contents &contentsOf(gpointer device)
{
    return *static_cast<VyPortDevice *>(device)->contents;
}

gboolean result(bool ok, const QString &reason, GError **error)
{
    if (!ok) {
        g_set_error_literal(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_TRANSFER_ERROR, reason.toUtf8().constData());
    }
    return ok;
}

gboolean readMemory(ArvDevice *device, guint64 address, guint32 size, void *buffer, GError **error)
{
    QString reason;
    const bool ok = contentsOf(device).port->read(address, buffer, size, &reason);
    return result(ok, reason, error);
}

gboolean writeMemory(ArvDevice *device, guint64 address, guint32 size, void *buffer, GError **error)
{
    QString reason;
    const bool ok = contentsOf(device).port->write(address, buffer, size, &reason);
    return result(ok, reason, error);
}

gboolean readRegister(ArvDevice *device, guint64 address, guint32 *value, GError **error)
{
    const gboolean ok = readMemory(device, address, sizeof *value, value, error);
    *value = ok ? GUINT32_FROM_BE(*value) : 0;
    return ok;
}

gboolean writeRegister(ArvDevice *device, guint64 address, guint32 value, GError **error)
{
    guint32 bytes = GUINT32_TO_BE(value);
    return writeMemory(device, address, sizeof bytes, &bytes, error);
}

ArvGc *genicam(ArvDevice *device)
{
    return contentsOf(device).genicam.get();
}

const char *genicamXml(ArvDevice *device, size_t *size)
{
    *size = size_t(contentsOf(device).xml.size());
    return contentsOf(device).xml.constData();
}

void finalize(GObject *object)
{
    delete static_cast<VyPortDevice *>(static_cast<gpointer>(object))->contents;
    G_OBJECT_CLASS(vy_port_device_parent_class)->finalize(object);
}

} // namespace

static void vy_port_device_init(VyPortDevice *) {}

static void vy_port_device_class_init(VyPortDeviceClass *type)
{
    G_OBJECT_CLASS(type)->finalize = finalize;
    type->parent.read_memory = readMemory;
    type->parent.write_memory = writeMemory;
    type->parent.read_register = readRegister;
    type->parent.write_register = writeRegister;
    type->parent.get_genicam = genicam;
    type->parent.get_genicam_xml = genicamXml;
}

void ReferenceDeleter::operator()(void *object) const
{
    g_object_unref(object);
}

DevicePointer newPortDevice(std::unique_ptr<RegisterPort> port, const QByteArray &description)
{
    DevicePointer device(static_cast<ArvDevice *>(g_object_new(vy_port_device_get_type(), nullptr)));
    auto *const contents = new Contents{description, std::move(port), nullptr};
    static_cast<VyPortDevice *>(static_cast<gpointer>(device.get()))->contents = contents;
    contents->genicam.reset(arv_gc_new(device.get(), contents->xml.constData(), size_t(contents->xml.size())));
    return ARV_IS_GC(contents->genicam.get()) ? std::move(device) : nullptr;
}
