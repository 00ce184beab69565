#include "PanelWalk.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QProcess>

#include <unistd.h>

#include <cstdio>

namespace {

constexpr uint kPatience = 60;      // seconds for a step
constexpr int kShortening = 120000; // milliseconds

/// Takes these steps and tells of each, until one is wrong.
int take(const QString &seed, const QStringList &steps)
{
    QApplication::setDoubleClickInterval(0);
    QApplication::setKeyboardInputInterval(0); // nothing depends on how long a step takes
    QApplication::setCursorFlashTime(0);
    PanelWalk walk(seed.toUInt());
    QString written;
    walk.onWrite = [&written](RuvoNodeType type) { written += ", wrote type %1"_s.arg(type); };
    for (const QString &number : steps) {
        alarm(kPatience);
        std::printf("\nstep %s: ", qPrintable(number));
        std::fflush(stdout);
        const QString name = walk.step(number.toInt());
        std::printf("%s", qPrintable(name + std::exchange(written, {})));
        if (!walk.faults().isEmpty()) {
            std::printf("\nfault: %s", qPrintable(walk.faults().first()));
            return EXIT_FAILURE;
        }
    }
    alarm(0);
    return EXIT_SUCCESS;
}

/// Steps taken in a process of its own, which may crash or hang: then there is no fault in what it tells.
struct Walk
{
    Walk(const QString &seed, const QStringList &steps, bool complains = false)
    {
        QProcess process;
        process.setProcessChannelMode(complains ? QProcess::ForwardedErrorChannel : QProcess::SeparateChannels);
        process.start(QCoreApplication::applicationFilePath(), {"--seed"_s, seed, "--only"_s, steps.join(u',')});
        process.waitForFinished(-1);
        told = QString::fromUtf8(process.readAllStandardOutput());
        taken = told.count("\nstep "_s);
        fault = told.section("\nfault: "_s, 1);
        failed = process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0;
    }
    QString told, fault;
    int taken;
    bool failed;
};

/// Leaves out what the fault does not need.
QStringList shortened(const QString &seed, QStringList steps, const Walk &whole)
{
    QElapsedTimer timer;
    timer.start();
    steps = steps.mid(0, whole.taken);
    for (int length = steps.size() / 2; length > 0; length /= 2) {
        for (int from = 0; from < steps.size() && timer.elapsed() < kShortening;) {
            const QStringList fewer = steps.mid(0, from) + steps.mid(from + length);
            const Walk walk(seed, fewer);
            if (walk.failed && walk.fault == whole.fault) {
                steps = fewer.mid(0, walk.taken);
            } else {
                from += length;
            }
        }
    }
    return steps;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOptions({{"seed"_s, "The first seed."_s, "N"_s, "1"_s}, {"seeds"_s, "How many of them."_s, "N"_s, "1"_s},
                       {"steps"_s, "Steps of each."_s, "N"_s, "1000"_s},
                       {"only"_s, "Only these steps of the first."_s, "3,17,20"_s}});
    parser.process(application);
    if (parser.isSet("only"_s)) {
        return take(parser.value("seed"_s), parser.value("only"_s).split(u',', Qt::SkipEmptyParts));
    }
    QStringList steps;
    while (steps.size() < parser.value("steps"_s).toInt()) {
        steps.append(QString::number(steps.size()));
    }
    const uint first = parser.value("seed"_s).toUInt();
    QElapsedTimer timer;
    timer.start();
    QVector<qint64> writes(7); // by the type of the node
    qint64 taken = 0;
    for (uint number = first; number < first + parser.value("seeds"_s).toUInt(); ++number) {
        const QString seed = QString::number(number);
        const Walk walk(seed, steps);
        if (walk.failed) {
            std::printf("Seed %u fails at step %d: %s\n", number, walk.taken - 1, qPrintable(walk.fault));
            std::fflush(stdout);
            const QStringList few = shortened(seed, steps, walk);
            std::printf("%s\nShortened, and replayed by: ./test walk --seed %u --only %s\n",
                        qPrintable(Walk(seed, few, true).told), number, qPrintable(few.join(u',')));
            return EXIT_FAILURE;
        }
        taken += walk.taken;
        for (int type = RuvoNodeBoolean; type <= RuvoNodeString; ++type) {
            writes[type] += walk.told.count("wrote type %1"_s.arg(type));
        }
        const double seconds = double(timer.elapsed()) / 1000;
        std::printf("seed %u, %lld steps so far, %.0f a second\n", number, taken, double(taken) / seconds);
        std::fflush(stdout);
    }
    std::printf("Written: %lld booleans, %lld integers, %lld floats, %lld entries, %lld texts; run: %lld commands\n", writes[1],
                writes[2], writes[3], writes[4], writes[6], writes[5]);
    // A walk on which nothing happens shows nothing.
    return taken < 2000 || writes.mid(1).count(0) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
