#include "Options.h"

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
    const QCommandLineOption description(
        QStringLiteral("description"),
        QStringLiteral("Simulate the camera that this GenICam description (XML) describes instead of the built-in one."),
        QStringLiteral("FILE"));
    const QCommandLineOption set(
        QStringLiteral("set"),
        QStringLiteral("Set a node before the panel is shown, for example InputTriggerMode=Hold; may be repeated."),
        QStringLiteral("NODE=VALUE"));
    const QCommandLineOption language(QStringLiteral("language"),
                                      QStringLiteral("Language of the user interface: en or de; otherwise the system's."),
                                      QStringLiteral("CODE"));
    const QCommandLineOption screenshot(
        QStringLiteral("screenshot"),
        QStringLiteral("Render the window with the bound panel into a PNG file, without a display, and exit."),
        QStringLiteral("FILE.png"));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Reference host of the trigger configuration panel, bound to a simulated smart camera."));
    parser.addOptions({help, version, description, set, language, screenshot});
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

    Options options;
    options.description = parser.value(description);
    options.language = parser.value(language);
    options.screenshot = parser.value(screenshot);
    if (parser.isSet(description) && options.description.isEmpty()) {
        fail(QStringLiteral("--description needs a file name."));
    }
    if (parser.isSet(screenshot) && !options.screenshot.endsWith(QLatin1String(".png"), Qt::CaseInsensitive)) {
        fail(QStringLiteral("--screenshot needs a file name that ends in .png, not '%1'.").arg(options.screenshot));
    }
    if (parser.isSet(language) && options.language != QLatin1String("en") && options.language != QLatin1String("de")) {
        fail(QStringLiteral("--language knows en and de, not '%1'.").arg(options.language));
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
