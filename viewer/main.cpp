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
    case RuvoNodeBoolean: {
        const bool on = value == QLatin1String("true");
        return on || value == QLatin1String("false") ? device.setParamBool(node, on) : -1;
    }
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

bool render(MainWindow &window, QSaveFile &file)
{
    window.show();
    for (int i = 0; i < 2; ++i) { // once more, when the layout has followed
        QCoreApplication::processEvents();
        window.fitToPanel();
    }
    QCoreApplication::processEvents();
    return window.grab().save(&file, "PNG") && file.commit();
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
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication application(argc, argv);
    MainWindow window(camera.get(), options.language);
    if (QGuiApplication::platformName() != QLatin1String("offscreen")) {
        QLoggingCategory::setFilterRules(QString());
        window.show();
        return QApplication::exec();
    }
    const QString name = options.screenshot.isEmpty()
                             ? QDir::current().absoluteFilePath(QStringLiteral("trigger-panel.png"))
                             : options.screenshot;
    QSaveFile file(name); // leaves nothing behind that is not complete
    if (!file.open(QIODevice::WriteOnly) || !render(window, file)) {
        return Options::complain(QStringLiteral("cannot write %1: %2").arg(name, file.errorString()));
    }
    if (options.screenshot.isEmpty()) {
        std::printf("There is no display: the window was rendered into %s\n", qPrintable(name));
    }
    return 0;
}
