// Binds a panel to a device of its own and checks that both sides see one device manager and one bus.

#include "ScriptedDevice.h"

#include <panel/VyTriggerConfigWdg.h>

#include <VyViewerCore/CoreEvent.h>
#include <VyViewerCore/CoreEventBus.h>
#include <VyViewerCore/IDeviceManager.h>

#include <QApplication>
#include <QTranslator>

#include <cstdio>

namespace {

bool check(bool holds, const char *what)
{
    if (!holds) {
        std::fprintf(stderr, "failed: %s\n", what);
    }
    return holds;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    ScriptedDevice device;
    VyTriggerConfigWdg panel;
    panel.setVyDevice(&device);
    panel.show();
    bool ok = check(device.calls.size() > 35, "showing the panel reads the device");

    using namespace VyViewer;
    device.calls.clear();
    Q_EMIT Singleton<IDeviceManager>::getInstance()->deviceGrabStatusUpdate(&device, 1);
    ok &= check(!device.calls.isEmpty(), "the panel hears our device manager");

    device.calls.clear();
    QVariantMap payload;
    payload.insert(QStringLiteral("IDevice"), QVariant::fromValue<IDevice>(&device));
    Singleton<CoreEventBus>::getInstance()->post(QStringLiteral("UserSetLoad"), payload);
    ok &= check(!device.calls.isEmpty(), "the panel hears our bus");
    ok &= check(VyTriggerConfigWdg::tr("x") == QLatin1String("x"), "tr");

    QTranslator translator;
    ok &= check(translator.load(QLocale(QStringLiteral("de")), QStringLiteral("trigger"), QStringLiteral("_"),
                                QStringLiteral(":/VyTriggerConfigWdg")),
                "translations come with the library");
    return ok ? 0 : 1;
}
