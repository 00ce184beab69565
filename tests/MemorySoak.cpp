// memory_soak [PANELS [REFRESHES]]: builds, shows, uses and destroys panels, then refreshes pages. Nothing may grow.

#include "PanelProbe.h"
#include "ScriptedDevice.h"
#include "TildeTranslator.h"
#include "panel/VyTriggerConfigWdg.h"
#include "parampage/DeviceEvents.h"
#include "parampage/ParamPageWidget.h"

#include <QPixmapCache>
#include <malloc.h>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
extern "C" size_t __sanitizer_get_current_allocated_bytes(); // GCC comes without the header
static size_t heapInUse() { return __sanitizer_get_current_allocated_bytes(); }
static size_t allowed(int count) { return 16 * size_t(count) + 4096; } // a table of Qt's may grow when it is busiest
#else
static size_t heapInUse() { return mallinfo2().uordblks + mallinfo2().hblkhd; }
static size_t allowed(int) { return 64 * 1024; } // the C library counts what it keeps for the next allocation of a size
#endif

static ScriptedDevice device;
static int reads = 0;
static bool good = true;

static void change(const QString &call) // every value, but for the mode that shows all pages
{
    device.calls.clear();
    ScriptedDevice::Node &node = device.node(call.mid(call.indexOf(u' ') + 1));
    node.value = node.type < RuvoNodeEnumeration ? QVariant(1 + reads % 9973) : QString(reads % 120, u't');
    node.value = call.endsWith("TriggerMode"_s) ? "Hold"_s : node.value;
    node.entries = QString(reads++ % 7, u',').split(u',') << node.value.toString();
}

static void buildAndDestroy(int number)
{
    auto *const panel = new VyTriggerConfigWdg(number % 3 ? nullptr : new QWidget);
    panel->setVyDevice(&device);
    panel->window()->show();
    good &= QTest::qWaitForWindowActive(panel->window());
    auto *const list = PanelProbe::editor<QComboBox>(panel, "InputTriggerSource");
    TildeTranslator translator;
    switch (number % 5) {
    case 0: list->showPopup(); number % 2 ? list->hidePopup() : void(); break; // or destroyed with it
    case 1: list->setCurrentIndex(0); break;
    case 2: QCoreApplication::installTranslator(&translator); break;
    case 3: QTest::keyClicks(PanelProbe::editor<QAbstractSpinBox>(panel, "TriggerUdpPort"), "4"_s); break;
    default: PanelProbe::grab(&device, 1);
    }
    QCoreApplication::processEvents();
    number % 3 == 2 ? panel->deleteLater() : delete panel->window();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// What it does first, before anything is measured, fills caches.
static void soak(const char *what, int first, int count, const std::function<void(int)> &action)
{
    size_t before = 0;
    const qint64 start = QDateTime::currentMSecsSinceEpoch();
    for (int tenth = 0, done = -first; tenth <= 10; ++tenth) {
        while (done < count * tenth / 10) {
            action(first + done++);
        }
        device.reset(); // the heap is measured in the same state every time
        action(reads = 0);
        device.reset();
        before = tenth > 1 ? before : heapInUse();
        QFile memory("/proc/self/statm"_s);
        const QByteArray pages = memory.open(QIODevice::ReadOnly) ? memory.readAll().split(' ').at(1) : QByteArray();
        std::printf("%7d %s: heap %zu, resident pages %s, %lld ms\n", done, what, heapInUse(), pages.data(),
                    QDateTime::currentMSecsSinceEpoch() - start);
    }
    good &= heapInUse() <= before + allowed(count);
}

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QPixmapCache::setCacheLimit(0); // it forgets by the clock
    device.onCall = change;
    const int panels = argc > 1 ? std::atoi(argv[1]) : 10000;
    soak("panels", qBound(15, panels / 2, 200), panels, buildAndDestroy);
    good &= QApplication::allWidgets().isEmpty();
    VyTriggerConfigWdg panel;
    panel.setVyDevice(&device);
    panel.show();
    const auto pages = panel.findChildren<ParamPageWidget *>();
    soak("refreshes", 1000, argc > 2 ? std::atoi(argv[2]) : 1000000, [&](int number) {
        number % 1000 ? pages.at(number % pages.size())->updateWidget()
                      : DeviceEvents::post("UserSetLoad"_s, DeviceEvents::payload(&device));
        number % 50 ? void() : QTest::qWait(1); // until nothing is posted any more
    });
    return good ? 0 : 1;
}
