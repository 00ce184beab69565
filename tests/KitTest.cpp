#include "Literal.h"
#include "TildeTranslator.h"

#include <VyCommonGUI/VyBlockWidget.h>
#include <VyCommonGUI/VyComboBox.h>
#include <VyCommonGUI/VyDoubleSpinBox.h>
#include <VyCommonGUI/VyMultiCheckTitleWidget.h>
#include <VyCommonGUI/VyScrollArea.h>
#include <VyCommonGUI/VySpinBox.h>
#include <VyCommonGUI/VyToggleSwitch.h>

#include <QtTest>
#include <QtWidgets>

#include <cmath>
#include <memory>

using namespace VyViewer;

namespace {

void drag(QWidget *widget, const QPoint &from, const QPoint &to)
{
    QTest::mousePress(widget, Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(widget, &move);
    QTest::mouseRelease(widget, Qt::LeftButton, {}, to);
}

/// The button with the tool tip.
QAbstractButton *findButton(const QWidget &parent, const char *toolTip)
{
    const auto buttons = parent.findChildren<QAbstractButton *>();
    const auto hasTip = [toolTip](QAbstractButton *button) { return button->toolTip() == QLatin1String(toolTip); };
    const auto found = std::find_if(buttons.begin(), buttons.end(), hasTip);
    return found == buttons.end() ? nullptr : *found;
}

/// The ratio of the luminances of two colours, 1 to 21.
double contrast(const QColor &one, const QColor &other)
{
    const auto linear = [](double part) { return std::pow(part, 2.2); };
    const auto luminance = [&](const QColor &color) {
        return 0.05 + 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
    };
    const double ratio = luminance(one) / luminance(other);
    return qMax(ratio, 1 / ratio);
}

} // namespace

class KitTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void toggleByUser()
    {
        const struct { const char *what; bool on; void (*act)(VyToggleSwitch *); } rows[] = {
            {"click", true, [](auto *t) { QTest::mouseClick(t, Qt::LeftButton); }},
            {"right button", false, [](auto *t) { QTest::mouseClick(t, Qt::RightButton); }},
            {"held Space repeats", true, [](auto *t) {
                QTest::keyPress(t, Qt::Key_Space);
                QTest::simulateEvent(t, true, Qt::Key_Space, {}, " "_s, true);
            }},
            {"drag to the other side", true, [](auto *t) { drag(t, {12, 15}, {48, 15}); }},
            {"drag past the end", true, [](auto *t) { drag(t, {12, 15}, {70, 15}); }},
            {"drag and no farther than half", false, [](auto *t) { drag(t, {12, 15}, {23, 15}); }},
            {"release below", false, [](auto *t) { drag(t, {12, 15}, {48, 90}); }},
            {"release far right", false, [](auto *t) { drag(t, {12, 15}, {300, 15}); }},
            {"mirrored drag", true, [](auto *t) {
                t->setLayoutDirection(Qt::RightToLeft);
                drag(t, {48, 15}, {12, 15});
            }},
            {"disabled while pressed", false, [](auto *t) {
                QTest::mousePress(t, Qt::LeftButton);
                t->setEnabled(false);
                QTest::keyClick(t, Qt::Key_Space);
                t->setEnabled(true);
                QTest::mouseRelease(t, Qt::LeftButton);
            }},
        };
        for (const auto &row : rows) {
            VyToggleSwitch toggle(nullptr);
            toggle.resize(60, 30);
            toggle.show();
            QList<bool> seen;
            connect(&toggle, &VyToggleSwitch::toggled, this, [&](bool on) { seen << on << toggle.getIsToggled(); });
            row.act(&toggle);
            QVERIFY2(toggle.getIsToggled() == row.on, row.what);
            QVERIFY2(seen == (row.on ? QList<bool>{true, true} : QList<bool>{}), row.what);
            const QImage look = toggle.grab().toImage();
            toggle.setIsToggled(!row.on);
            QCOMPARE(toggle.getIsToggled(), !row.on);
            QCOMPARE(seen.size(), row.on ? 2 : 0); // the program's own changes are silent
            QVERIFY(toggle.grab().toImage() != look);
        }
    }

    void wheel()
    {
        VyScrollArea area(nullptr);
        auto *const page = new QWidget;
        page->setFixedSize(200, 2000);
        auto *const choice = new VyComboBox(page);
        choice->addItems({"A"_s, "B"_s});
        const QList<QWidget *> editors{new VySpinBox(page), new VyDoubleSpinBox(page), choice};
        area.setWidget(page);
        area.show();
        QVERIFY(QTest::qWaitForWindowActive(&area));
        for (QWidget *editor : editors) {
            for (const bool focused : {false, true}) {
                (focused ? editor : &area)->setFocus();
                editor->setProperty("value", 5);
                area.verticalScrollBar()->setValue(0);
                const QMetaProperty value = editor->metaObject()->userProperty();
                const QVariant before = value.read(editor);
                QWidget *const part = editor->childAt(editor->rect().center());
                QWheelEvent event({9, 9}, editor->mapToGlobal({9, 9}), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
                QSpontaneKeyEvent::setSpontaneous(&event);      // or it does not travel to the parents
                qApp->notify(part ? part : editor, &event);     // sendEvent() would take the mark off
                const bool turns = focused && editor != choice; // the value, and not the page
                QCOMPARE(value.read(editor) != before, turns);
                QCOMPARE(area.verticalScrollBar()->value() > 0, !turns);
                QCOMPARE(editor->hasFocus(), focused);
            }
        }
    }

    void spinBoxMenuDoesNotWait()
    {
        auto box = std::make_unique<VySpinBox>(nullptr);
        box->show();
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, box->mapToGlobal({5, 5}));
        QTimer::singleShot(2000, box.get(), [] { QApplication::activePopupWidget()->close(); }); // should it wait
        QCoreApplication::sendEvent(box.get(), &event);
        const QPointer<QWidget> menu = QApplication::activePopupWidget();
        QVERIFY(menu);
        const auto actions = menu->actions();
        actions.at(actions.size() - 2)->trigger(); // step up
        QCOMPARE(box->value(), 1);
        box.reset();
        QVERIFY(!menu);
    }

    void comboList()
    {
        const std::unique_ptr<QStyle> style(QStyleFactory::create("Windows"_s)); // no list like a menu
        VyComboBox box(nullptr);
        box.setStyle(style.get());
        box.addItems({"Off"_s, QString(1000, u'm')});
        QVERIFY(box.sizeHint().width() < 200);
        box.move(300, 10);
        box.show();
        QTest::keyClick(&box, Qt::Key_F4);
        const QWidget *const list = box.view()->window();
        const QRect screen = box.screen()->availableGeometry();
        QVERIFY(list->isVisible() && screen.contains(list->geometry()));
        QVERIFY(box.view()->viewport()->width() > screen.width() - 20);
        QTest::keyClick(box.view(), Qt::Key_Down);
        QTest::keyClick(box.view(), Qt::Key_Return);
        QVERIFY(!list->isVisible());
        QCOMPARE(box.currentIndex(), 1);
        QHelpEvent help(QEvent::ToolTip, {}, box.mapToGlobal(QPoint()));
        QCoreApplication::sendEvent(&box, &help);
        QCOMPARE(QToolTip::text(), box.currentText()); // which is cut in the closed box
        QToolTip::hideText();

        VyComboBox closed(nullptr);
        closed.addItems({"Off"_s, "On"_s});
        closed.show();
        closed.hide();
        QVERIFY2(!closed.findChild<QAbstractItemView *>(), "a list that nobody has opened takes half a panel's memory");
    }

    void block()
    {
        VyBlockWidget block(nullptr);
        block.setTitleText("Title"_s);
        QPointer<QWidget> contents = new QWidget;
        block.setContentsWidget(contents);
        block.show();
        QTRY_VERIFY(contents->isVisible());
        QAbstractButton *const title = findButton(block, "Title");
        QCOMPARE(title->focusPolicy(), Qt::StrongFocus);
        const int tall = block.sizeHint().height();
        for (const Qt::Key key : {Qt::Key_unknown, Qt::Key_unknown, Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
            const bool visible = !contents->isVisible();
            key == Qt::Key_unknown ? QTest::mouseClick(title, Qt::LeftButton) : QTest::keyClick(title, key);
            QCOMPARE(contents->isVisible(), visible);
            QCOMPARE(block.sizeHint().height() == tall, visible);
        }

        QAbstractButton *const button = findButton(block, "Add");
        QVERIFY(button && !button->isVisible());
        block.setAddButtonVisible(true);
        bool seen = false;
        connect(&block, &VyBlockWidget::addButtonClicked, this, [&] { seen = contents->isVisible(); });
        QSignalSpy clicks(&block, &VyBlockWidget::addButtonClicked);
        QSignalBlocker blocker(&block);
        QTest::mouseClick(button, Qt::LeftButton);
        blocker.unblock();
        QVERIFY(clicks.isEmpty() && !contents->isVisible());
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(seen);
        QTest::keyClick(button, Qt::Key_Return);
        QCOMPARE(clicks.size(), 2);
        QVERIFY(contents->isVisible());

        block.setContentsWidget(new QWidget);
        QVERIFY(!contents);
    }

    void darkApplication()
    {
        const auto restore = qScopeGuard([palette = QApplication::palette(), style = QApplication::style()->objectName()] {
            QApplication::setStyle(style);
            QApplication::setPalette(palette);
        });
        QPalette dark(QColor(40, 40, 40)); // light text on dark grounds
        dark.setColor(QPalette::Highlight, QColor(200, 40, 40));
        QApplication::setPalette(dark);
        QWidget window;
        window.setStyleSheet("#other { background: white; }"_s); // below it no palette is inherited
        VyBlockWidget block(&window);
        auto *const contents = new QWidget;
        auto *const box = new VyComboBox(contents);
        block.setContentsWidget(contents);
        window.show();
        auto *const late = new VySpinBox(contents); // as a row that builds its editor late
        late->show();
        box->addItems({"Off"_s, "On"_s});
        QTest::keyClick(box, Qt::Key_F4);
        QWidget *const list = box->view()->viewport();
        QVERIFY(list->grab().toImage().pixelColor(list->rect().bottomRight()).lightness() > 200);
        const QList<QWidget *> widgets{contents, box, late, late->findChild<QLineEdit *>()};
        QVERIFY(late->palette().isCopyOf(contents->palette())); // each of its own would have pictures of its own
        for (int i = 0; i < 2 * widgets.size(); ++i) {
            if (i == widgets.size()) {
                QApplication::setStyle("Windows"_s); // polishes everything anew
            }
            const QWidget *const widget = widgets.at(i % widgets.size());
            const QPalette colors = widget->palette();
            QVERIFY(contrast(colors.color(QPalette::WindowText), Qt::white) > 7);
            QVERIFY(contrast(colors.color(QPalette::Text), colors.color(QPalette::Base)) > 7);
            QVERIFY(contrast(colors.color(QPalette::ButtonText), colors.color(QPalette::Button)) > 7);
            QVERIFY(contrast(colors.color(QPalette::PlaceholderText), colors.color(QPalette::Base)) > 3);
            QVERIFY(contrast(colors.color(QPalette::Disabled, QPalette::Text), Qt::white) > 3);
            QCOMPARE(colors.color(QPalette::Highlight), QColor(200, 40, 40));
        }
        dark.setColor(QPalette::Highlight, Qt::cyan); // as in a palette of high contrast
        dark.setColor(QPalette::HighlightedText, Qt::black);
        QApplication::setPalette(dark);
        for (const QWidget *widget : widgets) {
            const QColor accent = widget->palette().color(QPalette::Highlight);
            QVERIFY(accent.hue() == 180 && contrast(accent, Qt::white) > 4.4);
            QVERIFY(contrast(accent, widget->palette().color(QPalette::HighlightedText)) > 4.4);
        }
    }

    void assistiveTechnology()
    {
        VyToggleSwitch toggle(nullptr);
        QSignalSpy toggled(&toggle, &VyToggleSwitch::toggled);
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&toggle);
        QCOMPARE(interface->role(), QAccessible::CheckBox);
        QVERIFY(interface->state().checkable && interface->state().focusable && !interface->state().checked);
        const QString press = QAccessibleActionInterface::pressAction();
        interface->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(interface->state().checked);
        toggle.setEnabled(false);
        interface->actionInterface()->doAction(press);
        QVERIFY(!interface->actionInterface()->actionNames().contains(press));
        QCOMPARE(toggled.size(), 1);

        VyBlockWidget block(nullptr);
        block.setTitleText("Lines & more"_s);
        interface = QAccessible::queryAccessibleInterface(findButton(block, "Lines & more"));
        QCOMPARE(interface->role(), QAccessible::Button);
        QCOMPARE(interface->text(QAccessible::Name), "Lines & more"_s);
        QVERIFY(interface->state().expandable && interface->state().expanded && !interface->state().collapsed);
        interface->actionInterface()->doAction(press);
        QVERIFY(interface->state().collapsed && !interface->state().expanded);
    }

    void languageChange()
    {
        VyBlockWidget block(nullptr);
        block.setTitleText("Inputs"_s);
        VyMultiCheckTitleWidget title(nullptr);
        title.setText("Input 1"_s);
        TildeTranslator translator;
        QCoreApplication::installTranslator(&translator);
        QTRY_VERIFY(findButton(title, "~Delete") && findButton(block, "~Add"));
        QCOMPARE(findButton(title, "~Delete")->accessibleName(), "~Delete Input 1"_s);
        QCOMPARE(findButton(block, "~Add")->accessibleName(), "~Add to Inputs"_s);
    }
};

QTEST_MAIN(KitTest)
#include "KitTest.moc"
