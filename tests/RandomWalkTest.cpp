#include "PanelWalk.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

namespace {

constexpr uint kPatience = 60;      // seconds for a step
constexpr int kShortening = 120000; // milliseconds

/// What a walk tells while it is under way, in memory that outlives its process.
struct Account
{
    int taken = 0;          // steps, the present one included
    char fault[200] = {};   // empty also for a crash or an endless step
    int writes[7] = {};     // by the type of the node
    bool failed = false;
};

void takeAll(uint seed, const QVector<int> &steps, bool named, Account &account)
{
    int count = 1;
    char program[] = "RandomWalkTest", *arguments[] = {program, nullptr};
    QApplication app(count, arguments);
    QApplication::setDoubleClickInterval(0);
    QApplication::setKeyboardInputInterval(0); // nothing depends on how long a step takes
    QApplication::setCursorFlashTime(0);
    PanelWalk walk(seed);
    walk.onWrite = [&account](RuvoNodeType type) { ++account.writes[qBound(0, int(type), 6)]; };
    for (const int number : steps) {
        ++account.taken;
        alarm(kPatience);
        const QString name = walk.step(number);
        if (named) {
            std::printf("%6d  %s\n", number, qPrintable(name));
            std::fflush(stdout);
        }
        if (!walk.faults().isEmpty()) {
            qstrncpy(account.fault, qPrintable(walk.faults().first()), sizeof account.fault);
            return;
        }
    }
}

/// Takes these steps in a process of its own, which may crash or hang.
Account walk(uint seed, const QVector<int> &steps, bool named)
{
    void *const shared = mmap(nullptr, sizeof(Account), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    auto *const account = new (shared) Account;
    std::fflush(stdout);
    const pid_t child = fork();
    if (child == 0) {
        if (!named && !std::freopen("/dev/null", "w", stderr)) {
            std::exit(EXIT_FAILURE);
        }
        takeAll(seed, steps, named, *account);
        alarm(0);
        std::exit(account->fault[0] ? EXIT_FAILURE : EXIT_SUCCESS);
    }
    int status = 0;
    waitpid(child, &status, 0);
    account->failed = status != 0;
    const Account result = *account;
    munmap(shared, sizeof(Account));
    return result;
}

/// Leaves out what the fault does not need.
QVector<int> shortened(uint seed, QVector<int> steps, const Account &whole)
{
    QElapsedTimer timer;
    timer.start();
    steps.resize(whole.taken);
    for (int length = steps.size() / 2; length > 0; length /= 2) {
        for (int from = 0; from < steps.size() && timer.elapsed() < kShortening;) {
            QVector<int> fewer = steps;
            fewer.remove(from, qMin(length, steps.size() - from));
            const Account account = walk(seed, fewer, false);
            if (account.failed && qstrcmp(account.fault, whole.fault) == 0) {
                steps = fewer.mid(0, account.taken);
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
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    QCommandLineParser parser;
    parser.addOptions({{QStringLiteral("seed"), QStringLiteral("The first seed."), QStringLiteral("N"), QStringLiteral("1")},
                       {QStringLiteral("seeds"), QStringLiteral("How many of them."), QStringLiteral("N"), QStringLiteral("1")},
                       {QStringLiteral("steps"), QStringLiteral("Steps of each."), QStringLiteral("N"), QStringLiteral("1000")},
                       {QStringLiteral("only"), QStringLiteral("Only these steps of the first."), QStringLiteral("3,17,20")}});
    if (!parser.parse(arguments)) {
        std::fprintf(stderr, "%s\n%s", qPrintable(parser.errorText()), qPrintable(parser.helpText()));
        return 2;
    }
    const uint first = parser.value(QStringLiteral("seed")).toUInt();
    const uint end = first + parser.value(QStringLiteral("seeds")).toUInt();
    QVector<int> steps;
    for (const QString &number : parser.value(QStringLiteral("only")).split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        steps.append(number.toInt());
    }
    const bool replays = !steps.isEmpty();
    while (!replays && steps.size() < parser.value(QStringLiteral("steps")).toInt()) {
        steps.append(steps.size());
    }

    QElapsedTimer timer;
    timer.start();
    qint64 taken = 0;
    qint64 writes[7] = {};
    for (uint seed = first; seed < end; ++seed) {
        const Account account = walk(seed, steps, replays);
        if (account.failed && replays) {
            std::printf("%s\n", account.fault);
            return EXIT_FAILURE;
        }
        if (account.failed) {
            const QVector<int> few = shortened(seed, steps, account);
            walk(seed, few, true);
            QStringList numbers;
            for (const int number : few) {
                numbers.append(QString::number(number));
            }
            std::printf("Seed %u fails at step %d: %s\nShortened, and replayed by: ./test walk --seed %u --only %s\n", seed,
                        account.taken - 1, account.fault, seed, qPrintable(numbers.join(QLatin1Char(','))));
            return EXIT_FAILURE;
        }
        taken += account.taken;
        std::transform(std::begin(writes), std::end(writes), account.writes, writes, std::plus<>());
        std::printf("seed %u, %lld steps so far, %.0f a second\n", seed, taken, 1000.0 * double(taken) / double(timer.elapsed()));
        std::fflush(stdout);
    }
    std::printf("Written: %lld booleans, %lld integers, %lld floats, %lld entries, %lld texts; run: %lld commands\n", writes[1],
                writes[2], writes[3], writes[4], writes[6], writes[5]);
    // A walk on which nothing happens shows nothing.
    return taken < 2000 || std::all_of(writes + 1, writes + 7, [](qint64 count) { return count > 0; }) ? EXIT_SUCCESS : EXIT_FAILURE;
}
