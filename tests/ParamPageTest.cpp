#include "PanelProbe.h"
#include "ScriptedDevice.h"
#include "TildeTranslator.h"

#include "parampage/ByteLengthValidator.h"
#include "parampage/CLabel.h"
#include "parampage/DeviceEvents.h"
#include "parampage/HexValidator.h"
#include "parampage/ParamPageWidget.h"

#include <VyCommonGUI/VyLineEdit.h>
#include <VyCommonGUI/VyScrollArea.h>
#include <VyCommonGUI/VySpinBox.h>
#include <VyCommonGUI/VyToggleSwitch.h>
#include <VyViewerCore/CoreEventBus.h>

#include <QPointer>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

using namespace VyViewer;

namespace {

const QString Node = "Node"_s;

} // namespace

/// A page with a row or two.
class ParamPageTest : public QObject
{
    Q_OBJECT

    ParamPageWidgetItem *addRow(const QString &node = Node)
    {
        auto *const row = new ParamPageWidgetItem(&m_device, "Label"_s, node, m_page.get());
        m_page->addItem(row);
        return row;
    }
    /// A page with a single row, on a node of that type.
    ParamPageWidgetItem *show(RuvoNodeType type, const QVariant &value)
    {
        m_device.node(Node).type = type;
        m_device.node(Node).value = value;
        auto *const row = addRow();
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
    void init()
    {
        m_device.reset();
        m_page = std::make_unique<ParamPageWidget>(&m_device, nullptr);
    }
    void cleanup() { m_page.reset(); }

    void refreshesWhenShownAndWhenARowHasWritten()
    {
        addRow("OneCMD"_s);
        m_page->addItem(new QLabel("no row"_s, m_page.get()));
        auto *const second = addRow("TwoCMD"_s);
        const QStringList refresh = ScriptedDevice::refreshOf("OneCMD"_s) + ScriptedDevice::refreshOf("TwoCMD"_s);
        m_page->updateWidget();
        QVERIFY2(m_device.calls.isEmpty(), "a page that is not visible reads nothing");
        m_page->show();
        QCOMPARE(m_device.takeCalls(), (QStringList{"type OneCMD"_s, "type TwoCMD"_s} + refresh));

        // A handler connected after the row was added finds the rows refreshed.
        connect(second, &ParamPageWidgetItem::valueChanged, this, [this] { m_device.calls.append("handler"_s); });
        auto *const edit = second->findChild<VyLineEdit *>();
        QTest::keyClicks(edit, "!"_s);
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(m_device.takeCalls(), QStringList{"set TwoCMD=text!"_s} + refresh + QStringList{"handler"_s});

        QWidget host;
        m_page->setParent(&host);
        m_page->show();
        m_page->updateWidget();
        QVERIFY2(m_device.calls.isEmpty(), "a page in a hidden window reads nothing");
        m_page->setParent(nullptr);
    }

    void subscriptionsEndWithTheirOwner()
    {
        QPointer<CoreEvent> event;
        {
            DeviceEvents events;
            event = events.subscribe("name"_s);
        }
        QVERIFY2(event, "one that is delivering right now must live on");
        QVERIFY2(Singleton<CoreEventBus>::getInstance()->unRegisterEvent(event) != 0, "no longer registered");
        QCoreApplication::sendPostedEvents(event, QEvent::DeferredDelete);
        QVERIFY(!event);
    }

    void rowsStand41PixelsApart()
    {
        auto *const first = addRow();
        auto *const second = addRow();
        m_page->resize(300, 200);
        m_page->show();
        m_page->adjustSize();
        QCOMPARE(second->y() - first->y(), 41);
        QCOMPARE(first->pos(), QPoint(10, 0));
        QCOMPARE(first->size(), QSize(m_page->width() - 20, 35));
        QCOMPARE(second->geometry().bottom(), m_page->rect().bottom());
    }

    void validators()
    {
        const struct { QString text; bool asText, asHex; } rows[] = {
            {QString(), true, true}, {"0aF9"_s, true, true}, {"ABC"_s, true, true}, {"0x1F"_s, true, false},
            {"1F 2E"_s, true, false}, {"G"_s, true, false}, {"\uff11"_s /* a full-width digit */, true, false},
            {QString(128, u'a'), true, true}, {QString(129, u'a'), false, false},
            {QString(42, QChar(0x20ac)), true, false}, {QString(43, QChar(0x20ac)), false, false}, // of three bytes
            {QString(64, QChar(0xe4)), true, false}, {"\U0001f4f7"_s.repeated(33), false, false}, // of two and of four
        };
        for (const auto &row : rows) {
            int pos = 0;
            QString input = row.text;
            QCOMPARE(ByteLengthValidator(128, nullptr).validate(input, pos) == QValidator::Acceptable, row.asText);
            QCOMPARE(HexValidator(128, nullptr).validate(input, pos) == QValidator::Acceptable, row.asHex);
            QCOMPARE(input, row.text);
        }
    }

    void onlyALineEditTakesAValidator()
    {
        HexValidator hex(128, nullptr);
        auto *const row = addRow("OneCMD"_s);
        auto *const port = addRow("Port"_s);
        row->setValidator(&hex);
        m_page->show();
        auto *const edit = row->findChild<VyLineEdit *>();
        QVERIFY2(!edit->validator(), "too early to be taken");
        row->setValidator(&hex);
        port->setValidator(&hex);
        QCOMPARE(edit->validator(), &hex);
        QCOMPARE(edit->text(), "text"_s); // invalid now, and yet what the device holds
    }

    void editorFollowsType()
    {
        const struct { int type; QByteArray className; bool reads; } rows[] = {
            {1, "VyViewer::VyToggleSwitch", true}, {2, "VyViewer::VySpinBox", true},
            {3, "VyViewer::VyDoubleSpinBox", true}, {4, "VyViewer::VyComboBox", true}, {5, "QPushButton", false},
            {6, "VyViewer::VyLineEdit", true},
            {0, "VyViewer::VySpinBox", false}, {99, "VyViewer::VySpinBox", false},
        };
        for (const auto &row : rows) {
            init();
            m_device.node(Node).type = static_cast<RuvoNodeType>(row.type);
            auto *const item = addRow();
            item->refresh();
            QVERIFY2(m_device.calls.isEmpty(), "a row that was never shown reads nothing");

            m_page->show();
            const QStringList expected = m_refresh.mid(0, row.reads ? 2 : 1);
            QCOMPARE(m_device.takeCalls(), QStringList{"type Node"_s} + expected);
            const auto children = item->findChildren<QWidget *>();
            const auto found = std::find_if(children.begin(), children.end(), [&row](const QWidget *child) {
                return child->metaObject()->className() == row.className;
            });
            QVERIFY2(found != children.end(), row.className);
            QCOMPARE((*found)->accessibleName(), "Label"_s);

            m_page->hide();
            m_page->show();
            QCOMPARE(m_device.takeCalls(), expected); // the type is asked for once
        }
    }

    void accessMode()
    {
        const struct { int mode; bool shown, enabled; } rows[] = {
            {RuvoNodeNotImplemented, false, true}, {RuvoNodeNotAvailable, false, true}, {RuvoNodeWriteOnly, true, true},
            {RuvoNodeReadOnly, true, false}, {RuvoNodeReadWrite, true, true}, {9, false, true}, {-1, false, true},
        };
        auto *const item = show(RuvoNodeInteger, 5);
        for (const auto &row : rows) {
            m_device.node(Node).mode = static_cast<RuvoNodeAccessMode>(row.mode);
            m_device.node(Node).value = 6;
            item->refresh();
            QCOMPARE(m_device.takeCalls(), m_refresh.mid(0, row.shown ? 2 : 1));
            QCOMPARE(item->isHidden(), !row.shown);
            QCOMPARE(editor<VySpinBox>()->isEnabled(), row.enabled);
            QCOMPARE(editor<VySpinBox>()->value(), row.shown ? 6 : 5);

            m_device.node(Node).mode = RuvoNodeReadWrite;
            m_device.node(Node).value = 5;
            item->refresh();
            QVERIFY(item->isVisible() && editor<VySpinBox>()->isEnabled());
            m_device.takeCalls();
        }
    }

    void rangeComesBeforeValue()
    {
        auto *const row = show(RuvoNodeInteger, 5);
        m_device.node(Node).max = 100000;
        m_device.node(Node).value = 70000;
        row->refresh();
        QCOMPARE(editor<VySpinBox>()->value(), 70000);
    }

    void aRefreshedRowShowsWhatANewOneWould()
    {
        using Node = ScriptedDevice::Node;
        const auto entry = [](const char *value, const QList<QString> &entries) {
            return Node{RuvoNodeEnumeration, QString::fromLatin1(value), entries};
        };
        const auto number = [](RuvoNodeType type, double value, double min, double max, double inc) {
            return Node{type, value, {}, RuvoNodeReadWrite, min, max, inc};
        };
        const QVector<QVector<Node>> courses{
            {entry("b", {"a"_s, "b"_s}), entry("a", {"a"_s, "b"_s}), entry("b", {"a"_s, "b"_s}), entry("c", {"a"_s, "b"_s}),
             entry("b", {"a"_s, "b"_s, "b"_s}), entry("b", {"b"_s, "a"_s}), entry("b", {}), entry("~a", {"b"_s, "a"_s})},
            {number(RuvoNodeInteger, 5, 0, 9, 1), number(RuvoNodeInteger, 5, 0, 9, 2), number(RuvoNodeInteger, 50, 7, 60, 2),
             number(RuvoNodeInteger, 5, 9, 6, 1), number(RuvoNodeInteger, -4, -8, -1, 1)},
            {number(RuvoNodeFloat, 0.5, 0.00012, 9, 1), number(RuvoNodeFloat, 0.00011, 0.0001, 9, 1),
             number(RuvoNodeFloat, 3, 2, 4, 1), number(RuvoNodeFloat, 1, 0, 2, 0.25)},
        };
        const auto shown = [](const QWidget *page) {
            QStringList all;
            auto *const combo = page->findChild<VyComboBox *>();
            const QWidget *const spin = page->findChild<QAbstractSpinBox *>();
            for (const char *name : {"minimum", "maximum", "singleStep", "value", "text"}) {
                all.append(spin ? spin->property(name).toString() : QString());
            }
            for (int i = 0; combo && i < combo->count(); ++i) {
                all.append(combo->itemText(i) + (i == combo->currentIndex() ? " <"_s : QString()));
            }
            return combo ? all + combo->property("valueList").value<QList<QString>>() : all;
        };
        for (const QVector<Node> &course : courses) {
            init();
            show(course.first().type, course.first().value);
            TildeTranslator translator;
            for (int step = 0; step < 2 * course.size(); ++step) {
                m_device.node("Node") = course.at(step % course.size());
                m_page->updateWidget();
                ParamPageWidget other(&m_device, nullptr);
                other.addItem(new ParamPageWidgetItem(&m_device, "Label"_s, "Node"_s, &other));
                other.show();
                QCOMPARE(shown(m_page.get()), shown(&other));
                if (step == course.size()) { // the event that tells of it comes later
                    QVERIFY(QCoreApplication::installTranslator(&translator));
                }
            }
        }
    }

    void aRefreshIsLaidOutAndPaintedOnce()
    {
        auto *const first = addRow("One"_s);
        auto *const second = addRow("Two"_s);
        VyScrollArea area(nullptr);
        auto *const contents = new QWidget;
        auto *const layout = new QVBoxLayout(contents);
        layout->addWidget(m_page.get());
        layout->addStretch();
        const auto takeBack = qScopeGuard([this] { m_page->setParent(nullptr); });
        area.setWidgetResizable(true);
        area.setWidget(contents);
        m_device.node("One").mode = RuvoNodeNotAvailable;
        area.resize(300, 200);
        area.show();
        QVERIFY(QTest::qWaitForWindowActive(&area));
        QTest::qWait(1);
        struct PaintCounter : QObject
        {
            int paints = 0;
            bool eventFilter(QObject *, QEvent *event) override
            {
                paints += event->type() == QEvent::Paint;
                return false;
            }
        } counter;
        second->installEventFilter(&counter);
        m_device.node("One").mode = RuvoNodeReadWrite;
        m_page->updateWidget();
        QCOMPARE(second->y() - first->y(), 41);
        QTest::qWait(1);
        QCOMPARE(counter.paints, 1);

        // Everything can be painted again, but for what somebody else does not want to be.
        const auto parts = m_page->findChildren<QWidget *>();
        QWidget *const kept = second->findChild<QLabel *>();
        for (QWidget *refused : {kept, m_page->parentWidget(), static_cast<QWidget *>(nullptr)}) {
            if (refused) {
                refused->setUpdatesEnabled(false);
            }
            m_page->updateWidget();
            QCOMPARE(kept->updatesEnabled(), !refused);
            if (refused) {
                refused->setUpdatesEnabled(true);
            }
            QVERIFY(std::all_of(parts.begin(), parts.end(), [](const QWidget *part) { return part->updatesEnabled(); }));
        }
    }

    void everyEditIsWrittenAndReadBack()
    {
        const struct { RuvoNodeType type; QVariant value; QVector<Qt::Key> keys; QString call; } rows[] = {
            {RuvoNodeBoolean, false, {Qt::Key_Space}, "set Node=true"_s},
            {RuvoNodeInteger, 5, {Qt::Key_Up, Qt::Key_Up, Qt::Key_Return}, "set Node=7"_s},
            {RuvoNodeInteger, 5, {Qt::Key_Tab}, "set Node=5"_s}, // leaving it is enough
            {RuvoNodeFloat, 0.5F, {Qt::Key_Up, Qt::Key_Return}, "set Node=1.5"_s},
            {RuvoNodeEnumeration, "a"_s, {Qt::Key_Down}, "set Node=b"_s},
            {RuvoNodeCommand, QVariant(), {Qt::Key_Space}, "run Node"_s},
            {RuvoNodeString, "x"_s, {Qt::Key_Y, Qt::Key_Return}, "set Node=xy"_s},
        };
        for (const auto &row : rows) {
            init();
            m_device.node(Node).entries = {"a"_s, "b"_s};
            m_device.node(Node).refusesWrites = true; // what the device refused is not left on the screen
            auto *const item = show(row.type, row.value);
            QSignalSpy changed(item, &ParamPageWidgetItem::valueChanged);
            auto *const toggle = editor<VyToggleSwitch>();
            const auto children = item->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
            QWidget *const shownIn = toggle ? toggle : children.last();
            const QMetaProperty shown = shownIn->metaObject()->userProperty();
            const QVariant before = shown.read(shownIn);
            shownIn->setFocus();
            for (const Qt::Key key : row.keys) {
                QVERIFY2(m_device.calls.isEmpty(), "an unfinished edit is not written");
                QTest::keyClick(shownIn, key);
            }
            const QStringList reads = m_refresh.mid(0, row.type == RuvoNodeCommand ? 1 : 2);
            QCOMPARE(m_device.takeCalls(), QStringList{row.call} + reads);
            QCOMPARE(changed.count(), 1);
            QVERIFY(toggle ? !toggle->getIsToggled() : shown.read(shownIn) == before);
        }
    }

    void entriesAreWrittenAsTheDeviceSpellsThem()
    {
        TildeTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        m_device.node(Node).entries = {"None"_s, "Hold"_s};
        auto *const row = show(RuvoNodeEnumeration, "None"_s);
        auto *const combo = editor<VyComboBox>();
        QCOMPARE(combo->currentText(), "~None"_s);
        QCOMPARE(combo->property("valueList").value<QList<QString>>(), m_device.node(Node).entries);
        combo->setCurrentIndex(1);
        QCOMPARE(m_device.writes(), QStringList{"set Node=Hold"_s});
        QCOMPARE(combo->currentText(), "~Hold"_s);

        // Of entries with one translation the first is shown.
        struct : QTranslator
        {
            bool isEmpty() const override { return false; }
            QString translate(const char *, const char *, const char *, int) const override { return "one"_s; }
        } same;
        QVERIFY(QCoreApplication::installTranslator(&same));
        m_device.node(Node).value = "Hold"_s;
        row->refresh();
        QCOMPARE(combo->currentIndex(), 0);

        // Outside the list nothing is written.
        m_device.takeCalls();
        QSignalSpy changed(row, &ParamPageWidgetItem::valueChanged);
        combo->setProperty("valueList", QVariant());
        combo->setCurrentIndex(0);
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
        const QString text = "A label that is <b>much</b> too long for half of a row"_s;
        label->setFullText(text);
        m_page->resize(321, 200); // 20 of it are the page's margins
        QTRY_COMPARE(label->width(), 150);
        QVERIFY(label->text().endsWith(QChar(0x2026)));
        QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= 145);
        QCOMPARE(label->toolTip(), text);
        label->setFont(QFont(label->font().family(), 30));
        label->setFullText(text);
        QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= 145);
        label->setFont(QFont());
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

QTEST_MAIN(ParamPageTest)
#include "ParamPageTest.moc"
