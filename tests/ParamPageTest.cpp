#include "ScriptedDevice.h"

#include "parampage/ByteLengthValidator.h"
#include "parampage/DeviceEvents.h"
#include "parampage/HexValidator.h"
#include "parampage/ParamPageWidget.h"
#include "parampage/ParamPageWidgetItem.h"

#include <VyCommonGUI/VyLineEdit.h>
#include <VyViewerCore/CoreEventBus.h>

#include <QLabel>
#include <QPointer>
#include <QtTest>

#include <memory>

using VyViewer::VyLineEdit;

class ParamPageTest : public QObject
{
    Q_OBJECT

    ParamPageWidgetItem *addRow(const char *node)
    {
        auto *const row = new ParamPageWidgetItem(&m_device, QStringLiteral("Label"), QString::fromLatin1(node),
                                                  m_page.get());
        m_page->addItem(row);
        return row;
    }

    ScriptedDevice m_device;
    std::unique_ptr<ParamPageWidget> m_page;

    const QStringList m_refresh{QStringLiteral("mode OneCMD"), QStringLiteral("get OneCMD"),
                                QStringLiteral("mode TwoCMD"), QStringLiteral("get TwoCMD")};

private Q_SLOTS:
    void init()
    {
        m_device.reset();
        m_page = std::make_unique<ParamPageWidget>(&m_device, nullptr);
    }
    void cleanup() { m_page.reset(); }

    void refreshesWhenShownAndWhenARowHasWritten()
    {
        addRow("OneCMD");
        m_page->addItem(new QLabel(QStringLiteral("no row"), m_page.get()));
        auto *const second = addRow("TwoCMD");
        m_page->updateWidget();
        QVERIFY2(m_device.calls.isEmpty(), "a page that is not visible reads nothing");
        m_page->show();
        QCOMPARE(m_device.takeCalls(),
                 (QStringList{QStringLiteral("type OneCMD"), QStringLiteral("type TwoCMD")} + m_refresh));

        // A handler connected after the row was added finds the rows refreshed.
        connect(second, &ParamPageWidgetItem::valueChanged, this,
                [this] { m_device.calls.append(QStringLiteral("handler")); });
        auto *const edit = second->findChild<VyLineEdit *>();
        QTest::keyClicks(edit, QStringLiteral("!"));
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(m_device.takeCalls(),
                 QStringList{QStringLiteral("set TwoCMD=text!")} + m_refresh + QStringList{QStringLiteral("handler")});

        QWidget host;
        m_page->setParent(&host);
        m_page->show();
        m_page->updateWidget();
        QVERIFY2(m_device.calls.isEmpty(), "a page in a hidden window reads nothing");
        m_page->setParent(nullptr);
    }

    void subscriptionsEndWithTheirOwner()
    {
        QPointer<VyViewer::CoreEvent> event;
        {
            DeviceEvents events;
            event = events.subscribe(QStringLiteral("name"));
        }
        QVERIFY2(event, "one that is delivering right now must live on");
        auto *const bus = VyViewer::Singleton<VyViewer::CoreEventBus>::getInstance();
        QVERIFY2(bus->unRegisterEvent(event) != 0, "no longer registered");
        QCoreApplication::sendPostedEvents(event, QEvent::DeferredDelete);
        QVERIFY(!event);
    }

    void rowsStand41PixelsApart()
    {
        auto *const first = addRow("OneCMD");
        auto *const second = addRow("TwoCMD");
        m_page->resize(300, 200);
        m_page->show();
        m_page->adjustSize();
        QCOMPARE(second->y() - first->y(), 41);
        QCOMPARE(first->pos(), QPoint(10, 0));
        QCOMPARE(first->width(), m_page->width() - 20);
        QCOMPARE(second->geometry().bottom(), m_page->rect().bottom());
    }

    void validators_data()
    {
        const auto repeated = [](const char *utf8, int count) { return QString::fromUtf8(utf8).repeated(count); };
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("asText");
        QTest::addColumn<bool>("asHex");
        QTest::newRow("empty") << QString() << true << true;
        QTest::newRow("digits") << "0aF9" << true << true;
        QTest::newRow("odd number of digits") << "ABC" << true << true;
        QTest::newRow("prefix") << "0x1F" << true << false;
        QTest::newRow("separated") << "1F 2E" << true << false;
        QTest::newRow("beyond F") << "G" << true << false;
        QTest::newRow("full-width digit") << QString::fromUtf8("\xef\xbc\x91") << true << false;
        QTest::newRow("128 digits") << repeated("a", 128) << true << true;
        QTest::newRow("129 digits") << repeated("a", 129) << false << false;
        QTest::newRow("126 bytes of three each") << repeated("\xe2\x82\xac", 42) << true << false;
        QTest::newRow("129 bytes of three each") << repeated("\xe2\x82\xac", 43) << false << false;
        QTest::newRow("128 bytes of two each") << repeated("\xc3\xa4", 64) << true << false;
        QTest::newRow("132 bytes of four each") << repeated("\xf0\x9f\x93\xb7", 33) << false << false;
    }
    void validators()
    {
        QFETCH(QString, text);
        QFETCH(bool, asText);
        QFETCH(bool, asHex);
        int pos = 0;
        QString input = text;
        QCOMPARE(ByteLengthValidator(128, nullptr).validate(input, pos),
                 asText ? QValidator::Acceptable : QValidator::Invalid);
        QCOMPARE(HexValidator(128, nullptr).validate(input, pos),
                 asHex ? QValidator::Acceptable : QValidator::Invalid);
        QCOMPARE(input, text);
    }

    void onlyALineEditTakesAValidator()
    {
        HexValidator hex(128, nullptr);
        auto *const row = addRow("OneCMD");
        auto *const port = addRow("Port");
        row->setValidator(&hex);
        m_page->show();
        auto *const edit = row->findChild<VyLineEdit *>();
        QVERIFY2(!edit->validator(), "too early to be taken");
        edit->clear();
        QTest::keyClicks(edit, QStringLiteral("G"));
        row->setValidator(&hex);
        port->setValidator(&hex);
        QCOMPARE(edit->text(), QStringLiteral("G"));
        QTest::keyClicks(edit, QStringLiteral("A"));
        QCOMPARE(edit->text(), QStringLiteral("G")); // the text stays invalid whatever is typed ...
        edit->clear();
        QTest::keyClicks(edit, QStringLiteral("GA"));
        QCOMPARE(edit->text(), QStringLiteral("A")); // ... until it is not
    }
};

QTEST_MAIN(ParamPageTest)
#include "ParamPageTest.moc"
