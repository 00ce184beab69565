#include "Failure.h" // before Qt

#include "SimulatedCamera.h"

#include "CameraDescription.h"

#include <chrono>

namespace {

constexpr char kSerialNode[] = "DeviceSerialNumber";

class MemoryPort final : public RegisterPort
{
public:
    explicit MemoryPort(std::unique_ptr<CameraMemory> owned)
        : memory(std::move(owned))
    {}

    bool read(quint64 address, void *bytes, quint32 size, QString *error) override
    {
        if (!contains(address, size, error)) {
            return false;
        }
        update();
        memory->read(address, bytes, size);
        return true;
    }
    bool write(quint64 address, const void *bytes, quint32 size, QString *error) override
    {
        if (!contains(address, size, error)) {
            return false;
        }
        update(); // what happened before this write happened with the old settings
        memory->write(address, bytes, size);
        update();
        return true;
    }

    const std::unique_ptr<CameraMemory> memory;
    std::unique_ptr<CameraBehaviour> behaviour; // null until the power-up values are in the memory

private:
    static bool contains(quint64 address, quint32 size, QString *error)
    {
        if (CameraMemory::contains(address, size)) {
            return true;
        }
        *error = QStringLiteral("no memory at 0x%1").arg(address, 0, 16);
        return false;
    }
    void update() const
    {
        if (behaviour) {
            behaviour->update();
        }
    }
};

qint64 realTime()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

/// Finds a register of the behaviour by its node, so that addresses stand in the description only.
quint64 findRegister(ArvGc *gc, const char *name, quint32 size, QString *missing)
{
    ArvGcNode *node = arv_gc_get_node(gc, name);
    if (ARV_IS_GC_REGISTER(node)) {
        Failure failure;
        const quint64 address = arv_gc_register_get_address(ARV_GC_REGISTER(node), failure.slot());
        const quint64 length = failure ? 0 : arv_gc_register_get_length(ARV_GC_REGISTER(node), failure.slot());
        if (!failure && (!size || length == size) && CameraMemory::contains(address, length)) {
            return address;
        }
    }
    *missing = QStringLiteral("register %1").arg(QLatin1String(name));
    return 0;
}

quint32 findEntry(ArvGc *gc, const char *enumeration, const char *name, QString *missing)
{
    ArvGcNode *node = arv_gc_get_node(gc, enumeration);
    const GSList *entry =
        ARV_IS_GC_ENUMERATION(node) ? arv_gc_enumeration_get_entries(ARV_GC_ENUMERATION(node)) : nullptr;
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
    const struct
    {
        quint64 CameraBehaviour::Registers::*address;
        const char *name;
    } table[] = {
        {&CameraBehaviour::Registers::acquisitionStart, "AcquisitionStartReg"},
        {&CameraBehaviour::Registers::acquisitionStop, "AcquisitionStopReg"},
        {&CameraBehaviour::Registers::acquisitionStatus, "AcquisitionStatusReg"},
        {&CameraBehaviour::Registers::softwareTrigger, "InputSoftwareTriggerReg"},
        {&CameraBehaviour::Registers::triggerCount, "TriggerCountReg"},
        {&CameraBehaviour::Registers::userSetSelector, "UserSetSelectorReg"},
        {&CameraBehaviour::Registers::userSetLoad, "UserSetLoadReg"},
        {&CameraBehaviour::Registers::userSetSave, "UserSetSaveReg"},
        {&CameraBehaviour::Registers::mode, "InputTriggerModeReg"},
        {&CameraBehaviour::Registers::source, "InputTriggerSourceReg"},
        {&CameraBehaviour::Registers::autoInterval, "TriggerAutoIntervalReg"},
        {&CameraBehaviour::Registers::sensingWait, "TriggerSensingWaitPeriodReg"},
    };
    for (const auto &row : table) {
        registers.*row.address = findRegister(gc, row.name, sizeof(quint32), missing);
    }
    registers.contents = findRegister(gc, "UserSetContents", 0, missing);
    if (missing->isEmpty()) {
        registers.contentsSize =
            quint32(arv_gc_register_get_length(ARV_GC_REGISTER(arv_gc_get_node(gc, "UserSetContents")), nullptr));
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
    Failure failure;
    arv_gc_feature_node_set_value_from_string(ARV_GC_FEATURE_NODE(node), text.constData(), failure.slot());
    return failure ? QStringLiteral("the power-up value of %1: %2").arg(QString::fromUtf8(name), failure.text())
                   : QString();
}

} // namespace

SimulatedCamera SimulatedCamera::switchOn(std::unique_ptr<CameraMemory> memory, const QByteArray &xml,
                                          const QString &serial, CameraBehaviour::Clock clock, QString *error)
{
    CameraDescription description;
    *error = description.parse(xml);
    if (!error->isEmpty()) {
        return {};
    }
    if (!serial.isEmpty()) {
        description.powerUp.append({kSerialNode, serial.toUtf8()});
    }
    auto owned = std::make_unique<MemoryPort>(std::move(memory));
    MemoryPort &port = *owned;
    DevicePointer device = newPortDevice(std::move(owned), description.xml);
    if (!device) {
        *error = QStringLiteral("it is no GenICam description");
        return {};
    }
    ArvGc *gc = arv_device_get_genicam(device.get());
    arv_gc_set_range_check_policy(gc, ARV_RANGE_CHECK_POLICY_ENABLE);
    for (const auto &value : qAsConst(description.powerUp)) {
        *error = writePowerUpValue(gc, value.first, value.second);
        if (!error->isEmpty()) {
            return {};
        }
    }
    QString missing;
    const CameraBehaviour::Registers registers = findRegisters(gc, &missing);
    if (!missing.isEmpty()) {
        *error = QStringLiteral("it has no %1, which the camera works with").arg(missing);
        return {};
    }
    port.behaviour = std::make_unique<CameraBehaviour>(*port.memory, registers, clock ? std::move(clock) : realTime);
    return {std::move(device), port.behaviour.get()};
}
