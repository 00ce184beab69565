#include "Options.h"

#include "Language.h"

#include <QCommandLineParser>

#include <cstdio>
#include <cstdlib>

int Options::complain(const QString &reason)
{
    std::fprintf(stderr, "vyviewer: %s\n", qPrintable(reason));
    return 2;
}

void Options::fail(const QString &reason)
{
    std::exit(complain(reason));
}

Options Options::parse(const QStringList &arguments)
{
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Show the version."));
    const QCommandLineOption device(
        QStringLiteral("device"),
        QStringLiteral("Open the GigE Vision camera at this IPv4 address instead of the built-in one."),
        QStringLiteral("ADDRESS"));
    const QCommandLineOption description(
        QStringLiteral("description"),
        QStringLiteral(
            "Simulate the camera that this GenICam description (XML) describes instead of the built-in one."),
        QStringLiteral("FILE"));
    const QCommandLineOption set(
        QStringLiteral("set"),
        QStringLiteral("Set a node before the panel is shown, for example InputTriggerMode=Hold; may be repeated."),
        QStringLiteral("NODE=VALUE"));
    const QCommandLineOption language(QStringLiteral("language"),
                                      QStringLiteral("Language of the user interface: %1; otherwise the system's.")
                                          .arg(Language::codes().join(QLatin1String(", "))),
                                      QStringLiteral("CODE"));
    const QCommandLineOption screenshot(
        QStringLiteral("screenshot"),
        QStringLiteral("Render the window with the bound panel into a PNG file, without a display, and exit."),
        QStringLiteral("FILE.png"));
    const QCommandLineOption apply(
        QStringLiteral("apply"),
        QStringLiteral(
            "Write the settings in a file into the camera and exit: with status 0 when all were taken, else 1."),
        QStringLiteral("FILE"));
    const QCommandLineOption save(QStringLiteral("save"),
                                  QStringLiteral(
                                      "Save the camera's settings into a file, after --set and --apply, and exit."),
                                  QStringLiteral("FILE"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Reference host of the trigger configuration panel, bound to smart "
                                                    "cameras on the network or to a simulated one."));
    parser.addOptions({help, version, device, description, set, apply, save, language, screenshot});
    if (!parser.parse(arguments)) {
        fail(parser.errorText());
    }
    if (parser.isSet(help)) {
        std::fputs(qPrintable(parser.helpText()), stdout);
        std::exit(0);
    }
    if (parser.isSet(version)) {
        std::puts("vyviewer " VYVIEWER_VERSION);
        std::exit(0);
    }
    if (!parser.positionalArguments().isEmpty()) {
        fail(QStringLiteral("Unexpected argument '%1'.").arg(parser.positionalArguments().constFirst()));
    }

    for (const QCommandLineOption *option : {&device, &description, &apply, &save}) {
        if (parser.isSet(*option) && parser.value(*option).isEmpty()) {
            fail(QStringLiteral("--%1 needs a value.").arg(option->names().constFirst()));
        }
    }
    if (parser.isSet(device) && parser.isSet(description)) {
        fail(QStringLiteral("--device and --description exclude each other."));
    }
    if (parser.isSet(screenshot) && (parser.isSet(apply) || parser.isSet(save))) {
        fail(QStringLiteral("--screenshot goes with neither --apply nor --save."));
    }

    Options options;
    options.device = parser.value(device);
    options.description = parser.value(description);
    options.language = parser.value(language);
    options.screenshot = parser.value(screenshot);
    options.apply = parser.value(apply);
    options.save = parser.value(save);
    if (parser.isSet(screenshot) && !options.screenshot.endsWith(QLatin1String(".png"), Qt::CaseInsensitive)) {
        fail(QStringLiteral("--screenshot needs a file name that ends in .png, not '%1'.").arg(options.screenshot));
    }
    if (parser.isSet(language) && !Language::codes().contains(options.language)) {
        fail(QStringLiteral("--language knows %1, not '%2'.")
                 .arg(Language::codes().join(QLatin1String(", ")), options.language));
    }
    const QStringList settings = parser.values(set);
    for (const QString &setting : settings) {
        const int separator = setting.indexOf(QLatin1Char('='));
        if (separator < 1) {
            fail(QStringLiteral("--set needs NODE=VALUE, not '%1'.").arg(setting));
        }
        options.settings.append({setting.left(separator), setting.mid(separator + 1)});
    }
    return options;
}
