#include "MainWindow.h"
#include "Options.h"

#include "devices/GenicamDevice.h"

#include <QApplication>
#include <QDir>
#include <QLoggingCategory>
#include <QSaveFile>

#include <cstdio>

namespace {

long setNode(Device &device, const QString &node, const QString &value)
{
    switch (device.getNodeType(node)) {
    case RuvoNodeInteger: {
        bool isNumber = false;
        const int number = value.toInt(&isNumber);
        return isNumber ? device.setParamInt(node, number) : -1;
    }
    case RuvoNodeFloat: {
        bool isNumber = false;
        const float number = value.toFloat(&isNumber);
        return isNumber ? device.setParamFloat(node, number) : -1;
    }
    case RuvoNodeBoolean:
        return device.setParamBool(node, value == QLatin1String("true"));
    case RuvoNodeEnumeration:
        return device.setParamEnum(node, value);
    case RuvoNodeCommand:
        return device.executeCMD(node);
    case RuvoNodeString:
    case RuvoNodeUnknown:
        break;
    }
    return device.setParamString(node, value);
}

/// The simulated camera, with what --set asks for written into it.
std::unique_ptr<GenicamDevice> openCamera(const Options &options)
{
    QString error;
    auto camera = GenicamDevice::openBuiltIn(options.description, &error);
    if (!camera) {
        Options::fail(error);
    }
    for (const auto &setting : options.settings) {
        if (setNode(*camera, setting.first, setting.second) != 0) {
            Options::fail(QStringLiteral("The camera refuses %1=%2").arg(setting.first, setting.second));
        }
    }
    return camera;
}

int render(MainWindow &window, QSaveFile &file)
{
    window.show();
    QCoreApplication::processEvents();
    window.fitToPanel();
    QCoreApplication::processEvents(); // the layout follows
    window.fitToPanel();
    QCoreApplication::processEvents();
    if (!window.grab().save(&file, "PNG") || !file.commit()) {
        Options::fail(QStringLiteral("cannot write %1: %2").arg(file.fileName(), file.errorString()));
    }
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    Options options;
    {
        const QCoreApplication core(argc, argv);
        options = Options::parse(QCoreApplication::arguments());
    }
    // Before anything is shown, so that an error is one line and nothing else.
    const auto camera = openCamera(options);

    // Without a display Qt would abort; the offscreen platform takes over instead. What that platform grumbles
    // about concerns windows, of which there is none then.
    if (!options.screenshot.isEmpty()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    } else if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "xcb;wayland;offscreen");
    }
    QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.*=false\ndefault.warning=false"));
    QSaveFile file(options.screenshot);
    if (!options.screenshot.isEmpty() && !file.open(QIODevice::WriteOnly)) {
        Options::fail(QStringLiteral("cannot write %1: %2").arg(options.screenshot, file.errorString()));
    }

    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication application(argc, argv);
    QApplication::setApplicationDisplayName(QString());
    MainWindow window(camera.get(), options.language);
    if (!options.screenshot.isEmpty()) {
        return render(window, file);
    }
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
        const QString name = QDir::current().absoluteFilePath(QStringLiteral("trigger-panel.png"));
        std::printf("There is no display: the window is rendered into %s\n", qPrintable(QDir::toNativeSeparators(name)));
        file.setFileName(name);
        if (!file.open(QIODevice::WriteOnly)) {
            Options::fail(QStringLiteral("cannot write %1: %2").arg(name, file.errorString()));
        }
        return render(window, file);
    }
    QLoggingCategory::setFilterRules(QString());
    window.show();
    return QApplication::exec();
}
