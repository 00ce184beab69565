#include <arv.h> // before Qt

#include "BuiltInCamera.h"
#include "CameraDescription.h"

#include <cstring>
#include <memory>
#include <vector>

namespace {

constexpr std::size_t kMemorySize = 0x10000;

class Camera final : public CameraMemory
{
public:
    explicit Camera(const QByteArray &description) : xml(description), m_bytes(kMemorySize) {}
    ~Camera() override { g_clear_object(&genicam); }

    bool contains(quint64 address, quint32 size) const
    {
        return size <= m_bytes.size() && address <= m_bytes.size() - size;
    }
    void read(quint64 address, void *bytes, quint32 size) const override
    {
        std::memcpy(bytes, m_bytes.data() + address, size);
    }
    void write(quint64 address, const void *bytes, quint32 size) override
    {
        std::memcpy(m_bytes.data() + address, bytes, size);
    }
    void update() const
    {
        if (behaviour) {
            behaviour->update();
        }
    }

    const QByteArray xml;
    ArvGc *genicam = nullptr;
    std::unique_ptr<CameraBehaviour> behaviour; // null until the power-up values are in the memory

private:
    std::vector<uchar> m_bytes;
};

} // namespace

struct VyBuiltInCamera { ArvDevice parent; Camera *camera; };
struct VyBuiltInCameraClass { ArvDeviceClass parent; };

G_DEFINE_TYPE(VyBuiltInCamera, vy_built_in_camera, arv_device_get_type())

namespace {

Camera &cameraOf(gpointer device)
{
    return *static_cast<VyBuiltInCamera *>(device)->camera;
}

gboolean checkRange(ArvDevice *device, guint64 address, guint32 size, GError **error)
{
    if (cameraOf(device).contains(address, size)) {
        return TRUE;
    }
    g_set_error(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_ADDRESS,
                "no memory at 0x%" G_GINT64_MODIFIER "x", address);
    return FALSE;
}

gboolean readMemory(ArvDevice *device, guint64 address, guint32 size, void *buffer, GError **error)
{
    if (!checkRange(device, address, size, error)) {
        return FALSE;
    }
    cameraOf(device).update();
    cameraOf(device).read(address, buffer, size);
    return TRUE;
}

gboolean writeMemory(ArvDevice *device, guint64 address, guint32 size, void *buffer, GError **error)
{
    if (!checkRange(device, address, size, error)) {
        return FALSE;
    }
    cameraOf(device).update(); // what happened before this write happened with the old settings
    cameraOf(device).write(address, buffer, size);
    cameraOf(device).update();
    return TRUE;
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
    return cameraOf(device).genicam;
}

const char *genicamXml(ArvDevice *device, size_t *size)
{
    *size = size_t(cameraOf(device).xml.size());
    return cameraOf(device).xml.constData();
}

void finalize(GObject *object)
{
    delete static_cast<VyBuiltInCamera *>(static_cast<gpointer>(object))->camera;
    G_OBJECT_CLASS(vy_built_in_camera_parent_class)->finalize(object);
}

/// Finds a register of the behaviour by its node, so that addresses stand in the description only.
quint64 findRegister(ArvGc *gc, const char *name, quint32 size, QString *missing)
{
    ArvGcNode *node = arv_gc_get_node(gc, name);
    GError *failure = nullptr;
    if (ARV_IS_GC_REGISTER(node)) {
        const quint64 address = arv_gc_register_get_address(ARV_GC_REGISTER(node), &failure);
        const quint64 length = failure ? 0 : arv_gc_register_get_length(ARV_GC_REGISTER(node), &failure);
        if (!failure && (size ? length == size : length <= kMemorySize) && address <= kMemorySize - length) {
            return address;
        }
    }
    g_clear_error(&failure);
    *missing = QStringLiteral("register %1").arg(QLatin1String(name));
    return 0;
}

quint32 findEntry(ArvGc *gc, const char *enumeration, const char *name, QString *missing)
{
    ArvGcNode *node = arv_gc_get_node(gc, enumeration);
    const GSList *entry = ARV_IS_GC_ENUMERATION(node) ? arv_gc_enumeration_get_entries(ARV_GC_ENUMERATION(node)) : nullptr;
    for (; entry; entry = entry->next) {
        if (!qstrcmp(arv_gc_feature_node_get_name(ARV_GC_FEATURE_NODE(entry->data)), name)) {
            return quint32(arv_gc_enum_entry_get_value(ARV_GC_ENUM_ENTRY(entry->data), nullptr));
        }
    }
    *missing = QStringLiteral("entry %1 of %2").arg(QLatin1String(name), QLatin1String(enumeration));
    return 0;
}

CameraBehaviour::Registers findRegisters(ArvGc *gc, QString *missing)
{
    CameraBehaviour::Registers registers = {};
    const struct { quint64 CameraBehaviour::Registers::*address; const char *name; } table[] = {
        {&CameraBehaviour::Registers::acquisitionStart,  "AcquisitionStartReg"},
        {&CameraBehaviour::Registers::acquisitionStop,   "AcquisitionStopReg"},
        {&CameraBehaviour::Registers::acquisitionStatus, "AcquisitionStatusReg"},
        {&CameraBehaviour::Registers::softwareTrigger,   "InputSoftwareTriggerReg"},
        {&CameraBehaviour::Registers::triggerCount,      "TriggerCountReg"},
        {&CameraBehaviour::Registers::userSetSelector,   "UserSetSelectorReg"},
        {&CameraBehaviour::Registers::userSetLoad,       "UserSetLoadReg"},
        {&CameraBehaviour::Registers::userSetSave,       "UserSetSaveReg"},
        {&CameraBehaviour::Registers::mode,              "InputTriggerModeReg"},
        {&CameraBehaviour::Registers::source,            "InputTriggerSourceReg"},
        {&CameraBehaviour::Registers::autoInterval,      "TriggerAutoIntervalReg"},
        {&CameraBehaviour::Registers::sensingWait,       "TriggerSensingWaitPeriodReg"},
    };
    for (const auto &row : table) {
        registers.*row.address = findRegister(gc, row.name, sizeof(quint32), missing);
    }
    registers.contents = findRegister(gc, "UserSetContents", 0, missing);
    if (missing->isEmpty()) {
        registers.contentsSize = quint32(arv_gc_register_get_length(ARV_GC_REGISTER(arv_gc_get_node(gc, "UserSetContents")), nullptr));
    }
    registers.modeNone = findEntry(gc, "InputTriggerMode", "None", missing);
    registers.sourceAuto = findEntry(gc, "InputTriggerSource", "AutoTrigger", missing);
    registers.sourceSensing = findEntry(gc, "InputTriggerSource", "SensingTrigger", missing);
    return registers;
}

/// Past availability and locks, which are for the user; not past the ranges.
QString writePowerUpValue(ArvGc *gc, const QByteArray &name, const QByteArray &text)
{
    ArvGcNode *node = arv_gc_get_node(gc, name.constData());
    if (!ARV_IS_GC_FEATURE_NODE(node)) {
        return QStringLiteral("%1 cannot have a power-up value").arg(QString::fromUtf8(name));
    }
    GError *failure = nullptr;
    arv_gc_feature_node_set_value_from_string(ARV_GC_FEATURE_NODE(node), text.constData(), &failure);
    if (!failure) {
        return QString();
    }
    QString error = QStringLiteral("the power-up value of %1: %2").arg(QString::fromUtf8(name), QString::fromUtf8(failure->message));
    g_error_free(failure);
    return error;
}

QString switchOn(ArvDevice *device, const CameraDescription &description, CameraBehaviour::Clock clock)
{
    Camera &camera = cameraOf(device);
    camera.genicam = arv_gc_new(device, camera.xml.constData(), size_t(camera.xml.size()));
    if (!ARV_IS_GC(camera.genicam)) {
        return QStringLiteral("it is no GenICam description");
    }
    arv_gc_set_range_check_policy(camera.genicam, ARV_RANGE_CHECK_POLICY_ENABLE);
    for (const auto &value : description.powerUp) {
        QString error = writePowerUpValue(camera.genicam, value.first, value.second);
        if (!error.isEmpty()) {
            return error;
        }
    }
    QString missing;
    const CameraBehaviour::Registers registers = findRegisters(camera.genicam, &missing);
    if (missing.isEmpty()) {
        camera.behaviour = std::make_unique<CameraBehaviour>(camera, registers, std::move(clock));
    }
    return missing.isEmpty() ? QString() : QStringLiteral("it has no %1, which the camera works with").arg(missing);
}

} // namespace

static void vy_built_in_camera_init(VyBuiltInCamera *)
{
}

static void vy_built_in_camera_class_init(VyBuiltInCameraClass *type)
{
    G_OBJECT_CLASS(type)->finalize = finalize;
    type->parent.read_memory = readMemory;
    type->parent.write_memory = writeMemory;
    type->parent.read_register = readRegister;
    type->parent.write_register = writeRegister;
    type->parent.get_genicam = genicam;
    type->parent.get_genicam_xml = genicamXml;
}

ArvDevice *newBuiltInCamera(const QByteArray &xml, CameraBehaviour::Clock clock, QString *error)
{
    CameraDescription description;
    *error = description.parse(xml);
    if (!error->isEmpty()) {
        return nullptr;
    }
    gpointer object = g_object_new(vy_built_in_camera_get_type(), nullptr);
    static_cast<VyBuiltInCamera *>(object)->camera = new Camera(xml);
    *error = switchOn(ARV_DEVICE(object), description, std::move(clock));
    if (!error->isEmpty()) {
        g_object_unref(object);
        return nullptr;
    }
    return ARV_DEVICE(object);
}
