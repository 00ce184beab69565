#include "ScriptedDevice.h"
#include "TildeTranslator.h"

#include "parampage/CLabel.h"
#include "parampage/ParamPageWidget.h"
#include "parampage/ParamPageWidgetItem.h"

#include <VyCommonGUI/VyComboBox.h>
#include <VyCommonGUI/VyDoubleSpinBox.h>
#include <VyCommonGUI/VyLineEdit.h>
#include <VyCommonGUI/VySpinBox.h>
#include <VyCommonGUI/VyToggleSwitch.h>

#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

#include <limits>
#include <memory>

using namespace VyViewer;

namespace {

const QString Node = QStringLiteral("Node");

} // namespace

/// A page with one row, on a device whose node is of a given type.
class ParamRowTest : public QObject
{
    Q_OBJECT

    ParamPageWidgetItem *show(RuvoNodeType type, const QVariant &value)
    {
        m_device.node(Node).type = type;
        m_device.node(Node).value = value;
        m_page = std::make_unique<ParamPageWidget>(&m_device, nullptr);
        auto *const row = new ParamPageWidgetItem(&m_device, QStringLiteral("Label"), Node, m_page.get());
        m_page->addItem(row);
        m_page->addItem(new QLineEdit(m_page.get())); // somewhere for the focus to go
        m_page->show();
        m_page->activateWindow();
        if (!QTest::qWaitForWindowActive(m_page.get())) {
            qFatal("the window was not activated");
        }
        m_device.takeCalls();
        return row;
    }

    template <typename Editor>
    Editor *editor() const
    {
        return m_page->findChild<ParamPageWidgetItem *>()->findChild<Editor *>();
    }

    ScriptedDevice m_device;
    std::unique_ptr<ParamPageWidget> m_page;

    const QStringList m_refresh = ScriptedDevice::refreshOf(Node);

private Q_SLOTS:
    void init() { m_device.reset(); }
    void cleanup() { m_page.reset(); }

    void editorFollowsType_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QByteArray>("className");
        QTest::addColumn<bool>("reads");
        QTest::newRow("boolean") << 1 << QByteArray("VyViewer::VyToggleSwitch") << true;
        QTest::newRow("integer") << 2 << QByteArray("VyViewer::VySpinBox") << true;
        QTest::newRow("float") << 3 << QByteArray("VyViewer::VyDoubleSpinBox") << true;
        QTest::newRow("enumeration") << 4 << QByteArray("VyViewer::VyComboBox") << true;
        QTest::newRow("command") << 5 << QByteArray("QPushButton") << false;
        QTest::newRow("string") << 6 << QByteArray("VyViewer::VyLineEdit") << true;
        QTest::newRow("unknown") << 0 << QByteArray("VyViewer::VySpinBox") << false;
        QTest::newRow("from outside") << 99 << QByteArray("VyViewer::VySpinBox") << false;
    }
    void editorFollowsType()
    {
        QFETCH(int, type);
        QFETCH(QByteArray, className);
        QFETCH(bool, reads);
        m_device.node(Node).type = static_cast<RuvoNodeType>(type);
        m_page = std::make_unique<ParamPageWidget>(&m_device, nullptr);
        auto *const row = new ParamPageWidgetItem(&m_device, QStringLiteral("Label"), Node, m_page.get());
        m_page->addItem(row);
        row->refresh();
        QVERIFY2(m_device.calls.isEmpty(), "a row that was never shown reads nothing");

        m_page->show();
        QStringList expected{QStringLiteral("type Node"), QStringLiteral("mode Node")};
        if (reads) {
            expected.append(QStringLiteral("get Node"));
        }
        QCOMPARE(m_device.takeCalls(), expected);
        QCOMPARE(row->height(), 35);

        QWidget *found = nullptr;
        for (QWidget *child : row->findChildren<QWidget *>()) {
            if (child->metaObject()->className() == className) {
                found = child;
            }
        }
        QVERIFY(found);
        QCOMPARE(found->accessibleName(), QStringLiteral("Label"));

        m_page->hide();
        m_page->show();
        expected.removeFirst();
        QCOMPARE(m_device.takeCalls(), expected); // the type is asked for once
    }

    void accessMode_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("shown");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("not implemented") << 0 << false << true;
        QTest::newRow("not available") << 1 << false << true;
        QTest::newRow("write-only") << 2 << true << true;
        QTest::newRow("read-only shows but locks") << 3 << true << false;
        QTest::newRow("read/write") << 4 << true << true;
        QTest::newRow("unknown hides") << 9 << false << true;
        QTest::newRow("negative hides") << -1 << false << true;
    }
    void accessMode()
    {
        QFETCH(int, mode);
        QFETCH(bool, shown);
        QFETCH(bool, enabled);
        auto *const row = show(RuvoNodeInteger, 5);
        m_device.node(Node).mode = static_cast<RuvoNodeAccessMode>(mode);
        m_device.node(Node).value = 6;
        row->refresh();
        QCOMPARE(m_device.takeCalls(), shown ? m_refresh : QStringList{QStringLiteral("mode Node")});
        QCOMPARE(row->isHidden(), !shown);
        QCOMPARE(editor<VySpinBox>()->isEnabled(), enabled);
        QCOMPARE(editor<VySpinBox>()->value(), shown ? 6 : 5);

        m_device.node(Node).mode = RuvoNodeReadWrite;
        row->refresh();
        QVERIFY(row->isVisible());
        QVERIFY(editor<VySpinBox>()->isEnabled());
    }

    void rangeComesBeforeValue()
    {
        auto &node = m_device.node(Node);
        node.max = 10;
        auto *const row = show(RuvoNodeInteger, 5);
        node.min = 100;
        node.max = -1;
        node.inc = 4;
        node.value = 1000;
        row->refresh();
        const auto *const spin = editor<VySpinBox>();
        QCOMPARE(spin->value(), 1000);
        QCOMPARE(spin->minimum(), 100);
        QCOMPARE(spin->maximum(), std::numeric_limits<int>::max());
        QCOMPARE(spin->singleStep(), 4);
    }

    void everyEditIsWrittenAndReadBack_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("call");
        QTest::newRow("boolean") << 1 << QVariant(false) << "set Node=true";
        QTest::newRow("integer") << 2 << QVariant(5) << "set Node=42";
        QTest::newRow("float") << 3 << QVariant(0.5) << "set Node=42";
        QTest::newRow("enumeration") << 4 << QVariant(QStringLiteral("a")) << "set Node=b";
        QTest::newRow("command") << 5 << QVariant() << "run Node";
        QTest::newRow("string") << 6 << QVariant(QStringLiteral("x")) << "set Node=42";
    }
    void everyEditIsWrittenAndReadBack()
    {
        QFETCH(int, type);
        QFETCH(QVariant, value);
        QFETCH(QString, call);
        m_device.node(Node).entries = {QStringLiteral("a"), QStringLiteral("b")};
        m_device.node(Node).refusesWrites = true; // what the device refused is not left on the screen
        auto *const row = show(static_cast<RuvoNodeType>(type), value);
        QSignalSpy changed(row, &ParamPageWidgetItem::valueChanged);
        QWidget *const shownIn = row->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly).last();
        switch (type) {
        case RuvoNodeBoolean:
            QTest::mouseClick(editor<VyToggleSwitch>(), Qt::LeftButton);
            break;
        case RuvoNodeEnumeration:
            QTest::keyClick(shownIn, Qt::Key_Down);
            break;
        case RuvoNodeCommand:
            QTest::mouseClick(shownIn, Qt::LeftButton);
            break;
        default:
            shownIn->setFocus();
            QTest::keyClick(shownIn, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(shownIn, QStringLiteral("42"));
            QVERIFY2(m_device.calls.isEmpty(), "an unfinished edit is not written");
            QTest::keyClick(shownIn, Qt::Key_Return);
        }
        QStringList expected{call, QStringLiteral("mode Node")};
        if (type != RuvoNodeCommand) {
            expected.append(QStringLiteral("get Node"));
        }
        QCOMPARE(m_device.takeCalls(), expected);
        QCOMPARE(changed.count(), 1);
        if (type == RuvoNodeInteger) {
            QCOMPARE(editor<VySpinBox>()->value(), 5);
        } else if (type == RuvoNodeBoolean) {
            QVERIFY(!editor<VyToggleSwitch>()->getIsToggled());
        }
    }

    void leavingASpinBoxWritesItsValue()
    {
        show(RuvoNodeInteger, 5);
        editor<VySpinBox>()->setFocus();
        m_page->findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly)->setFocus();
        QCOMPARE(m_device.takeCalls(), QStringList{QStringLiteral("set Node=5")} + m_refresh);
    }

    void leavingAnUntouchedFloatAltersNothing_data()
    {
        QTest::addColumn<float>("value");
        QTest::addColumn<float>("max");
        QTest::addColumn<QString>("text");
        QTest::newRow("no tail of digits") << 12.3F << 100.F << "12.300";
        QTest::newRow("three decimals at least") << 2.F << 100.F << "2.000";
        QTest::newRow("as many as it takes") << 0.00012F << 100.F << "0.00012";
        QTest::newRow("seven are not enough") << 1.5e-9F << 100.F << "0.0000000015";
        QTest::newRow("outside the range") << 150.F << 100.F << "100.000";
    }
    void leavingAnUntouchedFloatAltersNothing()
    {
        QFETCH(float, value);
        QFETCH(float, max);
        QFETCH(QString, text);
        m_device.node(Node).max = static_cast<double>(max);
        m_device.node(Node).inc = 0.001;
        show(RuvoNodeFloat, value);
        auto *const spin = editor<VyDoubleSpinBox>();
        QCOMPARE(spin->text(), text);
        spin->setFocus();
        QTest::keyClick(spin, Qt::Key_Return);
        m_page->findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly)->setFocus();
        QCOMPARE(m_device.writes().size(), 2);
        QCOMPARE(m_device.node(Node).value.value<float>(), value);
    }

    void entriesAreWrittenAsTheDeviceSpellsThem()
    {
        TildeTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        m_device.node(Node).entries = {QStringLiteral("None"), QStringLiteral("Hold")};
        auto *const row = show(RuvoNodeEnumeration, QStringLiteral("None"));
        auto *const combo = editor<VyComboBox>();
        QCOMPARE(combo->currentText(), QStringLiteral("~None"));
        QCOMPARE(combo->property("valueList").value<QList<QString>>(), m_device.node(Node).entries);
        combo->setCurrentIndex(1);
        QCOMPARE(m_device.writes(), QStringList{QStringLiteral("set Node=Hold")});
        QCOMPARE(combo->currentText(), QStringLiteral("~Hold"));

        m_device.takeCalls();
        QCoreApplication::removeTranslator(&translator);
        row->retranslate();
        QCOMPARE(combo->currentText(), QStringLiteral("Hold"));
        QCOMPARE(combo->itemText(0), QStringLiteral("None"));
        QVERIFY2(m_device.calls.isEmpty(), "a change of language neither reads nor writes");

        // Not among the entries: the first one is shown. Outside the list: nothing is written.
        m_device.node(Node).value = QStringLiteral("Gone");
        row->refresh();
        QCOMPARE(combo->currentIndex(), 0);
        QSignalSpy changed(row, &ParamPageWidgetItem::valueChanged);
        combo->setProperty("valueList", QVariant());
        combo->setCurrentIndex(1);
        combo->setCurrentIndex(-1);
        QVERIFY(m_device.writes().isEmpty());
        QVERIFY(changed.isEmpty());
    }

    void aSlotWithoutItsEditorDoesNothing()
    {
        auto *const row = show(RuvoNodeInteger, 5);
        QSignalSpy changed(row, &ParamPageWidgetItem::valueChanged);
        for (const char *slot : {"onIntParamEditFinished", "onFloatParamEditFinished", "onBoolParamChanged",
                                 "onEnumParamChanged", "onLineEditFinished"}) {
            QVERIFY(QMetaObject::invokeMethod(row, slot));
        }
        QVERIFY(m_device.calls.isEmpty());
        QVERIFY(changed.isEmpty());
    }

    void labelIsElidedAndHalfAsWideAsTheRow()
    {
        auto *const row = show(RuvoNodeInteger, 5);
        // Without a meta-object of its own it is found as a QLabel only.
        auto *const label = dynamic_cast<CLabel *>(row->findChild<QLabel *>());
        QVERIFY(label);
        const QString text = QStringLiteral("A label that is <b>much</b> too long for half of a row");
        label->setFullText(text);
        m_page->resize(321, 200); // 20 of it are the page's margins
        QTRY_COMPARE(label->width(), 150);
        QVERIFY(label->text().endsWith(QChar(0x2026)));
        QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= 145);
        QCOMPARE(label->toolTip(), text);
        m_page->resize(2000, 200);
        QTRY_COMPARE(label->text(), text);
    }

    void highlightFollowsThePointer()
    {
        auto *const row = show(RuvoNodeInteger, 5);
        const auto ground = [row] { return row->grab().toImage().pixelColor(1, 1); };
        QCOMPARE(ground(), QColor(Qt::white));
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(row, &enter);
        QCOMPARE(ground(), QColor(216, 216, 216));
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(row, &leave);
        QCOMPARE(ground(), QColor(Qt::white));
    }
};

QTEST_MAIN(ParamRowTest)
#include "ParamRowTest.moc"
