#include "Literal.h"

#include "devices/GenicamDevice.h"
#include "panel/VyTriggerConfigWdg.h"
#include "viewer/Language.h"
#include "viewer/MainWindow.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

/// A language's texts, and what of ours was asked for and is not there: a text with no translation, or in another
/// context than the one that shows it. Numbers may stay as they are.
class Texts : public QTranslator
{
public:
    mutable QStringList missing;

    explicit Texts(const QString &code)
        : m_isThere(load(QLocale(code), "trigger"_s, "_"_s, ":/VyTriggerConfigWdg"_s) && language() == code)
    {
        m_isThere = m_isThere && QCoreApplication::installTranslator(this);
    }
    bool isThere() const { return m_isThere; }

    QString translate(const char *context, const char *text, const char *disambiguation, int n) const override
    {
        const QString translated = QTranslator::translate(context, text, disambiguation, n);
        bool isNumber = false;
        QByteArray(text).toDouble(&isNumber);
        if (translated.isEmpty() && !isNumber && *context != 'Q') {
            missing.append(QString::fromUtf8(context) + ": "_s + QString::fromUtf8(text));
        }
        return translated;
    }

private:
    bool m_isThere;
};

/// Every language: on the simulated camera, and in the viewer.
class LanguageTest : public QObject
{
    Q_OBJECT

    /// Null until the panel is bound and shown.
    static QComboBox *modeOf(const QWidget *in)
    {
        const QWidget *const row = in->findChild<QWidget *>("InputTriggerMode"_s);
        return row ? row->findChild<QComboBox *>() : nullptr;
    }

private Q_SLOTS:
    void panel_data()
    {
        QTest::addColumn<QString>("code");
        const QStringList codes = Language::codes().mid(1); // after English
        QVERIFY(codes.contains("de"_s) && codes.contains("zh_CN"_s));
        for (const QString &code : codes) {
            QTest::newRow(qPrintable(code)) << code;
        }
    }
    void panel()
    {
        QFETCH(QString, code);
        const Texts texts(code);
        QVERIFY(texts.isThere());
        QString error;
        const auto camera = GenicamDevice::openBuiltIn({}, &error);
        QVERIFY2(camera, qPrintable(error));
        QCOMPARE(camera->setParamEnum("InputTriggerMode"_s, "Hold"_s), 0L);
        VyTriggerConfigWdg panel;
        panel.setVyDevice(camera.get());
        panel.resize(472, 552);
        QString source;
        QStringList sources;
        QCOMPARE(camera->getParamEnum("InputTriggerSource"_s, source, sources), 0L);
        for (const QString &next : qAsConst(sources)) {
            QCOMPARE(camera->setParamEnum("InputTriggerSource"_s, next), 0L);
            camera->setParamEnum("TriggerStopConfig1Condtion"_s, "Command"_s); // where there is one
            panel.hide();
            panel.show();
            QCoreApplication::processEvents();
            const auto labels = panel.findChildren<QLabel *>();
            for (const QLabel *label : labels) {
                const bool isCut = label->text() != label->toolTip() && !label->parent()->objectName().isEmpty();
                QVERIFY2(!isCut || label->toolTip().startsWith(label->text().chopped(1)), qPrintable(label->text()));
            }
            const auto boxes = panel.findChildren<QComboBox *>();
            for (const QComboBox *box : boxes) {
                QSet<QString> different;
                const auto entries = box->property("valueList").value<QList<QString>>();
                for (int i = 0; i < box->count(); ++i) {
                    different.insert(box->itemText(i));
                }
                QVERIFY2(different.size() == box->count(), qPrintable(entries.join(u' ')));
            }
        }
        QVERIFY2(texts.missing.isEmpty(), qPrintable(texts.missing.join(u'\n')));
    }

    void viewer()
    {
        MainWindow window("en"_s, false);
        window.show();
        window.openDevice({}, {});
        QTRY_VERIFY(modeOf(&window));
        modeOf(&window)->setCurrentText("Hold"_s);
        const QMenu *const menu = window.findChild<QAction *>("languageMenu"_s)->menu();
        QSet<QString> titles;
        QStringList codes = Language::codes();
        for (QAction *action : menu->actions()) {
            action->trigger();
            const Texts texts(codes.takeFirst());
            QCOMPARE(texts.isThere(), !titles.isEmpty()); // English, the first, has none
            QCoreApplication::processEvents();
            QVERIFY2(!texts.isThere() || texts.missing.isEmpty(), qPrintable(texts.missing.join(u'\n')));
            for (const QAction *other : menu->actions()) {
                QCOMPARE(other->isChecked(), other == action);
            }
            titles.insert(menu->title());
            const QComboBox *const mode = modeOf(&window);
            const QString entry = mode->property("valueList").value<QList<QString>>().value(mode->currentIndex());
            QCOMPARE(entry, "Hold"_s);
        }
        QCOMPARE(titles.size(), menu->actions().size());
    }
};

QTEST_MAIN(LanguageTest)
#include "LanguageTest.moc"
