#include "Literal.h"

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/// The viewer as it is called from the command line, without a display.
class ViewerTest : public QObject
{
    Q_OBJECT

    struct Result
    {
        int status;
        QString output;
        QString errors;
    };
    Result run(const QStringList &arguments)
    {
        QProcess viewer;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
            environment.remove(QString::fromLatin1(name));
        }
        viewer.setProcessEnvironment(environment);
        viewer.setWorkingDirectory(m_folder.path());
        viewer.start(QStringLiteral(VIEWER), arguments);
        if (!viewer.waitForFinished() || viewer.exitStatus() != QProcess::NormalExit) {
            return {-1, {}, viewer.errorString()};
        }
        return {viewer.exitCode(), QString::fromUtf8(viewer.readAllStandardOutput()),
                QString::fromUtf8(viewer.readAllStandardError())};
    }
    QImage render(const QStringList &arguments)
    {
        const QString file = m_folder.filePath("panel.png"_s);
        const Result result = run(arguments + QStringList{"--screenshot"_s, file});
        return result.status == 0 && result.errors.isEmpty() ? QImage(file) : QImage();
    }

    QTemporaryDir m_folder;

private Q_SLOTS:
    void badCallsAreOneLineAndStatus2()
    {
        const struct { QString arguments, named; } rows[] = { // and what the line has to name
            {"--bogus"_s, "bogus"_s},
            {"stray"_s, "stray"_s},
            {"--screenshot"_s, "screenshot"_s},
            {"--description nowhere.xml --screenshot a.png"_s, "nowhere.xml"_s},
            {"--description broken.xml --screenshot a.png"_s, "broken.xml"_s},
            {"--screenshot a.txt"_s, "a.txt"_s},
            {"--screenshot nowhere/a.png"_s, "nowhere/a.png"_s},
            {"--language xx"_s, "xx"_s},
            {"--set InputTriggerMode"_s, "InputTriggerMode"_s},
            {"--set Bogus=1 --screenshot a.png"_s, "Bogus"_s},
            {"--set InputTriggerMode=Bogus --screenshot a.png"_s, "Bogus"_s},
            {"--set InputKeyTrigger=maybe --screenshot a.png"_s, "maybe"_s},
            {"--device camera --save a.json"_s, "camera"_s},
            {"--device 127.0.0.1 --description broken.xml"_s, "--description"_s},
            {"--screenshot a.png --save a.json"_s, "--screenshot"_s},
            {"--apply nowhere.json"_s, "nowhere.json"_s},
            {"--apply broken.xml --save a.json"_s, "broken.xml: line 1"_s},
            {"--save nowhere/a.json"_s, "nowhere/a.json"_s},
            {"--set InputTriggerDelay=soon --screenshot a.png"_s, "soon"_s},
        };
        QFile broken(m_folder.filePath("broken.xml"_s));
        QVERIFY(broken.open(QIODevice::WriteOnly));
        broken.write("<RegisterDescription><Group>");
        broken.close();
        for (const auto &row : rows) {
            const Result result = run(row.arguments.split(u' '));
            QVERIFY2(result.status == 2 && result.output.isEmpty(), qPrintable(row.arguments));
            QVERIFY2(result.errors.count(u'\n') == 1 && result.errors.contains(row.named), qPrintable(result.errors));
            QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files), QStringList{"broken.xml"_s});
        }
    }

    void helpAndVersionAreShown()
    {
        for (const QString &option : {"--help"_s, "--version"_s}) {
            const Result result = run({option});
            QVERIFY2(result.status == 0 && result.errors.isEmpty() && !result.output.isEmpty(), qPrintable(option));
        }
    }

    void settingsGoFromCameraToCamera()
    {
        const auto call = [this](const char *arguments) { return run(QString::fromLatin1(arguments).split(u' ')); };
        const auto contents = [this](const char *name) {
            QFile file(m_folder.filePath(QString::fromLatin1(name)));
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
        QCOMPARE(call("--set InputTriggerMode=Hold --set InputTriggerSource=Udp --set TriggerUdpPort=4711 "
                      "--set TriggerStopConfig2Enable=true --save one.json").status, 0);
        const Result applied = call("--apply one.json --save two.json");
        QVERIFY2(applied.status == 0 && applied.errors.isEmpty(), qPrintable(applied.errors));
        QVERIFY(contents("one.json").contains("4711"));
        QCOMPARE(contents("two.json"), contents("one.json"));

        // One value that the camera does not take, and all else in force.
        QFile wrong(m_folder.filePath("wrong.json"_s));
        QVERIFY(wrong.open(QIODevice::WriteOnly) && wrong.write(contents("one.json").replace("4711", "99999")) > 0);
        wrong.close();
        const Result refused = call("--apply wrong.json --save three.json");
        QCOMPARE(refused.status, 1);
        QVERIFY2(refused.errors.count(u'\n') == 1 && refused.errors.contains("TriggerUdpPort = 99999"_s),
                 qPrintable(refused.errors));
        QVERIFY(contents("three.json").contains("Hold"));

        const Result locked = call("--set AcquisitionStart= --save four.json");
        QVERIFY(locked.status == 1 && locked.errors.count(u'\n') == 1);
        QVERIFY(contents("four.json").isEmpty());
    }

    void rendersTheBoundPanelWithoutADisplay()
    {
        const Result result = run({});
        QCOMPARE(result.status, 0);
        const QString file = QDir(m_folder.path()).absoluteFilePath("trigger-panel.png"_s);
        QVERIFY2(result.output.contains(file), qPrintable(result.output + result.errors));
        const QImage plain(file);
        QVERIFY(!plain.isNull());
        const QImage hold = render({"--set"_s, "InputTriggerMode=Hold"_s, "--set"_s, "InputTriggerSource=TcpServer"_s});
        QVERIFY2(hold.height() > plain.height() + 200, "the stop block and the section of the source are on it");
        const QImage german = render({"--language"_s, "de"_s});
        QVERIFY(!german.isNull());
        QVERIFY(german != plain);
    }
};

QTEST_MAIN(ViewerTest)
#include "ViewerTest.moc"
