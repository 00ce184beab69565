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
        const QString file = m_folder.filePath(QStringLiteral("panel.png"));
        const Result result = run(arguments + QStringList{QStringLiteral("--screenshot"), file});
        return result.status == 0 && result.errors.isEmpty() ? QImage(file) : QImage();
    }

    QTemporaryDir m_folder;

private Q_SLOTS:
    void badCallsAreOneLineAndStatus2_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("named"); // what the line has to name
        const auto row = [](const char *what, const char *arguments, const char *named) {
            QTest::newRow(what) << QString::fromLatin1(arguments).split(QLatin1Char(' ')) << QString::fromLatin1(named);
        };
        row("unknown option", "--bogus", "bogus");
        row("argument", "stray", "stray");
        row("missing value", "--screenshot", "screenshot");
        row("missing description", "--description nowhere.xml --screenshot a.png", "nowhere.xml");
        row("broken description", "--description broken.xml --screenshot a.png", "broken.xml");
        row("no picture", "--screenshot a.txt", "a.txt");
        row("unwritable picture", "--screenshot nowhere/a.png", "nowhere/a.png");
        row("unknown language", "--language xx", "xx");
        row("no value to set", "--set InputTriggerMode", "InputTriggerMode");
        row("unknown node", "--set Bogus=1 --screenshot a.png", "Bogus");
        row("refused value", "--set InputTriggerMode=Bogus --screenshot a.png", "Bogus");
        row("no truth", "--set InputKeyTrigger=maybe --screenshot a.png", "maybe");
        row("no address", "--device camera --save a.json", "camera");
        row("two cameras", "--device 127.0.0.1 --description broken.xml", "--description");
        row("picture and settings", "--screenshot a.png --save a.json", "--screenshot");
        row("missing settings", "--apply nowhere.json", "nowhere.json");
        row("broken settings", "--apply broken.xml --save a.json", "broken.xml: line 1");
        row("unwritable settings", "--save nowhere/a.json", "nowhere/a.json");
        row("no number", "--set InputTriggerDelay=soon --screenshot a.png", "soon");
    }
    void badCallsAreOneLineAndStatus2()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, named);
        QFile broken(m_folder.filePath(QStringLiteral("broken.xml")));
        QVERIFY(broken.open(QIODevice::WriteOnly));
        broken.write("<RegisterDescription><Group>");
        broken.close();
        const Result result = run(arguments);
        QCOMPARE(result.status, 2);
        QCOMPARE(result.errors.count(QLatin1Char('\n')), 1);
        QVERIFY2(result.errors.contains(named), qPrintable(result.errors));
        QVERIFY(result.output.isEmpty());
        QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("broken.xml")});
    }

    void helpNamesEveryOption()
    {
        const Result result = run({QStringLiteral("--help")});
        QCOMPARE(result.status, 0);
        for (const char *option : {"--device", "--description", "--set", "--apply", "--save", "--language", "--screenshot", "--version"}) {
            QVERIFY2(result.output.contains(QString::fromLatin1(option)), option);
        }
    }

    void settingsGoFromCameraToCamera()
    {
        const auto call = [this](const char *arguments) { return run(QString::fromLatin1(arguments).split(QLatin1Char(' '))); };
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
        QFile wrong(m_folder.filePath(QStringLiteral("wrong.json")));
        QVERIFY(wrong.open(QIODevice::WriteOnly) && wrong.write(contents("one.json").replace("4711", "99999")) > 0);
        wrong.close();
        const Result refused = call("--apply wrong.json --save three.json");
        QCOMPARE(refused.status, 1);
        QVERIFY2(refused.errors.count(QLatin1Char('\n')) == 1 && refused.errors.contains(QStringLiteral("TriggerUdpPort = 99999")),
                 qPrintable(refused.errors));
        QVERIFY(contents("three.json").contains("Hold"));

        const Result locked = call("--set AcquisitionStart= --save four.json");
        QVERIFY(locked.status == 1 && locked.errors.count(QLatin1Char('\n')) == 1);
        QVERIFY(contents("four.json").isEmpty());
    }

    void rendersTheBoundPanel()
    {
        const QImage plain = render({});
        QVERIFY(!plain.isNull());
        const QImage hold = render({QStringLiteral("--set"), QStringLiteral("InputTriggerMode=Hold"),
                                    QStringLiteral("--set"), QStringLiteral("InputTriggerSource=TcpServer")});
        QVERIFY2(hold.height() > plain.height() + 200, "the stop block and the section of the source are on it");
        const QImage german = render({QStringLiteral("--language"), QStringLiteral("de")});
        QVERIFY(!german.isNull());
        QVERIFY(german != plain);
    }

    void rendersIntoANamedFileWithoutADisplay()
    {
        const Result result = run({});
        QCOMPARE(result.status, 0);
        const QString file = QDir(m_folder.path()).absoluteFilePath(QStringLiteral("trigger-panel.png"));
        QVERIFY2(result.output.contains(file), qPrintable(result.output + result.errors));
        QVERIFY(!QImage(file).isNull());
    }
};

QTEST_MAIN(ViewerTest)
#include "ViewerTest.moc"
