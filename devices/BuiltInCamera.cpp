#include "BuiltInCamera.h"

#include <cstring>
#include <vector>

namespace {

class Memory final : public CameraMemory
{
public:
    Memory()
        : m_bytes(kSize)
    {}
    void read(quint64 address, void *bytes, quint32 size) const override
    {
        std::memcpy(bytes, m_bytes.data() + address, size);
    }
    void write(quint64 address, const void *bytes, quint32 size) override
    {
        std::memcpy(m_bytes.data() + address, bytes, size);
    }

private:
    std::vector<uchar> m_bytes;
};

} // namespace

DevicePointer newBuiltInCamera(const QByteArray &description, CameraBehaviour::Clock clock, QString *error)
{
    return SimulatedCamera::switchOn(std::make_unique<Memory>(), description, {}, std::move(clock), error).device;
}
