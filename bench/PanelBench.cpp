// panel_bench [check]: what the panel costs beside the bare widgets it is made of.

#include "Children.h"
#include "Life.h"
#include "Meter.h"
#include "Subject.h"

#include <QApplication>
#include <QLoggingCategory>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numeric>

namespace {

constexpr int kLives = 5;  // of a form in one process, of which the first is counted apart
constexpr int kRounds = 5; // processes, those of floor and panel by turns
constexpr int kSizes[] = {1, 2, 4, 8, 16};

/// What a phase, or some one after the other, may cost in instructions, as a ratio to the floor.
struct Line
{
    const char *title;
    QStringList phases;
    bool untilIdle = true; // or the call alone
    double goal = 0;       // 0: none
    double limit = 0;      // of the check; 0: none
};

const QVector<Line> &lines()
{
    static const QStringList all{QStringLiteral("construct"), QStringLiteral("show")};
    static const QVector<Line> table{
        {"construct", {QStringLiteral("construct")}, false},
        {"construct, show, until painted", all, true, 0.75, 0.8},
        {"page refresh, unchanged: the call", {QStringLiteral("page, unchanged")}, false, 1.0, 0.7},
        {"page refresh, unchanged", {QStringLiteral("page, unchanged")}, true, 0.8, 0.75},
        {"page refresh, changed", {QStringLiteral("page, changed")}},
        {"all pages, unchanged: the call", {QStringLiteral("all pages, unchanged")}, false},
        {"all pages, unchanged", {QStringLiteral("all pages, unchanged")}, true, 0.65, 0.45},
        {"all pages, changed: the call", {QStringLiteral("all pages, changed")}, false},
        {"all pages, changed", {QStringLiteral("all pages, changed")}, true, 0.65, 0.55},
        {"change of source", {QStringLiteral("source")}, true, 0.65, 0.35},
        {"hide and show", {QStringLiteral("hide and show")}, true, 1.25, 1.0},
        {"change of language", {QStringLiteral("language")}, true},
        {"edit, from the key press", {QStringLiteral("edit")}, true},
        {"destroy", {QStringLiteral("destroy")}, true, 1.0, 1.15},
    };
    return table;
}

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

/// The values of what a line adds up, one for each life of these.
QVector<double> values(const Figures &figures, const Line &line, const QVector<int> &lives, int column = 0)
{
    QVector<double> sums;
    for (const int life : lives) {
        double sum = 0;
        for (const QString &phase : line.phases) {
            const QString name = QString::number(life) + QLatin1Char(' ') + phase;
            sum += figures.value(name + QStringLiteral("|call")).value(column);
            sum += line.untilIdle ? figures.value(name + QStringLiteral("|rest")).value(column) : 0;
        }
        sums.append(sum);
    }
    return sums;
}

double median(QVector<double> numbers)
{
    std::sort(numbers.begin(), numbers.end());
    return numbers.value(numbers.size() / 2);
}

/// Millions of instructions of a life, the second for one.
double instructions(const Figures &figures, const Line &line, int life = 1)
{
    return values(figures, line, {life}).constFirst() / 1e6;
}

/// Those that find made what is made once in a process.
QVector<int> laterLives()
{
    QVector<int> lives(kLives - 1);
    std::iota(lives.begin(), lives.end(), 1);
    return lives;
}

/// Median milliseconds of several runs.
double milliseconds(const QVector<Figures> &runs, const Line &line, const QVector<int> &lives, int column = 0)
{
    QVector<double> all;
    for (const Figures &run : runs) {
        all += values(run, line, lives, column);
    }
    return median(all) / 1e6;
}

struct Costs
{
    Figures instructions;
    QVector<Figures> times;
    Figures events;
    Figures memory;
};

void printLine(const char *title, const Line &line, const Costs &floor, const Costs &panel, int life,
               const QVector<int> &lives)
{
    const double counts[] = {instructions(floor.instructions, line, life),
                             instructions(panel.instructions, line, life)};
    const double times[] = {milliseconds(floor.times, line, lives), milliseconds(panel.times, line, lives)};
    std::printf("%-36s %9.2f %9.2f %6.2f ", title, counts[0], counts[1], counts[1] / counts[0]);
    std::printf(line.goal > 0 && life > 0 ? "%6.2f" : "      ", line.goal);
    std::printf(" %8.2f %8.2f %6.2f %7.0f", times[0], times[1], times[1] / times[0],
                values(panel.events, line, {life}).constFirst());
    for (int column = 2; column < 6; ++column) { // after the device calls and the round trips
        const QString counted = QStringLiteral("%1/%2")
                                    .arg(values(panel.events, line, {life}, column).constFirst())
                                    .arg(values(floor.events, line, {life}, column).constFirst());
        std::printf(" %9s", qPrintable(counted));
    }
    std::puts("");
}

void printPanel()
{
    Costs floor;
    Costs panel;
    for (Costs *costs : {&floor, &panel}) {
        const char *const subject = costs == &floor ? "floor" : "panel";
        costs->instructions = Children::instructions(words("instructions") << words(subject) << words("0 2"));
        costs->events = Children::run(words("events") << words(subject) << words("0 2"));
        costs->memory = Children::run(words("memory") << words(subject) << words("0 1"));
    }
    for (int round = 0; round < kRounds; ++round) {
        for (Costs *costs : {&floor, &panel}) {
            const char *const subject = costs == &floor ? "floor" : "panel";
            costs->times.append(
                Children::run(words("clock") << words(subject) << words("0") << QString::number(kLives)));
        }
    }
    std::puts(
        "\"Hold\", five stop configurations, every node can be read and written, device in memory.\n"
        "Floor: the same widgets in plain Qt, filled from an array. Each figure until nothing is left to be done,\n"
        "but for construct and where it says: the call. Events: panel/floor.\n");
    std::printf("%-36s %9s %9s %6s %6s %8s %8s %6s %7s %9s %9s %9s %9s\n", "", "floor", "panel", "ratio", "goal",
                "floor", "panel", "ratio", "device", "layout", "paint", "polish", "style");
    std::printf("%-36s %9s %9s %6s %6s %8s %8s %6s %7s %9s\n", "", "million", "instr.", "", "", "ms", "ms", "", "calls",
                "requests");
    printLine("first in the process: construct, show", lines().at(1), floor, panel, 0, {0});
    for (const Line &line : lines()) {
        printLine(line.title, line, floor, panel, 1, laterLives());
    }
    const struct
    {
        const char *title;
        const char *name;
    } sizes[] = {{"heap, kB", "heap"}, {"resident, kB", "resident"}};
    for (const auto &size : sizes) {
        const QString name = QString::fromLatin1(size.name);
        const double used[] = {floor.memory[name].value(0) / 1000, panel.memory[name].value(0) / 1000};
        std::printf("%-36s %9.0f %9.0f %6.2f %6.2f\n", size.title, used[0], used[1], used[1] / used[0], 1.0);
    }
    std::printf("%-36s %9.0f %9.0f\n\n", "lists of combo boxes, none opened",
                floor.memory[QStringLiteral("lists")].value(0), panel.memory[QStringLiteral("lists")].value(0));
}

void printGrowth()
{
    std::puts("Million instructions of one page of so many rows. Exponent: of the last doubling, 1 is linear.\n");
    std::printf("%-36s", "");
    QVector<Figures> floor;
    QVector<Figures> panel;
    for (const int size : kSizes) {
        std::printf(" %9d", 35 * size);
        floor.append(Children::instructions(words("instructions floor") << QString::number(size) << words("2")));
        panel.append(Children::instructions(words("instructions panel") << QString::number(size) << words("2")));
    }
    std::printf(" %9s %9s\n", "exponent", "floor's");
    for (const Line &line : lines()) {
        if (line.phases.constFirst().startsWith(QLatin1String("all"))) {
            continue; // there is one
        }
        std::printf("%-36s", line.title);
        for (const Figures &figures : qAsConst(panel)) {
            std::printf(" %9.2f", instructions(figures, line));
        }
        for (const QVector<Figures> &sizes : {panel, floor}) {
            const int last = sizes.size() - 1;
            std::printf(" %9.2f",
                        std::log2(instructions(sizes.at(last), line) / instructions(sizes.at(last - 1), line)));
        }
        std::puts("");
    }
    std::puts("");
}

void printCameras()
{
    std::printf(
        "Simulated cameras, milliseconds: in all, in the device, in the panel; calls and requests on the network.\n\n"
        "%-36s",
        "");
    const char *const titles[] = {"in this process", "on a network", "there, nothing kept"};
    QVector<QVector<Figures>> times;
    QVector<Figures> events;
    for (const char *const subject : {"camera", "network", "uncached"}) {
        std::printf(" | %-33s", titles[times.size()]);
        times.append({Children::run(words("clock") << words(subject) << words("0") << QString::number(kLives))});
        events.append(Children::run(words("events") << words(subject) << words("0 2")));
    }
    std::puts("");
    for (const Line &line : lines()) {
        if (line.phases.constFirst().endsWith(QLatin1String(" changed"))) {
            continue; // a camera does not change all values at once
        }
        std::printf("%-36s", line.title);
        for (int place = 0; place < times.size(); ++place) {
            const double all = milliseconds(times.at(place), line, laterLives());
            const double device = milliseconds(times.at(place), line, laterLives(), 1);
            std::printf(" | %7.2f %7.2f %7.2f %4.0f %4.0f", all, device, all - device,
                        values(events.at(place), line, {1}).constFirst(),
                        values(events.at(place), line, {1}, 1).constFirst());
        }
        std::puts("");
    }
}

/// Whether no ratio of instructions has grown far beyond what it was.
bool check()
{
    const Figures floor = Children::instructions(words("instructions floor 0 2"));
    const Figures panel = Children::instructions(words("instructions panel 0 2"));
    const Figures memory = Children::run(words("memory panel 0 1"));
    bool good = memory.value(QStringLiteral("lists")).value(0, 1) == 0.0;
    std::printf("lists of combo boxes, none opened: %s\n", good ? "none" : "some");
    for (const Line &line : lines()) {
        const double ratio = instructions(panel, line) / instructions(floor, line);
        if (line.limit > 0) {
            const bool holds = ratio <= line.limit; // false for no number
            std::printf("%-36s %5.2f, at most %.2f%s\n", line.title, ratio, line.limit, holds ? "" : " FAILED");
            good &= holds;
        }
    }
    return good;
}

/// METER SUBJECT TIMES LIVES
int child(const QStringList &arguments)
{
    const Subject subject = Subject::named(arguments.at(1), arguments.at(2).toInt());
    if (arguments.at(0) == QLatin1String("memory")) {
        measureMemory(subject);
        return 0;
    }
    const auto meter = Meter::named(arguments.at(0), subject.device);
    for (int i = 0; i < arguments.at(3).toInt(); ++i) {
        live(subject, *meter, QString::number(i) + QLatin1Char(' '));
    }
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_SCALE_FACTOR");
    QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.*=false\ndefault.warning=false"));
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    try {
        if (arguments.size() == 4) {
            return child(arguments);
        }
        if (arguments == QStringList{QStringLiteral("check")}) {
            return check() ? 0 : 1;
        }
        if (!arguments.isEmpty()) {
            std::fputs("Usage: panel_bench [check]\n", stderr);
            return 2;
        }
        printPanel();
        printGrowth();
        printCameras();
    } catch (const QString &reason) {
        std::fprintf(stderr, "panel_bench: %s\n", qPrintable(reason));
        return 1;
    }
    return 0;
}
