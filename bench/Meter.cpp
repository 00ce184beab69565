#include "Meter.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>

#include <valgrind/callgrind.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <iterator>

namespace {

class Clock : public Meter
{
public:
    explicit Clock(std::function<DeviceUse()> device)
        : m_device(std::move(device))
    {}
    void begin() override
    {
        m_before = m_device();
        m_timer.start();
    }
    void end(const QString &name) override
    {
        const auto elapsed = quint64(m_timer.nsecsElapsed());
        print(name, {elapsed, m_device().nanoseconds - m_before.nanoseconds});
    }

private:
    const std::function<DeviceUse()> m_device;
    DeviceUse m_before;
    QElapsedTimer m_timer;
};

class Instructions : public Meter
{
public:
    void begin() override
    {
        CALLGRIND_ZERO_STATS;
        CALLGRIND_TOGGLE_COLLECT;
    }
    void end(const QString &name) override
    {
        CALLGRIND_TOGGLE_COLLECT;
        CALLGRIND_DUMP_STATS_AT(qPrintable(name));
    }
};

class Events : public QObject, public Meter
{
public:
    explicit Events(std::function<DeviceUse()> device)
        : m_device(std::move(device))
    {
        QCoreApplication::instance()->installEventFilter(this);
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        for (size_t i = 0; i < kTypes.size(); ++i) {
            m_counts[i] += event->type() == kTypes[i];
        }
        return false;
    }
    void begin() override
    {
        m_counts = {};
        m_before = m_device();
    }
    void end(const QString &name) override
    {
        const DeviceUse use = m_device();
        QVector<quint64> counts{use.calls - m_before.calls, use.roundTrips - m_before.roundTrips};
        std::copy(m_counts.cbegin(), m_counts.cend(), std::back_inserter(counts));
        print(name, counts);
    }

private:
    static constexpr std::array<QEvent::Type, 4> kTypes{QEvent::LayoutRequest, QEvent::Paint, QEvent::Polish,
                                                        QEvent::StyleChange};

    const std::function<DeviceUse()> m_device;
    DeviceUse m_before;
    std::array<quint64, kTypes.size()> m_counts{};
};

} // namespace

std::unique_ptr<Meter> Meter::named(const QString &kind, std::function<DeviceUse()> device)
{
    if (kind == QLatin1String("clock")) {
        return std::make_unique<Clock>(std::move(device));
    }
    if (kind == QLatin1String("events")) {
        return std::make_unique<Events>(std::move(device));
    }
    return std::make_unique<Instructions>();
}

void Meter::print(const QString &name, const QVector<quint64> &values)
{
    std::printf("%s", qPrintable(name));
    char separator = '\t';
    for (const quint64 value : values) {
        std::printf("%c%llu", separator, value);
        separator = ' ';
    }
    std::puts("");
}
