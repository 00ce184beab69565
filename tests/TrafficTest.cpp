#include "viewer/NodeView.h"
#include "viewer/RecordTable.h"
#include "viewer/TrafficModel.h"
#include "viewer/TrafficView.h"

#include "ScriptedDevice.h"

#include "devices/GenicamDevice.h"

#include <QAbstractItemModelTester>
#include <QAbstractProxyModel>
#include <QCheckBox>
#include <QClipboard>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

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

QString lastNode(const TrafficModel &model)
{
    return model.rowCount() > 0 ? model.call(model.rowCount() - 1).node : QString();
}

RecordTable *tableOf(const QWidget &view) { return view.findChild<RecordTable *>(); }

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
    void cleanup() { QTest::qWait(20); } // the animation of a line edit outlives it until its next step
    void everyCallIsForwardedAndReported();
    void longTextsAreCut();
    void theLastCallsAreKept();
    void theEndIsFollowed();
    void filteredPausedCopiedAndSaved();
    void csvFields_data();
    void csvFields();
    void nodesAreReadWhenShown();
    void nodesThatCannotBeRead();
};

void TrafficTest::everyCallIsForwardedAndReported()
{
    using D = TracedDevice;
    ScriptedDevice scripted;
    QVector<D::Call> reports;
    int reasons = 0;
    D device(scripted, [&](const D::Call &made) { reports.append(made); },
             [&] { return "reason %1"_s.arg(++reasons); });
    scripted.node("Text") = {RuvoNodeString, "a\nb"_s};
    scripted.node("Enum") = {RuvoNodeEnumeration, "One"_s, {"One"_s, "Two"_s}};
    scripted.node("Float") = {RuvoNodeFloat, 0.1F, {}, RuvoNodeReadWrite, -1, 1, 0.25};
    scripted.node("Bool") = {RuvoNodeBoolean, true};
    scripted.node("Int") = {RuvoNodeInteger, -5, {}, RuvoNodeNotAvailable, -10, 10, 5};
    scripted.node("Odd").mode = RuvoNodeAccessMode(9);

    int i = 0, iMin = 0, iMax = 0, iInc = 0;
    float f = 0, fMin = 0, fMax = 0, fInc = 0;
    bool b = false;
    QString text, current;
    QList<QString> entries;
    const struct
    {
        D::Operation operation;
        const char *name, *node, *call, *value;
        std::function<long(const QString &)> run;
    } rows[] = {
        {D::GetInt, "getParamInt", "Int", "get Int", "-5",
         [&](const QString &n) { return device.getParamInt(n, i, iMin, iMax, iInc); }},
        {D::GetFloat, "getParamFloat", "Float", "get Float", "0.1",
         [&](const QString &n) { return device.getParamFloat(n, f, fMin, fMax, fInc); }},
        {D::GetBool, "getParamBool", "Bool", "get Bool", "true",
         [&](const QString &n) { return device.getParamBool(n, b); }},
        {D::GetEnum, "getParamEnum", "Enum", "get Enum", "One",
         [&](const QString &n) { return device.getParamEnum(n, current, entries); }},
        {D::GetString, "getParamString", "Text", "get Text", "a\nb",
         [&](const QString &n) { return device.getParamString(n, text); }},
        {D::SetInt, "setParamInt", "Int", "set Int=-3", "-3",
         [&](const QString &n) { return device.setParamInt(n, -3); }},
        {D::SetFloat, "setParamFloat", "Float", "set Float=16777215", "16777215",
         [&](const QString &n) { return device.setParamFloat(n, 16777215.0F); }},
        {D::SetBool, "setParamBool", "Bool", "set Bool=false", "false",
         [&](const QString &n) { return device.setParamBool(n, false); }},
        {D::SetEnum, "setParamEnum", "Enum", "set Enum=Two", "Two",
         [&](const QString &n) { return device.setParamEnum(n, "Two"_s); }},
        {D::SetString, "setParamString", "Text", "set Text=", "",
         [&](const QString &n) { return device.setParamString(n, {}); }},
        {D::Execute, "executeCMD", "Run", "run Run", "", [&](const QString &n) { return device.executeCMD(n); }},
    };
    for (const bool fails : {false, true}) {
        for (const auto &row : rows) {
            const QString node = QString::fromLatin1(row.node);
            scripted.node(node).failsReads = scripted.node(node).refusesWrites = fails;
            scripted.calls.clear();
            reports.clear();
            const qint64 before = QDateTime::currentMSecsSinceEpoch();
            const long status = row.run(node);
            QVERIFY2((status != 0) == fails, row.name);
            QCOMPARE(scripted.calls, QStringList(QString::fromLatin1(row.call)));
            QCOMPARE(reports.size(), 1);
            QCOMPARE(reports[0].status, status);
            QCOMPARE(reports[0].operation, row.operation);
            QCOMPARE(D::name(row.operation), QString::fromLatin1(row.name));
            QCOMPARE(D::isWrite(row.operation), !QByteArray(row.name).startsWith("get"));
            QCOMPARE(reports[0].node, node);
            const bool hasValue = !fails || D::isWrite(row.operation);
            QCOMPARE(reports[0].value, hasValue ? QString::fromLatin1(row.value) : QString());
            QCOMPARE(reports[0].reason, fails ? "reason %1"_s.arg(reasons) : QString());
            QVERIFY(reports[0].time >= before && reports[0].time <= QDateTime::currentMSecsSinceEpoch());
            QVERIFY(reports[0].nanoseconds > 0);
        }
    }
    QCOMPARE(reasons, int(std::size(rows))); // asked for failures only
    QCOMPARE((QVector<int>{i, iMin, iMax, iInc}), (QVector<int>{-5, -10, 10, 5}));
    QCOMPARE((QVector<float>{f, fMin, fMax, fInc}), (QVector<float>{0.1F, -1, 1, 0.25F}));
    QCOMPARE((QStringList{current, text} + entries), (QStringList{"One"_s, "a\nb"_s, "One"_s, "Two"_s}));
    QVERIFY(b);

    reports.clear();
    QCOMPARE(device.getNodeType("Bool"_s), RuvoNodeBoolean);
    QCOMPARE(device.getNodeAccessMode("Int"_s), RuvoNodeNotAvailable);
    device.getNodeAccessMode("Odd"_s);
    QCOMPARE(D::name(reports[0].operation) + reports[0].value, "getNodeTypeBoolean"_s);
    QCOMPARE(D::name(reports[1].operation) + reports[1].value, "getNodeAccessModeNA"_s);
    QCOMPARE(reports[2].value, "9"_s);
}

void TrafficTest::longTextsAreCut()
{
    ScriptedDevice scripted;
    QStringList values;
    TracedDevice device(scripted, [&](const TracedDevice::Call &made) { values.append(made.value); }, {});
    device.setParamString("Text"_s, QString(256, QLatin1Char('x')));
    device.setParamString("Text"_s, QString(300, QLatin1Char('x')));
    QCOMPARE(values, (QStringList{QString(256, QLatin1Char('x')), QString(256, QLatin1Char('x')) + "…"_s}));
    QCOMPARE(scripted.node("Text").value.toString().size(), 300);
}

void TrafficTest::theLastCallsAreKept()
{
    TrafficModel model;
    int rows = 0; // as a view knows it
    connect(&model, &QAbstractItemModel::rowsInserted, this, [&](const QModelIndex &, int first, int last) {
        QCOMPARE(first, rows);
        rows += last - first + 1;
        QVERIFY(rows <= TrafficModel::kMaxCalls);
    });
    connect(&model, &QAbstractItemModel::rowsRemoved, this, [&](const QModelIndex &, int first, int last) {
        QCOMPARE(first, 0);
        rows -= last + 1;
    });
    int made = 0;
    const auto run = [&](int count) {
        for (const int end = made + count; made < end; ++made) {
            model.append(call(TracedDevice::GetInt, QString::number(made)));
        }
        QCOMPARE(model.rowCount(), rows); // not shown at once
        QTRY_COMPARE(lastNode(model), QString::number(made - 1));
        QCOMPARE(model.rowCount(), rows);
    };
    run(TrafficModel::kMaxCalls - 10);
    QCOMPARE(rows, TrafficModel::kMaxCalls - 10);
    for (const int count : {25, 3000, 2 * TrafficModel::kMaxCalls + 1}) {
        run(count);
        QCOMPARE(rows, TrafficModel::kMaxCalls);
        QCOMPARE(model.call(0).node, QString::number(made - TrafficModel::kMaxCalls));
    }
}

void TrafficTest::theEndIsFollowed()
{
    TrafficModel model;
    TrafficView view;
    view.setModel(&model);
    view.show();
    int made = 0;
    const auto run = [&](int count) {
        for (const int end = made + count; made < end; ++made) {
            model.append(call(TracedDevice::GetInt, QString::number(made)));
        }
        QTRY_COMPARE(lastNode(model), QString::number(made - 1));
        QCoreApplication::processEvents();
    };
    RecordTable *const table = tableOf(view);
    const auto top = [&] { return table->indexAt({0, 0}).siblingAtColumn(TrafficModel::Node).data().toString(); };
    QScrollBar *const bar = table->verticalScrollBar();
    run(TrafficModel::kMaxCalls);
    QCOMPARE(bar->value(), bar->maximum());
    table->setCurrentIndex(table->model()->index(10, 0)); // will be among those dropped
    bar->setValue(5000);
    for (int i = 0; i < 2; ++i) { // what is looked at stays
        run(100);
        QCOMPARE(top(), "5000"_s);
    }
    table->setCurrentIndex(table->model()->index(10, 0));
    bar->setValue(bar->maximum());
    run(100);
    QCOMPARE(bar->value(), bar->maximum());
    QVERIFY(top().toInt() > made - 100);
}

void TrafficTest::filteredPausedCopiedAndSaved()
{
    TrafficModel model;
    TrafficView view;
    view.setModel(&model);
    const QAbstractItemModel *const shown = tableOf(view)->model();
    const QAbstractItemModelTester modelTester(&model);
    const QAbstractItemModelTester shownTester(tableOf(view)->model());
    const auto nodes = [&] { return column(shown, TrafficModel::Node).join(QLatin1Char(' ')); };
    model.append(call(TracedDevice::GetInt, "Delay"_s, "12"_s));
    model.append(call(TracedDevice::SetInt, "Delay2"_s, "x\ty"_s, 3, "Delay2: Locked out"_s));
    click(view, "Pause"_s);
    model.append(call(TracedDevice::SetInt, "Unseen"_s));
    click(view, "Pause"_s);
    model.append(call(TracedDevice::Execute, "Start"_s));
    model.append(call(TracedDevice::GetBool, "Count"_s, {}, 2));
    QTRY_COMPARE(nodes(), "Delay Delay2 Start Count"_s);

    auto *const filter = view.findChild<QLineEdit *>();
    const struct { const char *text, *all, *writes; } rows[] = {
        {"delay", "Delay Delay2", "Delay2"}, {"GETPARAM", "Delay Count", ""}, {"12", "Delay", ""},
        {"locked", "Delay2", "Delay2"},
        {"1.5", "", ""}, {"", "Delay Delay2 Start Count", "Delay2 Start"},
    };
    for (const auto &row : rows) {
        filter->setText(QString::fromLatin1(row.text));
        QCOMPARE(nodes(), QString::fromLatin1(row.all));
        click(view, "Writes only"_s);
        QCOMPARE(nodes(), QString::fromLatin1(row.writes));
        click(view, "Writes only"_s);
    }
    QString marks; // a failure is red, a failed write on a ground of its own
    for (int row = 0; row < shown->rowCount(); ++row) {
        for (const int role : {Qt::ForegroundRole, Qt::BackgroundRole}) {
            marks += QString::number(shown->index(row, 0).data(role).isValid());
        }
    }
    QCOMPARE(marks, "00110010"_s);

    const QClipboard *const clipboard = QGuiApplication::clipboard();
    click(view, "Copy"_s);
    QCOMPARE(clipboard->text().count(QLatin1Char('\n')), 5);
    tableOf(view)->selectRow(1);
    QTest::keyClick(tableOf(view), Qt::Key_C, Qt::ControlModifier);
    const QString time = shown->index(1, 0).data().toString();
    QCOMPARE(clipboard->text(), "Time\tOperation\tNode\tValue\tStatus\tDuration (µs)\n"_s + time
                 + "\tsetParamInt\tDelay2\tx y\t3 Locked out\t1.5\n"_s);

    click(view, "Save…"_s);
    auto *const dialog = view.findChild<QFileDialog *>();
    const QTemporaryDir folder;
    Q_EMIT dialog->fileSelected(folder.filePath("calls.csv"_s));
    QFile file(folder.filePath("calls.csv"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), view.csv());
    QString complaint;
    QTimer::singleShot(0, this, [&] {
        auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        complaint = box->text();
        box->accept();
    });
    Q_EMIT dialog->fileSelected(folder.filePath("nowhere/calls.csv"_s));
    QVERIFY2(complaint.contains("nowhere"_s), qPrintable(complaint));

    model.append(call(TracedDevice::Execute, "Late"_s));
    click(view, "Clear"_s);
    QTest::qWait(200);
    QCOMPARE(nodes(), QString());
    view.setModel(nullptr);
    QCOMPARE(shown->columnCount(), 0);
}

void TrafficTest::csvFields_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("field");
    const auto row = [](const char *value, const char *field) {
        QTest::newRow(value) << QString::fromUtf8(value) << QString::fromUtf8(field);
    };
    row("start", "\"start\"");
    row("", "\"\"");
    row("a,b", "\"a,b\"");
    row("say \"go\"\r\nµ…", "\"say \"\"go\"\"\r\nµ…\"");
    row("-5", "\"-5\"");
    row("+1e3", "\"+1e3\"");
    row("=1+1", "\"'=1+1\"");
    row("-1+cmd", "\"'-1+cmd\"");
    row("@x", "\"'@x\"");
    row("\t=1", "\"'\t=1\"");
}

void TrafficTest::csvFields()
{
    QFETCH(QString, value);
    QFETCH(QString, field);
    TrafficModel model;
    TrafficView view;
    view.setModel(&model);
    model.append(call(TracedDevice::SetString, "Node"_s, value, -2, "=no"_s));
    QTRY_COMPARE(model.rowCount(), 1);
    const QString time = QDateTime::fromMSecsSinceEpoch(0).toString("yyyy-MM-ddTHH:mm:ss.zzz"_s);
    QCOMPARE(QString::fromUtf8(view.csv()), "Time,Operation,Node,Value,Status,Reason,Microseconds\r\n"_s + time
                 + ",setParamString,\"Node\","_s + field + ",-2,\"'=no\",1.500\r\n"_s);
}

void TrafficTest::nodesAreReadWhenShown()
{
    const auto camera = GenicamDevice::openBuiltIn({}, nullptr);
    NodeView view;
    RecordTable *const table = tableOf(view);
    const QAbstractItemModel *const shown = table->model();
    const auto line = [&](const QString &node) {
        const int row = column(shown, 0).indexOf(node);
        QStringList cells;
        for (int column = 1; column < shown->columnCount(); ++column) {
            cells.append(shown->index(row, column).data().toString());
        }
        return cells.join(QLatin1Char('|'));
    };
    view.setDevice(camera.get());
    QCOMPARE(shown->rowCount(), 0); // nothing read yet
    view.show();
    QCOMPARE(column(shown, 0), camera->nodes());
    for (const QString &text : column(shown, 6)) {
        QVERIFY(!text.isEmpty()); // each feature of ours explains itself
    }
    const QString delay = "|0 … 1000, step 0.1|ms|Time from the trigger to the reading, in milliseconds"_s;
    QCOMPARE(line("InputTriggerDelay"_s), "Float|read/write|0"_s + delay);
    QVERIFY(line("InputTriggerMode"_s).startsWith("Enumeration|read/write|Normal|None, Normal, Hold||"_s));
    QVERIFY(line("DeviceModelName"_s).startsWith("String|read-only|CodeReader 5||"_s));
    QVERIFY(line("TriggerUdpPort"_s).startsWith("Integer|not available|||"_s));
    QVERIFY(line("AcquisitionStop"_s).startsWith("Command|write-only|||"_s));
    QVERIFY(line("TriggerCount"_s).startsWith("Integer|read-only|0|0 …||"_s));

    // A refresh leaves alone what the user has arranged.
    table->sortByColumn(0, Qt::DescendingOrder);
    table->selectRow(3);
    table->verticalScrollBar()->setValue(7);
    const QString selected = shown->index(3, 0).data().toString();
    QSignalSpy changes(shown, &QAbstractItemModel::dataChanged);
    QCOMPARE(camera->setParamFloat("InputTriggerDelay"_s, 2.5F), 0L);
    QCOMPARE(camera->setParamEnum("InputTriggerSource"_s, "Udp"_s), 0L);
    view.hide();
    view.refresh();
    QCOMPARE(changes.size(), 0);
    view.show();
    QCOMPARE(line("InputTriggerDelay"_s), "Float|read/write|2.5"_s + delay);
    QVERIFY(line("TriggerUdpPort"_s).startsWith("Integer|read/write|2007|1 … 65535||"_s));
    QCOMPARE(table->selectionModel()->selectedRows().value(0).data().toString(), selected);
    QCOMPARE(table->verticalScrollBar()->value(), 7);
    QCOMPARE(column(shown, 0).first(), "UserSetSelector"_s);
    changes.clear();
    click(view, "Refresh"_s);
    QCOMPARE(changes.size(), 0); // nothing has changed
    QCOMPARE(camera->executeCMD("AcquisitionStart"_s), 0L);
    click(view, "Refresh"_s);
    QCOMPARE(line("InputTriggerDelay"_s), "Float|read-only|2.5"_s + delay);

    auto *const search = view.findChild<QLineEdit *>();
    search->setText("udp, rs-232"_s); // among the entries of one node
    QCOMPARE(column(shown, 0), QStringList("InputTriggerSource"_s));
    search->clear();
    view.setDevice(nullptr);
    QCOMPARE(shown->rowCount(), 0);
}

void TrafficTest::nodesThatCannotBeRead()
{
    QFile file(":/devices/smartcamera.xml"_s);
    GenicamDevice::openBuiltIn({}, nullptr); // carries the description
    QVERIFY(file.open(QIODevice::ReadOnly));
    QTemporaryFile broken;
    QVERIFY(broken.open());
    broken.write(file.readAll().replace("<Address>0x00d8</Address>", "<Address>0x20000</Address>")
                     .replace("<Extension><PowerUp>EV-000001</PowerUp></Extension>", ""));
    broken.close();
    QString error;
    const auto camera = GenicamDevice::openBuiltIn(broken.fileName(), &error);
    QVERIFY2(camera, qPrintable(error));
    NodeView view;
    view.setDevice(camera.get());
    view.show();
    const QAbstractItemModel *const shown = tableOf(view)->model();
    const QModelIndex value = shown->index(column(shown, 0).indexOf("DeviceSerialNumber"_s), 3);
    QCOMPARE(value.data().toString(), "–"_s);
    const QString tip = value.data(Qt::ToolTipRole).toString();
    QVERIFY2(tip.contains("DeviceSerialNumber"_s) && tip.contains("no memory"_s), qPrintable(tip));
}

QTEST_MAIN(TrafficTest)
#include "TrafficTest.moc"
