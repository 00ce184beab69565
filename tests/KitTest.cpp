#include <VyCommonGUI/VyBlockWidget.h>
#include <VyCommonGUI/VyComboBox.h>
#include <VyCommonGUI/VyDoubleSpinBox.h>
#include <VyCommonGUI/VyLineEdit.h>
#include <VyCommonGUI/VyMultiCheckTitleWidget.h>
#include <VyCommonGUI/VyScrollArea.h>
#include <VyCommonGUI/VySpinBox.h>
#include <VyCommonGUI/VyToggleSwitch.h>

#include <QtTest>
#include <QtWidgets>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>

using namespace VyViewer;

using ToggleAction = std::function<void(VyToggleSwitch *)>;
using EditorMaker = std::function<QWidget *(QWidget *)>;
Q_DECLARE_METATYPE(ToggleAction)
Q_DECLARE_METATYPE(EditorMaker)

namespace {

void drag(QWidget *widget, const QPoint &from, const QPoint &to)
{
    QTest::mousePress(widget, Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(widget, &move);
    QTest::mouseRelease(widget, Qt::LeftButton, {}, to);
}

/// One notch towards the user, over whatever part of the widget lies in its middle.
void turnWheel(QWidget *widget)
{
    QWidget *const part = widget->childAt(widget->rect().center());
    QWidget *const target = part ? part : widget;
    const QPointF at(target->rect().center());
    QWheelEvent event(at, target->mapToGlobal(at.toPoint()), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // or it does not travel to the parents
    qApp->notify(target, &event);              // sendEvent() would take the mark off
}

/// The button with the tool tip.
QAbstractButton *findButton(const QWidget &parent, const QString &toolTip)
{
    const auto buttons = parent.findChildren<QAbstractButton *>();
    const auto found = std::find_if(buttons.begin(), buttons.end(),
                                    [&](QAbstractButton *button) { return button->toolTip() == toolTip; });
    return found == buttons.end() ? nullptr : *found;
}

/// The ratio of the luminances of two colours, 1 to 21.
double contrast(const QColor &one, const QColor &other)
{
    const auto luminance = [](const QColor &color) {
        const auto linear = [](double part) {
            return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.05 + 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
    };
    const double ratio = luminance(one) / luminance(other);
    return qMax(ratio, 1 / ratio);
}

/// Translates the kit's texts, and nothing else, to capitals.
class ShoutingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return QByteArray(context).startsWith("VyViewer::") ? QString::fromLatin1(text).toUpper() : QString();
    }
};

} // namespace

class KitTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void toggleByUser_data();
    void toggleByUser();
    void togglePaintsItsState();
    void toggleKeepsItsOwnersWidth();
    void wheel_data();
    void wheel();
    void floats_data();
    void floats();
    void onlySetValuesAreReported();
    void spinBoxMenuDoesNotWait();
    void comboList_data();
    void comboList();
    void blockCollapses();
    void blockContents();
    void blockAdd();
    void titleDelete();
    void darkApplication();
    void assistiveTechnology();
    void languageChange();
};

void KitTest::toggleByUser_data()
{
    QTest::addColumn<ToggleAction>("act");
    QTest::addColumn<bool>("on");
    const auto add = [](const char *name, bool on, const ToggleAction &act) { QTest::newRow(name) << act << on; };
    add("click", true, [](VyToggleSwitch *t) { QTest::mouseClick(t, Qt::LeftButton); });
    add("right button", false, [](VyToggleSwitch *t) { QTest::mouseClick(t, Qt::RightButton); });
    add("Space", true, [](VyToggleSwitch *t) { QTest::keyClick(t, Qt::Key_Space); });
    add("held Space repeats", true, [](VyToggleSwitch *t) {
        QTest::keyPress(t, Qt::Key_Space);
        QKeyEvent again(QEvent::KeyPress, Qt::Key_Space, {}, QStringLiteral(" "), true);
        QCoreApplication::sendEvent(t, &again);
    });
    add("drag to the other side", true, [](VyToggleSwitch *t) { drag(t, {12, 15}, {48, 15}); });
    add("drag past the end", true, [](VyToggleSwitch *t) { drag(t, {12, 15}, {70, 15}); });
    add("drag and no farther than half", false, [](VyToggleSwitch *t) { drag(t, {12, 15}, {23, 15}); });
    add("drag against the stop", false, [](VyToggleSwitch *t) { drag(t, {48, 15}, {12, 15}); });
    add("release below", false, [](VyToggleSwitch *t) { drag(t, {12, 15}, {48, 90}); });
    add("release far right", false, [](VyToggleSwitch *t) { drag(t, {12, 15}, {300, 15}); });
    add("mirrored drag", true, [](VyToggleSwitch *t) {
        t->setLayoutDirection(Qt::RightToLeft);
        drag(t, {48, 15}, {12, 15});
    });
    add("disabled", false, [](VyToggleSwitch *t) {
        t->setEnabled(false);
        QTest::mouseClick(t, Qt::LeftButton);
        QTest::keyClick(t, Qt::Key_Space);
    });
    add("disabled while pressed", false, [](VyToggleSwitch *t) {
        QTest::mousePress(t, Qt::LeftButton);
        t->setEnabled(false);
        t->setEnabled(true);
        QTest::mouseRelease(t, Qt::LeftButton);
    });
}

void KitTest::toggleByUser()
{
    QFETCH(ToggleAction, act);
    QFETCH(bool, on);
    VyToggleSwitch toggle(nullptr);
    toggle.resize(60, 30);
    toggle.show();
    QList<bool> seen;
    connect(&toggle, &VyToggleSwitch::toggled, this, [&](bool state) { seen << state << toggle.getIsToggled(); });
    act(&toggle);
    QCOMPARE(toggle.getIsToggled(), on);
    QCOMPARE(seen, on ? (QList<bool>{true, true}) : QList<bool>{});
    toggle.setIsToggled(!on);
    QCOMPARE(toggle.getIsToggled(), !on);
    QCOMPARE(seen.size(), on ? 2 : 0); // the program's own changes are silent
}

void KitTest::togglePaintsItsState()
{
    VyToggleSwitch toggle(nullptr);
    toggle.resize(60, 30);
    QList<QImage> looks;
    const auto look = [&] { looks << toggle.grab().toImage(); };
    look();
    toggle.setIsToggled(true);
    look();
    toggle.setEnabled(false);
    look();
    toggle.setEnabled(true);
    toggle.setLayoutDirection(Qt::RightToLeft);
    look();
    for (int i = 0; i < looks.size(); ++i) {
        QCOMPARE(looks.indexOf(looks.at(i)), i); // each differs from those before it
    }
    for (int x = 0; x < toggle.width(); ++x) {
        const int mirrored = qGray(looks.at(3).pixel(toggle.width() - 1 - x, 15));
        QVERIFY(qAbs(qGray(looks.at(1).pixel(x, 15)) - mirrored) < 16);
    }
}

void KitTest::toggleKeepsItsOwnersWidth()
{
    QWidget row;
    auto *const layout = new QHBoxLayout(&row);
    auto *const fixed = new VyToggleSwitch(&row);
    auto *const free = new VyToggleSwitch(&row);
    layout->addWidget(fixed);
    layout->addWidget(free);
    fixed->setFixedWidth(60);
    row.show();
    const QSize before = free->size();
    QFont large = row.font();
    large.setPointSize(3 * large.pointSize());
    row.setFont(large);
    QTRY_VERIFY(free->width() > before.width() && free->height() > before.height());
    QCOMPARE(fixed->width(), 60);
}

void KitTest::wheel_data()
{
    QTest::addColumn<EditorMaker>("make");
    QTest::addColumn<bool>("focused");
    QTest::addColumn<bool>("turns"); // the value, and not the page
    const EditorMaker makers[] = {[](QWidget *parent) { return new VySpinBox(parent); },
                                  [](QWidget *parent) { return new VyDoubleSpinBox(parent); },
                                  [](QWidget *parent) {
                                      auto *const box = new VyComboBox(parent);
                                      box->addItems({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
                                      box->setCurrentIndex(1);
                                      return box;
                                  }};
    const char *const names[] = {"integer", "number", "choice"};
    for (int i = 0; i < 3; ++i) {
        QTest::addRow("%s without focus", names[i]) << makers[i] << false << false;
        QTest::addRow("%s with focus", names[i]) << makers[i] << true << (i < 2);
    }
}

void KitTest::wheel()
{
    QFETCH(EditorMaker, make);
    QFETCH(bool, focused);
    QFETCH(bool, turns);
    VyScrollArea area(nullptr);
    auto *const page = new QWidget;
    page->setFixedSize(200, 2000);
    auto *const other = new VyLineEdit(page);
    QWidget *const editor = make(page);
    editor->move(0, 50);
    area.setWidget(page);
    area.resize(250, 200);
    area.show();
    QVERIFY(QTest::qWaitForWindowActive(&area));
    (focused ? editor : other)->setFocus();
    const char *const value = editor->metaObject()->userProperty().name();
    if (!editor->property("value").isNull()) {
        editor->setProperty("value", 5);
    }
    const QVariant before = editor->property(value);
    turnWheel(editor);
    QCOMPARE(editor->property(value) != before, turns);
    QCOMPARE(area.verticalScrollBar()->value() > 0, !turns);
    QCOMPARE(editor->hasFocus(), focused);
}

void KitTest::floats_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<double>("step");
    QTest::addColumn<QString>("text"); // empty: any
    using Limits = std::numeric_limits<float>;
    QTest::newRow("twelve and a bit") << 12.3f << 1.0 << QStringLiteral("12.300");
    QTest::newRow("zero") << 0.f << 1.0 << QStringLiteral("0.000");
    QTest::newRow("tenth") << 0.1f << 1.0 << QStringLiteral("0.100");
    QTest::newRow("fine step") << 12.3f << double(0.0005f) << QStringLiteral("12.3000");
    QTest::newRow("step too fine to show") << 12.3f << 1e-12 << QStringLiteral("12.3000000");
    QTest::newRow("step of no size") << 12.3f << qQNaN() << QString();
    QTest::newRow("nano") << 1e-9f << 1.0 << QStringLiteral("0.000000001");
    QTest::newRow("negative") << -0.001f << 1.0 << QStringLiteral("-0.001");
    QTest::newRow("many digits") << 123456.789f << 1.0 << QStringLiteral("123456.789");
    QTest::newRow("pi") << 3.14159274f << 1.0 << QStringLiteral("3.1415927");
    QTest::newRow("end of the whole numbers") << 16777216.f << 1.0 << QStringLiteral("16777216.000");
    QTest::newRow("largest") << Limits::max() << 1.0 << QString();
    QTest::newRow("lowest") << Limits::lowest() << 1.0 << QString();
    QTest::newRow("smallest normal") << Limits::min() << 1.0 << QString();
    QTest::newRow("smallest") << Limits::denorm_min() << 1.0 << QString();
}

void KitTest::floats()
{
    QFETCH(float, value);
    QFETCH(double, step);
    QFETCH(QString, text);
    VyDoubleSpinBox box(nullptr);
    box.setLocale(QLocale::c());
    box.setRange(std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max());
    box.setSingleStep(step);
    box.setValue(double(value));
    QVERIFY(static_cast<float>(box.value()) == value); // to the bit: QCOMPARE() is content with less
    box.interpretText();                               // what leaving the editor does
    QVERIFY(static_cast<float>(box.value()) == value);
    QVERIFY(static_cast<float>(box.locale().toDouble(box.text())) == value);
    if (!text.isEmpty()) {
        QCOMPARE(box.text(), text);
    }
}

void KitTest::onlySetValuesAreReported()
{
    VyDoubleSpinBox box(nullptr);
    box.setRange(-1e6, 1e6);
    QList<float> reported;
    connect(&box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [&](double value) { reported << static_cast<float>(value); });
    const QList<float> values{0.12345f, 12.3f, 1e-7f, -7.f};
    for (const float value : values) {
        box.setValue(double(value)); // more decimals and fewer in turn
    }
    QCOMPARE(reported, values);
    box.setValue(double(1e-7f));
    for (const double none : {qQNaN(), qInf(), -qInf(), 1e300}) {
        box.setValue(none);
        QCOMPARE(box.decimals(), 7);
    }
}

void KitTest::spinBoxMenuDoesNotWait()
{
    auto box = std::make_unique<VySpinBox>(nullptr);
    box->show();
    const auto open = [&]() -> QMenu * {
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, box->mapToGlobal({5, 5}));
        QTimer::singleShot(2000, qApp, [] { // or a menu that does wait would do so for ever
            if (QWidget *const popup = QApplication::activePopupWidget()) {
                popup->close();
            }
        });
        QCoreApplication::sendEvent(box.get(), &event);
        return qobject_cast<QMenu *>(QApplication::activePopupWidget());
    };
    QPointer<QMenu> menu = open();
    QVERIFY(menu);
    const auto actions = menu->actions();
    const auto stepUp = std::find_if(actions.begin(), actions.end(),
                                     [](QAction *action) { return action->text() == QLatin1String("&Step up"); });
    QVERIFY(stepUp != actions.end());
    (*stepUp)->trigger();
    QCOMPARE(box->value(), 1);
    menu->close();
    QTRY_VERIFY(!menu);
    menu = open();
    box.reset();
    QVERIFY(!menu);
}

void KitTest::comboList_data()
{
    QTest::addColumn<QString>("style");
    QTest::newRow("like a menu") << QStringLiteral("Fusion");
    QTest::newRow("like a list") << QStringLiteral("Windows");
}

void KitTest::comboList()
{
    QFETCH(QString, style);
    const std::unique_ptr<QStyle> owned(QStyleFactory::create(style));
    VyComboBox box(nullptr);
    box.setStyle(owned.get());
    box.addItems({QStringLiteral("Off"), QString(60, QLatin1Char('m'))});
    const int narrow = box.sizeHint().width();
    QVERIFY(narrow < 200);
    box.resize(narrow, box.sizeHint().height());
    box.move(300, 10);
    box.show();
    const QRect screen = box.screen()->availableGeometry();
    for (const int length : {20, 60, 1000}) {
        box.setItemText(1, QString(length, QLatin1Char('m')));
        QTest::keyClick(&box, Qt::Key_F4);
        const QWidget *const list = box.view()->window();
        QVERIFY(list->isVisible());
        QVERIFY(screen.contains(list->geometry()));
        const int needed = box.fontMetrics().horizontalAdvance(box.itemText(1));
        QVERIFY(box.view()->viewport()->width() > qMin(needed, screen.width() - 20));
        QTest::keyClick(box.view(), Qt::Key_Escape);
        QVERIFY(!list->isVisible());
        QVERIFY(box.view()->minimumWidth() < 20);
    }
    QTest::keyClick(&box, Qt::Key_F4); // and now the entries change under the open list
    box.clear();
    box.addItems({QStringLiteral("One"), QStringLiteral("Two")});
    QTest::keyClick(box.view(), Qt::Key_Down);
    QTest::keyClick(box.view(), Qt::Key_Return);
    QVERIFY(!box.view()->window()->isVisible());
    QVERIFY(box.currentIndex() >= 0);
}

void KitTest::blockCollapses()
{
    VyBlockWidget block(nullptr);
    block.setTitleText(QStringLiteral("Title"));
    auto *const contents = new QWidget;
    block.setContentsWidget(contents);
    block.show();
    QTRY_VERIFY(contents->isVisible());
    QAbstractButton *const title = findButton(block, QStringLiteral("Title"));
    QCOMPARE(title->focusPolicy(), Qt::StrongFocus);
    QTest::mouseClick(title, Qt::RightButton);
    const int tall = block.sizeHint().height();
    bool visible = true;
    for (const Qt::Key key : {Qt::Key_unknown, Qt::Key_unknown, Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        key == Qt::Key_unknown ? QTest::mouseClick(title, Qt::LeftButton) : QTest::keyClick(title, key);
        visible = !visible;
        QCOMPARE(contents->isVisible(), visible);
        QCOMPARE(block.sizeHint().height() == tall, visible);
    }
}

void KitTest::blockContents()
{
    VyBlockWidget block(nullptr);
    block.setTitleText(QString(500, QLatin1Char('m')));
    QVERIFY(block.minimumSizeHint().width() < 300);
    QPointer<QWidget> first = new QWidget;
    block.setContentsWidget(first);
    block.setExpanded(false);
    block.show();
    auto *const second = new QLabel;
    block.setContentsWidget(second);
    QVERIFY(!first);
    QCoreApplication::processEvents();
    QVERIFY(!second->isVisible());
    block.setExpanded(true);
    QTRY_VERIFY(second->isVisible());
    delete second; // by its maker
    block.setContentsWidget(nullptr);
}

void KitTest::blockAdd()
{
    VyBlockWidget block(nullptr);
    auto *const contents = new QWidget;
    block.setContentsWidget(contents);
    block.show();
    QAbstractButton *const button = findButton(block, QStringLiteral("Add"));
    QVERIFY(button && !button->isVisible());
    block.setAddButtonVisible(true);
    block.setExpanded(false);
    QSignalSpy clicks(&block, &VyBlockWidget::addButtonClicked);
    {
        const QSignalBlocker blocker(&block);
        QTest::mouseClick(button, Qt::LeftButton);
    }
    QVERIFY(clicks.isEmpty() && !contents->isVisible());
    bool seen = false;
    connect(&block, &VyBlockWidget::addButtonClicked, this, [&] { seen = contents->isVisible(); });
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(seen);
    QTest::keyClick(button, Qt::Key_Return);
    QCOMPARE(clicks.size(), 2);
    QVERIFY(contents->isVisible());
}

void KitTest::titleDelete()
{
    VyMultiCheckTitleWidget title(nullptr);
    title.setText(QStringLiteral("<b>Output 1</b>"));
    title.show();
    QCOMPARE(title.findChild<QLabel *>()->textFormat(), Qt::PlainText);
    QAbstractButton *const button = findButton(title, QStringLiteral("Delete"));
    QCheckBox *const check = title.findChild<QCheckBox *>();
    QVERIFY(button->isVisible() && check->isVisible());
    QSignalSpy clicks(&title, &VyMultiCheckTitleWidget::deleteButtonClicked);
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::keyClick(button, Qt::Key_Space);
    QCOMPARE(clicks.size(), 2);
    title.setEnabled(false);
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::keyClick(button, Qt::Key_Space);
    button->click();
    QCOMPARE(clicks.size(), 2);
    title.setDeleteButtonVisible(false);
    title.setCheckBoxVisible(false);
    QVERIFY(!button->isVisible() && !check->isVisible());
}

void KitTest::darkApplication()
{
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(40, 40, 40)); // light text on dark grounds
    dark.setColor(QPalette::Highlight, QColor(200, 40, 40));
    QApplication::setPalette(dark);
    {
        VyBlockWidget block(nullptr);
        auto *const contents = new QWidget;
        auto *const box = new VyComboBox(contents);
        box->addItems({QStringLiteral("Off"), QStringLiteral("On")});
        QList<QWidget *> widgets{new QLabel(contents), new VySpinBox(contents), new VyLineEdit(contents),
                                 new VyToggleSwitch(contents), box};
        block.setContentsWidget(contents);
        block.show();
        box->QComboBox::setFocus();
        QTest::keyClick(box, Qt::Key_F4);
        QWidget *const list = box->view()->viewport();
        QVERIFY(list->grab().toImage().pixelColor(list->rect().bottomRight()).lightness() > 200);
        for (const QWidget *widget : qAsConst(widgets)) {
            const QPalette colors = widget->palette();
            QVERIFY(contrast(colors.color(QPalette::WindowText), Qt::white) > 7);
            QVERIFY(contrast(colors.color(QPalette::Text), colors.color(QPalette::Base)) > 7);
            QVERIFY(contrast(colors.color(QPalette::ButtonText), colors.color(QPalette::Button)) > 7);
            QVERIFY(contrast(colors.color(QPalette::PlaceholderText), colors.color(QPalette::Base)) > 3);
            QVERIFY(contrast(colors.color(QPalette::Disabled, QPalette::Text), Qt::white) > 3);
            QCOMPARE(colors.color(QPalette::Highlight), QColor(200, 40, 40));
        }
    }
    QApplication::setPalette(before);
}

void KitTest::assistiveTechnology()
{
    VyToggleSwitch toggle(nullptr);
    QSignalSpy toggled(&toggle, &VyToggleSwitch::toggled);
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&toggle);
    QCOMPARE(interface->role(), QAccessible::CheckBox);
    QVERIFY(interface->state().checkable && interface->state().focusable && !interface->state().checked);
    toggle.setIsToggled(true);
    QVERIFY(interface->state().checked);
    const QString press = QAccessibleActionInterface::pressAction();
    interface->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QCOMPARE(toggled.size(), 1);
    toggle.setEnabled(false);
    interface->actionInterface()->doAction(press);
    QVERIFY(!interface->actionInterface()->actionNames().contains(press));
    QCOMPARE(toggled.size(), 1);

    VyBlockWidget block(nullptr);
    block.setTitleText(QStringLiteral("Lines & more"));
    interface = QAccessible::queryAccessibleInterface(findButton(block, QStringLiteral("Lines & more")));
    QCOMPARE(interface->role(), QAccessible::Button);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Lines & more"));
    QVERIFY(interface->state().expandable && interface->state().expanded && !interface->state().collapsed);
    interface->actionInterface()->doAction(press);
    QVERIFY(interface->state().collapsed && !interface->state().expanded);
}

void KitTest::languageChange()
{
    VyBlockWidget block(nullptr);
    block.setTitleText(QStringLiteral("Inputs"));
    VyMultiCheckTitleWidget title(nullptr);
    title.setText(QStringLiteral("Input 1"));
    QCOMPARE(findButton(title, QStringLiteral("Delete"))->accessibleName(), QStringLiteral("Delete Input 1"));
    ShoutingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QTRY_VERIFY(findButton(title, QStringLiteral("DELETE")));
    QCOMPARE(findButton(title, QStringLiteral("DELETE"))->accessibleName(), QStringLiteral("DELETE Input 1"));
    QVERIFY(findButton(block, QStringLiteral("ADD")));
    QCOMPARE(findButton(block, QStringLiteral("ADD"))->accessibleName(), QStringLiteral("ADD TO Inputs"));
}

QTEST_MAIN(KitTest)
#include "KitTest.moc"
