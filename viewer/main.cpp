#include "MainWindow.h"
#include "Options.h"
#include "SettingsApplier.h"
#include "SettingsFile.h"
#include "WholeFile.h"

#include "devices/GenicamDevice.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QIcon>
#include <QLoggingCategory>

#include <algorithm>
#include <cstdio>

namespace {

bool setNode(Device &device, const QString &node, const QString &value)
{
    const RuvoNodeType type = device.getNodeType(node);
    return type == RuvoNodeCommand ? device.executeCMD(node) == 0
                                   : SettingsFile::write(device, {node, type, SettingsFile::fromText(value, type)});
}

/// What --set asks for; the first refusal ends it.
QString setNodes(Device &device, const Options &options)
{
    for (const auto &setting : options.settings) {
        if (!setNode(device, setting.first, setting.second)) {
            return QStringLiteral("The camera refuses %1=%2").arg(setting.first, setting.second);
        }
    }
    return {};
}

int applySettings(GenicamDevice &camera, const QString &fileName)
{
    SettingsFile settings;
    const QString error = settings.load(fileName);
    if (!error.isEmpty()) {
        return Options::complain(QStringLiteral("%1: %2").arg(fileName, error));
    }
    SettingsApplier applier(camera, settings, [&camera] { return camera.lastError(); });
    while (applier.step()) {}
    const auto problems = applier.problems();
    for (const SettingsApplier::Problem &problem : problems) {
        Options::complain(problem.reason);
    }
    std::printf("%d of %d settings applied\n", applier.total() - int(problems.size()), applier.total());
    return problems.isEmpty() ? 0 : 1;
}

int saveSettings(GenicamDevice &camera, const QString &fileName)
{
    const SettingsFile settings = SettingsFile::read(camera, camera.nodes());
    for (const QString &node : settings.unread) {
        Options::complain(QStringLiteral("%1 could not be read; nothing is saved").arg(node));
    }
    if (!settings.unread.isEmpty()) {
        return 1;
    }
    if (settings.entries.isEmpty()) {
        Options::complain(QStringLiteral("There is nothing to save: no setting can be changed now."));
        return 1;
    }
    const QString error = settings.save(fileName);
    if (!error.isEmpty()) {
        return Options::complain(QStringLiteral("%1: %2").arg(fileName, error));
    }
    std::printf("%d settings saved\n", int(settings.entries.size()));
    return 0;
}

/// Without a window, and so without a display.
int work(const Options &options)
{
    QString error;
    const auto camera = GenicamDevice::open(options.device, options.description, &error);
    if (camera) {
        error = setNodes(*camera, options);
    }
    if (!error.isEmpty()) {
        return Options::complain(error);
    }
    int status = options.apply.isEmpty() ? 0 : applySettings(*camera, options.apply);
    if (status != 2 && !options.save.isEmpty()) {
        status = std::max(status, saveSettings(*camera, options.save));
    }
    return status;
}

/// Waits for the camera, and sets its nodes, before anything is shown: an error is one line and nothing else.
QString prepare(const MainWindow &window, const Options &options)
{
    const DevicePage *const page = window.currentPage();
    while (page->connection().state() == CameraConnection::Opening) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return page->device() ? setNodes(*page->device(), options) : page->connection().reason();
}

/// As pictures: not every machine has Qt's plugin for drawings.
QIcon icon()
{
    QIcon icon;
    for (const int size : {16, 32, 48, 128}) {
        icon.addFile(QStringLiteral(":/vyviewer/icons/vyviewer-%1.png").arg(size));
    }
    return icon;
}

int render(MainWindow &window, const QString &name)
{
    window.show();
    for (int i = 0; i < 2; ++i) { // once more, when the layout has followed
        QCoreApplication::processEvents();
        window.fitToPanel();
    }
    QCoreApplication::processEvents();
    QByteArray picture;
    QBuffer buffer(&picture);
    const QString error = window.grab().save(&buffer, "PNG") ? WholeFile::write(name, picture)
                                                             : QStringLiteral("no picture could be made");
    return error.isEmpty() ? 0 : Options::complain(QStringLiteral("cannot write %1: %2").arg(name, error));
}

} // namespace

int main(int argc, char *argv[])
{
    Options options;
    {
        const QCoreApplication core(argc, argv);
        options = Options::parse(QCoreApplication::arguments());
        if (!options.apply.isEmpty() || !options.save.isEmpty()) {
            return work(options);
        }
    }

    // Without a display Qt would abort; the offscreen platform takes over instead. What that platform grumbles
    // about concerns windows, of which there is none then.
    if (!options.screenshot.isEmpty()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    } else if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "xcb;wayland;offscreen");
    }
    QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.*=false\ndefault.warning=false"));
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QCoreApplication::setOrganizationName(QStringLiteral("vytrigger"));
    QCoreApplication::setApplicationName(QStringLiteral("vyviewer"));
    const QApplication application(argc, argv);
    QApplication::setWindowIcon(icon());
    QGuiApplication::setDesktopFileName(QStringLiteral("vyviewer")); // by which Wayland finds the icon
    const bool isVisible = QGuiApplication::platformName() != QLatin1String("offscreen");
    MainWindow window(options.language, isVisible); // a picture is the same whatever was done before
    window.openDevice(options.device, options.description);
    if (!isVisible || !options.settings.isEmpty()) {
        const QString error = prepare(window, options);
        if (!error.isEmpty()) {
            return Options::complain(error);
        }
    }
    if (isVisible) {
        QLoggingCategory::setFilterRules(QString());
        window.show();
        return QApplication::exec();
    }
    const QString name = options.screenshot.isEmpty()
        ? QDir::current().absoluteFilePath(QStringLiteral("trigger-panel.png"))
        : options.screenshot;
    const int status = render(window, name);
    if (status == 0 && options.screenshot.isEmpty()) {
        std::printf("There is no display: the window was rendered into %s\n", qPrintable(name));
    }
    return status;
}
