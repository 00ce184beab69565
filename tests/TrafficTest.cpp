#include "viewer/NodeView.h"
#include "viewer/TrafficModel.h"
#include "viewer/TrafficView.h"

#include "ScriptedDevice.h"

#include "devices/GenicamDevice.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

namespace {

TracedDevice::Call call(TracedDevice::Operation operation, const QString &node, const QString &value = {},
                        long status = 0, const QString &reason = {})
{
    return {0, 1500, status, operation, node, value, reason};
}

QStringList column(const QAbstractItemModel *model, int column)
{
    QStringList texts;
    for (int row = 0; row < model->rowCount(); ++row) {
        texts.append(model->index(row, column).data().toString());
    }
    return texts;
}

QTableView *tableOf(const QWidget &view) { return view.findChild<QTableView *>(); }

void click(const QWidget &view, const QString &text)
{
    for (auto *button : view.findChildren<QAbstractButton *>()) {
        if (button->text() == text) {
            return button->click();
        }
    }
    QFAIL("no such button");
}

} // namespace

/// The calls to a device, from the device to the table, and the table of its nodes.
class TrafficTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { QTest::qWait(50); } // the animation of a line edit outlives it until its next step
    void everyCallIsForwardedAndReported();
    void theLastCallsAreKeptAndFollowed();
    void filteredPausedAndCopied();
    void savedAsCsv();
    void nodesAreReadWhenShown();
};

void TrafficTest::everyCallIsForwardedAndReported()
{
    using D = TracedDevice;
    ScriptedDevice scripted;
    QStringList reports;
    D device(scripted, [&](const D::Call &made) {
        QVERIFY(made.nanoseconds > 0 && qAbs(made.time - QDateTime::currentMSecsSinceEpoch()) < 5000);
        const QString sign = D::isWrite(made.operation) ? "<-"_s : "->"_s;
        reports.append(D::name(made.operation) + " "_s + made.node + sign + made.value + made.reason);
    }, [] { return " failed"_s; });
    const QString text(300, u'x');
    scripted.node("Text") = {RuvoNodeString, text};
    scripted.node("Enum") = {RuvoNodeEnumeration, "One"_s, {"One"_s, "Two"_s}};
    scripted.node("Float") = {RuvoNodeFloat, 0.1F, {}, RuvoNodeReadWrite, -1, 1, 0.25};
    scripted.node("Bool") = {RuvoNodeBoolean, true};
    scripted.node("Int") = {RuvoNodeInteger, -5, {}, RuvoNodeNotAvailable, -10, 10, 5};
    int i[4] = {};
    float f[4] = {};
    bool isOn = false;
    QString string, entry;
    QList<QString> entries;
    const auto countSuccesses = [&] {
        return QVector<long>{
            device.getParamInt("Int"_s, i[0], i[1], i[2], i[3]),
            device.getParamFloat("Float"_s, f[0], f[1], f[2], f[3]),
            device.getParamBool("Bool"_s, isOn), device.getParamEnum("Enum"_s, entry, entries),
            device.getParamString("Text"_s, string), device.getNodeType("Bool"_s) - RuvoNodeBoolean,
            device.getNodeAccessMode("Int"_s) - RuvoNodeNotAvailable, device.setParamInt("Int"_s, -3),
            device.setParamFloat("Float"_s, 16777215), device.setParamBool("Bool"_s, false),
            device.setParamEnum("Enum"_s, "Two"_s), device.setParamString("Text"_s, "y"_s),
            device.executeCMD("Run"_s)}.count(0);
    };
    QCOMPARE(countSuccesses(), 13);
    QCOMPARE(scripted.calls.join(u'|'),
             "get Int|get Float|get Bool|get Enum|get Text|type Bool|mode Int|set Int=-3|set Float=16777215|"
             "set Bool=false|set Enum=Two|set Text=y|run Run"_s);
    QCOMPARE(reports.join(u'|').replace(text.left(256) + "…"_s, "CUT"_s),
             "getParamInt Int->-5|getParamFloat Float->0.1|getParamBool Bool->true|getParamEnum Enum->One|"
             "getParamString Text->CUT|getNodeType Bool->Boolean|getNodeAccessMode Int->NA|setParamInt Int<--3|"
             "setParamFloat Float<-16777215|setParamBool Bool<-false|setParamEnum Enum<-Two|setParamString Text<-y|"
             "executeCMD Run<-"_s);
    QVERIFY(i[0] == -5 && i[1] == -10 && i[2] == 10 && i[3] == 5);
    QVERIFY(f[0] == 0.1F && f[1] == -1 && f[2] == 1 && f[3] == 0.25F);
    QCOMPARE((QStringList{entry, string} + entries), (QStringList{"One"_s, text, "One"_s, "Two"_s}));

    for (const char *const node : {"Int", "Float", "Bool", "Enum", "Text", "Run"}) {
        scripted.node(node).failsReads = scripted.node(node).refusesWrites = true;
    }
    reports.clear();
    QCOMPARE(countSuccesses(), 2);
    QCOMPARE(reports.filter(" failed"_s).size(), 11);
    QCOMPARE(reports.filter("Int"_s).join(u'|'),
             "getParamInt Int-> failed|getNodeAccessMode Int->NA|setParamInt Int<--3 failed"_s);
}

void TrafficTest::theLastCallsAreKeptAndFollowed()
{
    TrafficModel model;
    TrafficView view;
    view.setModel(&model);
    view.show();
    QTableView *const table = tableOf(view);
    QScrollBar *const bar = table->verticalScrollBar();
    const auto top = [&] { return table->indexAt({0, 0}).siblingAtColumn(TrafficModel::Node).data().toString(); };
    int made = 0;
    const auto run = [&](int count) {
        for (const int end = made + count; made < end; ++made) {
            model.append(call(TracedDevice::GetInt, QString::number(made)));
        }
        QTRY_VERIFY(model.rowCount() > 0 && model.call(model.rowCount() - 1).node == QString::number(made - 1));
        QCoreApplication::processEvents();
        QCOMPARE(model.rowCount(), qMin(made, TrafficModel::kMaxCalls));
        QCOMPARE(table->model()->rowCount(), model.rowCount()); // by what it was told
        QCOMPARE(model.call(0).node, QString::number(made - model.rowCount()));
    };
    for (const int count : {TrafficModel::kMaxCalls - 10, 25, 3000, 2 * TrafficModel::kMaxCalls + 1}) {
        run(count);
        QCOMPARE(bar->value(), bar->maximum());
    }
    table->setCurrentIndex(table->model()->index(10, 0)); // will be among those dropped
    bar->setValue(5000);
    const QString looked = top();
    for (int i = 0; i < 2; ++i) { // what is looked at stays
        run(100);
        QCOMPARE(top(), looked);
    }
    bar->setValue(bar->maximum());
    run(100);
    QCOMPARE(bar->value(), bar->maximum());
    QVERIFY(top().toInt() > made - 100);
}

void TrafficTest::filteredPausedAndCopied()
{
    TrafficModel model;
    TrafficView view;
    view.setModel(&model);
    const QAbstractItemModel *const shown = tableOf(view)->model();
    const QAbstractItemModelTester modelTester(&model);
    const QAbstractItemModelTester shownTester(tableOf(view)->model());
    const auto nodes = [&] { return column(shown, TrafficModel::Node).join(u' '); };
    model.append(call(TracedDevice::GetInt, "Delay"_s, "12"_s));
    model.append(call(TracedDevice::SetInt, "Delay2"_s, "x\ty"_s, 3, "Locked out"_s));
    click(view, "Pause"_s);
    model.append(call(TracedDevice::SetInt, "Unseen"_s));
    click(view, "Pause"_s);
    model.append(call(TracedDevice::Execute, "Start"_s));
    model.append(call(TracedDevice::GetBool, "Count"_s, {}, 2));
    QCOMPARE(nodes(), QString()); // not at once
    QTRY_COMPARE(nodes(), "Delay Delay2 Start Count"_s);

    const struct { const char *text, *all, *writes; } rows[] = {
        {"delay", "Delay Delay2", "Delay2"}, {"GETPARAM", "Delay Count", ""}, {"12", "Delay", ""},
        {"locked", "Delay2", "Delay2"}, {"1.5", "", ""}, {"", "Delay Delay2 Start Count", "Delay2 Start"},
    };
    for (const auto &row : rows) {
        view.findChild<QLineEdit *>()->setText(QString::fromLatin1(row.text));
        QCOMPARE(nodes(), QString::fromLatin1(row.all));
        click(view, "Writes only"_s);
        QCOMPARE(nodes(), QString::fromLatin1(row.writes));
        click(view, "Writes only"_s);
    }
    const auto mark = [&](int row) { return shown->index(row, 0).data(Qt::BackgroundRole); };
    QVERIFY(!mark(0).isValid() && !mark(2).isValid());
    QVERIFY(mark(1).isValid() && mark(3).isValid() && mark(1) != mark(3));

    const QClipboard *const clipboard = QGuiApplication::clipboard();
    click(view, "Copy"_s);
    QCOMPARE(clipboard->text().count(u'\n'), 5);
    view.show();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    tableOf(view)->setFocus();
    tableOf(view)->selectRow(1);
    QTest::keyClick(tableOf(view), Qt::Key_C, Qt::ControlModifier);
    const QString time = shown->index(1, 0).data().toString();
    QCOMPARE(clipboard->text(), "Time\tOperation\tNode\tValue\tStatus\tDuration (µs)\n"_s + time
                 + "\tsetParamInt\tDelay2\tx y\t3 Locked out\t1.5\n"_s);

    model.append(call(TracedDevice::Execute, "Late"_s));
    click(view, "Clear"_s);
    QTest::qWait(200);
    QCOMPARE(nodes(), QString());
}

void TrafficTest::savedAsCsv()
{
    const struct { const char *value, *field; } rows[] = {
        {"start", "\"start\""}, {"a,b", "\"a,b\""}, {"say \"go\"\r\nµ…", "\"say \"\"go\"\"\r\nµ…\""},
        {"-5", "\"-5\""}, {"=1+1", "\"'=1+1\""}, {"-1+cmd", "\"'-1+cmd\""}, {"\t=1", "\"'\t=1\""},
    };
    TrafficModel model;
    TrafficView view;
    view.setModel(&model);
    QString expected = "Time,Operation,Node,Value,Status,Reason,Microseconds\r\n"_s;
    const QString time = QDateTime::fromMSecsSinceEpoch(0).toString("yyyy-MM-ddTHH:mm:ss.zzz"_s);
    for (const auto &row : rows) {
        model.append(call(TracedDevice::SetString, "Node"_s, QString::fromUtf8(row.value), -2, "=no"_s));
        expected += time + ",setParamString,\"Node\","_s + QString::fromUtf8(row.field) + ",-2,\"'=no\",1.500\r\n"_s;
    }
    QTRY_COMPARE(model.rowCount(), int(std::size(rows)));
    QCOMPARE(QString::fromUtf8(view.csv()), expected);

    const QTemporaryDir folder;
    QString name = "calls.csv"_s;
    QString complaint;
    QTimer user;
    connect(&user, &QTimer::timeout, this, [&] {
        auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (auto *const files = qobject_cast<QFileDialog *>(dialog)) {
            files->selectFile(folder.filePath(name));
        } else if (auto *const box = qobject_cast<QMessageBox *>(dialog)) {
            complaint = box->textFormat() == Qt::PlainText ? box->text() : "rich text"_s;
        }
        if (dialog) {
            dialog->accept();
        }
    });
    user.start(10);
    click(view, "Save…"_s);
    QCOMPARE(complaint, QString());
    name = "nowhere/calls.csv"_s;
    click(view, "Save…"_s);
    QFile file(folder.filePath("calls.csv"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), view.csv());
    QVERIFY2(complaint.contains("nowhere"_s), qPrintable(complaint));
}

void TrafficTest::nodesAreReadWhenShown()
{
    QFile file(":/devices/smartcamera.xml"_s);
    GenicamDevice::openBuiltIn({}, nullptr); // carries the description
    QVERIFY(file.open(QIODevice::ReadOnly));
    QTemporaryFile broken; // the serial number is where no memory is
    QVERIFY(broken.open());
    broken.write(file.readAll().replace("<Address>0x00d8</Address>", "<Address>0x20000</Address>")
                     .replace("<Extension><PowerUp>EV-000001</PowerUp></Extension>", ""));
    broken.close();
    const auto camera = GenicamDevice::openBuiltIn(broken.fileName(), nullptr);
    NodeView view;
    QTableView *const table = tableOf(view);
    const QAbstractItemModel *const shown = table->model();
    const auto line = [&](const QString &node) {
        const int row = column(shown, 0).indexOf(node);
        QStringList cells;
        for (int column = 1; column < shown->columnCount(); ++column) {
            cells.append(shown->index(row, column).data().toString());
        }
        return cells.join(u'|');
    };
    view.setDevice(camera.get());
    QCOMPARE(shown->rowCount(), 0); // nothing read yet
    view.show();
    QCOMPARE(column(shown, 0), camera->nodes());
    QVERIFY(!column(shown, 6).contains(QString())); // each feature of ours explains itself
    const QString delay = "|0 … 1000, step 0.1|ms|Time from the trigger to the reading, in milliseconds"_s;
    QCOMPARE(line("InputTriggerDelay"_s), "Float|read/write|0"_s + delay);
    const char *const lines[][2] = {
        {"InputTriggerMode", "Enumeration|read/write|Normal|None, Normal, Hold||"},
        {"DeviceModelName", "String|read-only|CodeReader 5||"}, {"TriggerUdpPort", "Integer|not available|||"},
        {"AcquisitionStop", "Command|write-only|||"}, {"TriggerCount", "Integer|read-only|0|≥ 0||"},
        {"DeviceSerialNumber", "String|read-only|– DeviceSerialNumber: "},
    };
    for (const auto &[node, start] : lines) {
        const QString text = line(QString::fromLatin1(node));
        QVERIFY2(text.startsWith(QString::fromUtf8(start)), qPrintable(text));
    }

    // A refresh leaves alone what the user has arranged.
    table->sortByColumn(0, Qt::DescendingOrder);
    table->selectRow(3);
    table->verticalScrollBar()->setValue(7);
    const QString selected = shown->index(3, 0).data().toString();
    QSignalSpy changes(shown, &QAbstractItemModel::dataChanged);
    QCOMPARE(camera->setParamFloat("InputTriggerDelay"_s, 2.5F), 0L);
    view.hide();
    view.refresh();
    QCOMPARE(changes.size(), 0);
    view.show();
    QCOMPARE(line("InputTriggerDelay"_s), "Float|read/write|2.5"_s + delay);
    QCOMPARE(table->selectionModel()->selectedRows().value(0).data().toString(), selected);
    QCOMPARE(table->verticalScrollBar()->value(), 7);
    QCOMPARE(column(shown, 0).first(), "UserSetSelector"_s);
    changes.clear();
    view.setDevice(camera.get());
    QCOMPARE(changes.size(), 0); // nothing has changed
    QCOMPARE(camera->executeCMD("AcquisitionStart"_s), 0L);
    click(view, "Refresh"_s);
    QCOMPARE(line("InputTriggerDelay"_s), "Float|read-only|2.5"_s + delay);

    view.findChild<QLineEdit *>()->setText("udp, rs-232"_s); // among the entries of one node
    QCOMPARE(column(shown, 0), QStringList("InputTriggerSource"_s));
    view.findChild<QLineEdit *>()->clear();
    view.setDevice(nullptr);
    QCOMPARE(shown->rowCount(), 0);
}

QTEST_MAIN(TrafficTest)
#include "TrafficTest.moc"
