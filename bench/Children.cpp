#include "Children.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

QByteArray output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_HASH_SEED"), QStringLiteral("0")); // the same work in every run
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        throw QStringLiteral("%1 %2: %3").arg(program, arguments.join(QLatin1Char(' ')), process.errorString());
    }
    return process.readAllStandardOutput();
}

} // namespace

Figures Children::run(const QStringList &arguments)
{
    Figures figures;
    const auto lines = output(QCoreApplication::applicationFilePath(), arguments).split('\n');
    for (const QByteArray &line : lines) {
        const QList<QByteArray> parts = line.split('\t');
        if (parts.size() != 2) {
            continue;
        }
        QVector<double> &values = figures[QString::fromUtf8(parts.at(0))];
        const auto numbers = parts.at(1).split(' ');
        for (const QByteArray &number : numbers) {
            values.append(number.toDouble());
        }
    }
    return figures;
}

Figures Children::instructions(const QStringList &arguments)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("callgrind"));
    output(QStringLiteral("valgrind"),
           QStringList{QStringLiteral("--quiet"), QStringLiteral("--tool=callgrind"),
                       QStringLiteral("--combine-dumps=yes"), QStringLiteral("--collect-atstart=no"),
                       QStringLiteral("--callgrind-out-file=") + path, QCoreApplication::applicationFilePath()}
               + arguments);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw QStringLiteral("%1: %2").arg(path, file.errorString());
    }
    Figures figures;
    QString name;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        const QByteArray trigger("desc: Trigger: Client Request: ");
        if (line.startsWith(trigger)) {
            name = QString::fromUtf8(line.mid(trigger.size()));
        } else if (line.startsWith("totals: ") && !name.isEmpty()) {
            figures[name].append(line.mid(8).toDouble());
            name.clear();
        }
    }
    return figures;
}
