#include "PanelProbe.h"
#include "ScriptedDevice.h"
#include "TildeTranslator.h"

#include "panel/VyTriggerConfigWdg.h"

#include <QAbstractItemView>
#include <QtTest>

#include <climits>
#include <limits>

using Node = ScriptedDevice::Node;
Q_DECLARE_METATYPE(Node)

namespace {

const QString kRow = "TriggerTcpClientServerIp"_s;

QStringList write(const QVariant &value) { return {"set %1=%2"_s.arg(kRow, value.toString())}; }

} // namespace

/// The panel on a device of which one node answers what no sane device would.
class HostileValuesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void anyAnswer_data()
    {
        QTest::addColumn<Node>("node");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QStringList>("kept"); // what Return writes in an untouched editor
        QTest::addColumn<QStringList>("edited");
        const auto number = [](const char *name, const QVariant &value, double min, double max, double inc,
                               const char *shown, const QVariant &kept, const QVariant &stepped) {
            const RuvoNodeType type = value.userType() == QMetaType::Int ? RuvoNodeInteger : RuvoNodeFloat;
            QTest::addRow("%s: %s", value.typeName(), name)
                << Node{type, value, {}, RuvoNodeReadWrite, min, max, inc} << QString::fromLatin1(shown) << write(kept)
                << write(stepped);
        };
        number("minimum above maximum", 7, 10, 5, 1, "5", 5, 5);
        number("increment 0", 7, 0, 9, 0, "7", 7, 7);
        number("increment negative", 7, 0, 9, -3, "7", 7, 8);
        number("increment too large", 7, INT_MIN, INT_MAX, INT_MAX, "7", 7, INT_MAX);
        number("lowest", INT_MIN, INT_MIN, INT_MAX, 1, "-2,147,483,648", INT_MIN, INT_MIN + 1);
        number("highest", INT_MAX, INT_MIN, -1, 1, "2147483647", INT_MAX, INT_MAX);
        number("minimum above maximum", 7.F, 10, 5, 1, "5.000", 7.F, 7.F);
        number("minimum no number", 5.F, qQNaN(), 9, 1, "5.000", 5.F, 6.F);
        number("maximum no number", 5.F, 0, qQNaN(), qQNaN(), "5.000", 5.F, 6.F);
        number("no number", float(qQNaN()), 0, 9, 1, "9.000", qQNaN(), qQNaN());
        number("limits infinite", 5.F, -qInf(), qInf(), qInf(), "5.000", 5.F, qInf());
        number("infinite", -float(qInf()), -qInf(), qInf(), 1, "-inf", -qInf(), -qInf());
        const float most = std::numeric_limits<float>::max();
        const float least = std::numeric_limits<float>::denorm_min();
        const char *const mostText = "340282346638528859811704183484516925440.0000000";
        number("largest", most, 0, double(most), double(least), mostText, most, most);
        number("smallest", least, 0, 1, 0.5, "0.000000000000000000000000000000000000000000001", least, 0.5F);

        number("fine step", 12.3F, 0, 100, double(0.0005F), "12.3000", 12.3F, 12.3005F);
        number("step too fine to show", 12.3F, 0, 100, 1e-12, "12.3000000", 12.3F, 12.3F);
        number("nano", 1e-9F, 0, 1, 1, "0.000000001", 1e-9F, 1.F);
        number("many digits", 123456.789F, 0, 1e6, 1, "123456.789", 123456.789F, 123457.789F);

        const auto entries = [](const char *name, const QStringList &list, const QString &value, const QString &shown) {
            QTest::addRow("entries: %s", name) << Node{RuvoNodeEnumeration, value, list} << shown << QStringList()
                                               << (list.isEmpty() ? list : write(list.last()));
        };
        const struct { const char *name; QString text; } texts[] = {
            {"empty", {}}, {"NUL", "a\0b"_s}, {"markup", "<b>x</b>&lt;&File\t<img src=x>"_s},
            {"newlines", "a\r\nb\u2028c\n"_s}, {"right to left", "\u202e\u05d0b\u0661"_s},
            {"astral", "\U0001f600"_s}, {"half a character", QChar(0xd800)}, {"megabyte", QString(1 << 20, u'W')},
        };
        for (const auto &[name, text] : texts) {
            entries(name, {"a\0c"_s, text + u'1', QChar(0xdc00), text, "last\0"_s}, text, text);
            QTest::addRow("text: %s", name) << Node{RuvoNodeString, text} << text.left(SHRT_MAX) << write(text)
                                            << write(text.size() < SHRT_MAX ? u'x' + text : text); // no more goes in
        }
        entries("many", QString(9999, u',').split(u','), {}, {});
        entries("none", {}, "x"_s, {});
        entries("the same twice", {"x"_s, "y"_s, "y"_s, "z"_s}, "y"_s, "y"_s);
        entries("not the current one", {"x"_s, "y"_s}, "z"_s, "x"_s);
    }
    void anyAnswer()
    {
        QFETCH(Node, node);
        QFETCH(QString, shown);
        ScriptedDevice device;
        device.failure = LONG_MIN; // cut to an int it is 0
        device.node(kRow) = node;
        VyTriggerConfigWdg panel;
        panel.setVyDevice(&device);
        panel.show();
        panel.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        auto *const row = PanelProbe::row(&panel, kRow);
        auto *const editor = row->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly).last();
        auto *const box = qobject_cast<VyViewer::VyComboBox *>(editor);
        const int index = node.entries.isEmpty() ? -1 : qMax(0, node.entries.indexOf(node.value.toString()));
        const auto verify = [&] {
            QCOMPARE(editor->property(box ? "currentText" : "text").toString(), shown);
            QVERIFY(editor->isVisible() && editor->isEnabled());
            QVERIFY(!box || (box->count() == node.entries.size() && box->currentIndex() == index));
        };
        verify();
        device.node(kRow).type = static_cast<RuvoNodeType>(INT_MIN); // too late
        row->refresh();
        TildeTranslator translator;
        QCoreApplication::installTranslator(&translator);
        QCoreApplication::processEvents();
        QCoreApplication::removeTranslator(&translator);
        QCoreApplication::processEvents();
        panel.hide();
        panel.show();
        if (box) {
            QTest::keyClick(box, Qt::Key_F4);
            box->view()->window()->grab();
            row->refresh();
            QTest::keyClick(box->view(), Qt::Key_Escape);
        }
        verify();
        const int width = row->parentWidget()->sizeHint().width();
        QVERIFY2(width < 50 * panel.fontMetrics().averageCharWidth(), qPrintable(QString::number(width)));

        device.node(kRow).failsReads = true;
        row->refresh();
        verify();
        device.node(kRow) = node;
        editor->setFocus();
        QTest::keyClick(editor, Qt::Key_Return);
        QTEST(device.writes(), "kept"); // and nothing before
        device.takeCalls();
        QTest::keyClick(editor, box ? Qt::Key_End : node.type == RuvoNodeString ? Qt::Key_Home : Qt::Key_Up);
        QTest::keyClicks(editor, node.type == RuvoNodeString ? "x"_s : QString());
        QTest::keyClick(editor, Qt::Key_Return);
        QTEST(device.writes(), "edited");
    }

    void markupIsText()
    {
        ScriptedDevice device;
        VyTriggerConfigWdg panel;
        panel.setVyDevice(&device);
        panel.resize(800, 900);
        panel.show();
        QCoreApplication::processEvents(); // editors become visible by a queued call
        auto *const row = PanelProbe::row(&panel, "TriggerSerialPortBaudrate"_s);
        const auto picture = [&](const QString &text) {
            device.node(row->objectName()) = {RuvoNodeEnumeration, text, {text}};
            row->refresh();
            return row->grab().toImage();
        };
        const QImage empty = picture({});
        for (const char *const text : {"<b>x</b>", "<img src=x>", "&lt;&amp;", "&File && more", "two\nlines"}) {
            const QImage full = picture(QString::fromLatin1(text));
            QRect ink;
            for (QRect column(0, 0, 1, full.height()); column.x() < full.width(); column.translate(1, 0)) {
                ink |= full.copy(column) == empty.copy(column) ? QRect() : column;
            }
            QVERIFY2(qAbs(ink.width() - row->fontMetrics().horizontalAdvance(QString::fromLatin1(text))) < 6, text);
        }
    }
};

QTEST_MAIN(HostileValuesTest)
#include "HostileValuesTest.moc"
