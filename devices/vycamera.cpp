#include "CameraServer.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <csignal>
#include <cstdio>
#include <ctime>

namespace {

constexpr timespec kPeriod = {0, 2000000}; // between two looks for commands: 2 ms

int complain(const QString &reason)
{
    std::fprintf(stderr, "vycamera: %s\n", qPrintable(reason));
    return 2;
}

} // namespace

int main(int argc, char *argv[])
{
    // Taken from a queue below, and so from before there are threads that could be interrupted instead.
    sigset_t stop;
    sigemptyset(&stop);
    sigaddset(&stop, SIGINT);
    sigaddset(&stop, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &stop, nullptr);

    const QCoreApplication application(argc, argv);
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Show the version."));
    const QCommandLineOption address(QStringLiteral("address"),
                                     QStringLiteral("IPv4 address of this machine to answer on; 127.0.0.1 otherwise."),
                                     QStringLiteral("ADDRESS"), QStringLiteral("127.0.0.1"));
    const QCommandLineOption serial(QStringLiteral("serial"),
                                    QStringLiteral("Serial number of the camera, up to 16 bytes."),
                                    QStringLiteral("TEXT"));
    const QCommandLineOption description(
        QStringLiteral("description"),
        QStringLiteral(
            "Simulate the camera that this GenICam description (XML) describes instead of the built-in one."),
        QStringLiteral("FILE"));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("A simulated smart camera as a GigE Vision device on a network. It runs until Ctrl-C."));
    parser.addOptions({help, version, address, serial, description});
    if (!parser.parse(QCoreApplication::arguments())) {
        return complain(parser.errorText());
    }
    if (parser.isSet(help)) {
        std::fputs(qPrintable(parser.helpText()), stdout);
        return 0;
    }
    if (parser.isSet(version)) {
        std::puts("vycamera " VYTRIGGER_VERSION);
        return 0;
    }
    if (!parser.positionalArguments().isEmpty()) {
        return complain(QStringLiteral("Unexpected argument '%1'.").arg(parser.positionalArguments().constFirst()));
    }
    if (parser.isSet(description) && parser.value(description).isEmpty()) {
        return complain(QStringLiteral("--description needs a file name."));
    }

    QString error;
    const auto server =
        CameraServer::start({parser.value(address), parser.value(serial), parser.value(description)}, &error);
    if (!server) {
        return complain(error);
    }
    std::printf("The camera answers at %s. Ctrl-C stops it.\n", qPrintable(parser.value(address)));
    std::fflush(stdout);
    while (sigtimedwait(&stop, nullptr, &kPeriod) < 0) { // there was none
        server->update();
    }
    return 0;
}
