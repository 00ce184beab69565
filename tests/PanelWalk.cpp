#include "PanelWalk.h"

#include "PanelProbe.h"

#include "parampage/DeviceEvents.h"

#include <VyCommonGUI/VyLineEdit.h>
#include <VyCommonGUI/VyScrollArea.h>
#include <VyCommonGUI/VyToggleSwitch.h>

#include <QAbstractSpinBox>
#include <QApplication>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>

#include <thread>

using namespace VyViewer;

const PanelWalk::Action PanelWalk::kActions[] = {
    {25, &PanelWalk::clickRow}, {4, &PanelWalk::pressOrRelease}, {30, &PanelWalk::key}, {20, &PanelWalk::list},
    {2, &PanelWalk::wheel}, {2, &PanelWalk::hover}, {5, &PanelWalk::clickButton}, {8, &PanelWalk::event},
    {5, &PanelWalk::grab}, {2, &PanelWalk::language}, {3, &PanelWalk::hideOrShow}, {2, &PanelWalk::look},
    {2, &PanelWalk::focusElsewhere}, {1, &PanelWalk::move}, {1, &PanelWalk::destroy}, {10, &PanelWalk::change},
    {3, &PanelWalk::lieInWait},
};

PanelWalk::PanelWalk(uint seed)
    : m_seed(seed)
{
    for (QWidget &host : m_hosts) {
        auto *const layout = new QVBoxLayout(&host);
        layout->addWidget(new QLineEdit(&host));
        host.resize(420, 500);
        host.show();
    }
    m_device.node("InputTriggerMode").value = "Hold"_s;
    m_device.node("TriggerStopConfig3Enable").value = true;
    build();
    settle();
}

PanelWalk::~PanelWalk()
{
    m_model.reset();
    delete m_panel;
    QCoreApplication::removeTranslator(&m_translator);
}

QString PanelWalk::step(int number)
{
    m_random.seed(m_seed * 1000003U + uint(number));
    m_faults.clear();
    QString name = "build"_s;
    if (!m_panel) {
        build();
    } else {
        m_model->begin();
        const Action *action = kActions;
        for (int at = below(125); at >= action->weight; ++action) {
            at -= action->weight;
        }
        name = !m_panel->isVisible() && chance(70) ? hideOrShow() : (this->*action->take)();
    }
    settle();
    m_faults += m_panel ? m_model->check() : m_model->faults();
    if (!m_panel) { // whatever happens now, it reaches nobody
        m_model.reset();
        m_callsToReaction = -1;
        m_device.calls.clear();
        for (int i = 0; i < 20; ++i) {
            post(&name);
        }
        PanelProbe::grab(&m_device, 1);
        if (!m_device.calls.isEmpty()) {
            m_faults.append("the destroyed panel calls %1"_s.arg(m_device.calls.first()));
        }
        name = "the end of the panel"_s;
    }
    return name;
}

void PanelWalk::build()
{
    m_panel = new VyTriggerConfigWdg(&m_hosts[0]);
    m_panel->setVyDevice(&m_device);
    m_model = std::make_unique<PanelModel>(m_device, m_panel);
    m_model->translated(m_translated);
    m_device.onCall = [this, judge = m_device.onCall](const QString &call) {
        judge(call);
        if (onWrite && ScriptedDevice::isWrite(call)) {
            onWrite(m_device.node(call.mid(4).section(u'=', 0, 0)).answer.type);
        }
        if (m_callsToReaction >= 0 && m_callsToReaction-- == 0) {
            react();
        }
    };
    m_model->begin();
    m_hosts[0].layout()->addWidget(m_panel);
    m_hosts[0].show();
    m_hosts[0].activateWindow();
}

/// Until nothing more is to be done.
void PanelWalk::settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents(); // shows are queued in shows
}

QWindow *PanelWalk::window() const
{
    return m_panel->window()->windowHandle();
}

/// A visible one, with this kind of editor if a kind is given; those on which others depend more often.
ParamPageWidgetItem *PanelWalk::visibleRow(const QMetaObject *kind)
{
    QVector<ParamPageWidgetItem *> rows;
    for (ParamPageWidgetItem *row : m_model->rows()) {
        const bool fits = row->isVisible() && (!kind || kind->cast(PanelModel::editorOf(row)));
        rows.insert(rows.size(), !fits ? 0 : row->objectName().startsWith("InputTrigger"_s) ? 5 : 1, row);
    }
    return rows.isEmpty() ? nullptr : pick(rows);
}

ParamPageWidgetItem *PanelWalk::focusRow() const
{
    return m_model->rowOf(QApplication::focusWidget());
}

/// The row whose list or menu is open.
ParamPageWidgetItem *PanelWalk::listRow() const
{
    return m_model->rowOf(QApplication::activePopupWidget());
}

/// The focus may go elsewhere and an open list close, and with that an edit end.
void PanelWalk::mayLeave()
{
    m_model->mayFinish(focusRow());
    m_model->mayFinish(listRow());
}

bool PanelWalk::reveal(QWidget *widget)
{
    m_panel->findChild<VyScrollArea *>()->ensureWidgetVisible(widget);
    settle();
    if (!m_panel) {
        return false;
    }
    // What was hidden by its own show is not there, whatever it says of itself.
    const QWidget *const there = m_panel->window()->childAt(widget->mapTo(m_panel->window(), widget->rect().center()));
    return there && (there == widget || widget->isAncestorOf(there));
}

QString PanelWalk::clickRow()
{
    ParamPageWidgetItem *const row = visibleRow();
    if (!row) {
        return clickButton(); // a block is collapsed
    }
    if (!reveal(PanelModel::editorOf(row))) {
        return "no place to click"_s;
    }
    const QString name = "click on %1"_s.arg(row->objectName());
    QWidget *editor = PanelModel::editorOf(row);
    const bool spins = qobject_cast<QAbstractSpinBox *>(editor);
    auto *const toggle = editor->findChild<VyToggleSwitch *>();
    editor = toggle ? toggle : editor;
    const QPoint at = spins ? QPoint(below(editor->width()), below(editor->height())) : editor->rect().center();
    // Whoever leaves another editor may change what is under the pointer.
    const bool leavesNone = !QApplication::activePopupWidget() && !m_pressed && (!focusRow() || focusRow() == row);
    if (leavesNone && editor->isEnabled() && (toggle || qobject_cast<QPushButton *>(editor))) {
        m_model->mustFinish(row);
    } else if (!spins) {
        m_model->mayFinish(row);
    }
    mayLeave();
    QTest::mouseClick(window(), Qt::LeftButton, Qt::NoModifier, editor->mapTo(m_panel->window(), at));
    if (m_panel) {
        m_model->touch(row); // also when it ended another edit, and everything was read, before it came here
    }
    settle();
    if (!m_panel || focusRow() != row || !(spins || qobject_cast<QLineEdit *>(editor))) {
        return name;
    }
    m_faults = m_model->check();
    m_model->begin();
    return "%1, %2"_s.arg(name, key());
}

/// A press whose release comes some steps later, on whatever is there then.
QString PanelWalk::pressOrRelease()
{
    mayLeave();
    if (m_pressed) {
        const QPoint at(below(m_panel->window()->width()), below(m_panel->window()->height()));
        m_model->mayFinish(m_model->rowOf(m_pressed));
        m_pressed = nullptr;
        QTest::mouseMove(window(), at);
        QTest::mouseRelease(window(), Qt::LeftButton, Qt::NoModifier, at);
        return "release"_s;
    }
    ParamPageWidgetItem *const row = visibleRow();
    if (!row || qobject_cast<QAbstractSpinBox *>(PanelModel::editorOf(row))) { // which repeats by time
        return "nothing to press"_s;
    }
    const QString name = "press on %1"_s.arg(row->objectName());
    m_pressed = PanelModel::editorOf(row);
    m_model->touch(row);
    QTest::mousePress(window(), Qt::LeftButton, Qt::NoModifier, m_pressed->mapTo(m_panel->window(), QPoint(20, 15)));
    return name;
}

QString PanelWalk::key()
{
    static constexpr Qt::Key kKeys[] = {
        Qt::Key_Return, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Space,
        Qt::Key_Up, Qt::Key_Down, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_Home, Qt::Key_End, Qt::Key_Left, Qt::Key_Backspace,
        Qt::Key_Delete, Qt::Key_Escape, Qt::Key_1, Qt::Key_7, Qt::Key_Minus, Qt::Key_Period, Qt::Key_A, Qt::Key_S,
    };
    const Qt::Key key = chance(30) ? Qt::Key_Return : pick(kKeys);
    const auto modifiers = key == Qt::Key_A && chance(50) ? Qt::ControlModifier : Qt::NoModifier;
    QWidget *const focus = QApplication::focusWidget();
    QWindow *const target = QGuiApplication::focusWindow();
    if (!focus || !target || !(m_panel->isAncestorOf(focus) || listRow())) {
        return chance(50) ? clickRow() : focusElsewhere();
    }
    const QString name = "key %1 for a %2"_s.arg(QKeySequence(key).toString(), QLatin1String(focus->metaObject()->className()));
    ParamPageWidgetItem *const row = focusRow();
    const auto *const edit = qobject_cast<const QLineEdit *>(focus);
    const bool spins = qobject_cast<const QAbstractSpinBox *>(focus);
    const bool chooses = qobject_cast<const QComboBox *>(focus);
    if (QApplication::activePopupWidget() || focus->window() != m_panel->window()) {
        mayLeave();
        m_model->mayFinish(m_model->rowOf(m_panel->window()->focusWidget()));
    } else if (row) {
        const bool accepted = spins || (edit && edit->hasAcceptableInput());
        const bool presses = key == Qt::Key_Space && !edit && !spins;
        if (accepted ? key == Qt::Key_Return : presses && !chooses && !m_pressed) {
            m_model->mustFinish(row);
        } else if (chooses || presses || key == Qt::Key_Tab || key == Qt::Key_Backtab) {
            m_model->mayFinish(row);
        }
    } else if (const auto *const button = qobject_cast<QAbstractButton *>(focus)) {
        mayPress(button);
    }
    m_model->touch(row);
    m_model->touch(listRow());
    QTest::keyClick(target, key, modifiers);
    return name;
}

/// Opens one, or uses the open one.
QString PanelWalk::list()
{
    if (QWidget *const open = QApplication::activePopupWidget()) {
        if (chance(30)) {
            return key();
        }
        mayLeave();
        m_model->touch(listRow());
        m_model->touch(focusRow());
        QTest::mouseClick(open->windowHandle(), Qt::LeftButton, Qt::NoModifier, {below(open->width()), below(open->height())});
        return "click into the list"_s;
    }
    ParamPageWidgetItem *const row = visibleRow(&VyComboBox::staticMetaObject);
    if (!row) {
        return "no list to open"_s;
    }
    QWidget *const combo = PanelModel::editorOf(row);
    const QString name = "list of %1"_s.arg(row->objectName());
    mayLeave();
    combo->setFocus();
    if (QApplication::focusWidget() == combo) {
        QTest::keyClick(window(), Qt::Key_F4);
    }
    return name;
}

QString PanelWalk::wheel()
{
    ParamPageWidgetItem *const row = visibleRow();
    if (!row) {
        return "no row under the wheel"_s;
    }
    m_model->mustNotCall();
    m_model->touch(row);
    QWidget *const editor = PanelModel::editorOf(row);
    const QPoint at = editor->rect().center();
    QWheelEvent wheel(at, editor->mapToGlobal(at), {}, {0, chance(50) ? 120 : -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&wheel);
    qApp->notify(editor, &wheel);
    return "wheel over %1"_s.arg(row->objectName());
}

QString PanelWalk::hover()
{
    m_model->mustNotCall();
    QTest::mouseMove(window(), QPoint(below(420), below(500)));
    return "hover"_s;
}

void PanelWalk::mayPress(const QAbstractButton *button)
{
    if (const auto *const title = qobject_cast<VyMultiCheckTitleWidget *>(button->parentWidget())) {
        m_model->mayDelete(PanelProbe::text(title).rightRef(1).toInt());
    } else {
        m_model->mayAdd();
    }
}

/// Of a title: add, delete, expand or collapse.
QString PanelWalk::clickButton()
{
    QVector<QAbstractButton *> buttons;
    for (auto *const button : m_panel->findChildren<QAbstractButton *>()) {
        const bool fits = button->isVisible() && !m_model->rowOf(button);
        buttons.insert(buttons.size(), !fits ? 0 : button->width() < button->height() * 2 ? 4 : 1, button); // rather add or delete
    }
    QAbstractButton *const button = buttons.isEmpty() ? nullptr : pick(buttons);
    if (!button || !reveal(button)) {
        return "no button to click"_s;
    }
    const QString name = "click on the button \"%1\""_s.arg(button->toolTip());
    mayLeave();
    mayPress(button);
    QTest::mouseClick(window(), Qt::LeftButton, Qt::NoModifier, button->mapTo(m_panel->window(), button->rect().center()));
    return name;
}

/// Whether the panel is concerned.
bool PanelWalk::post(QString *name)
{
    static constexpr const char *kNames[] = {
        "UserSetLoad", "DeviceParamChanged", "triggerSource", "tcpserverCMDFormatEvent", "tcpclientCMDFormatEvent",
        "udpCMDFormatEvent", "serialportCMDFormatEvent", "TriggerStopConditionEvent", "TriggerStopDecodeCountEnable", "Unknown",
    };
    const QVariant notTheDevice[] = {
        QVariant::fromValue<IDevice>(&m_stranger), QVariant::fromValue<IDevice>(nullptr), "IDevice"_s, 7, QVariant(),
        QVariant::fromValue<void *>(&m_device), QVariant::fromValue<QObject *>(m_panel), QVariantMap(),
    };
    *name = QString::fromLatin1(pick(kNames));
    const bool concerns = chance(60);
    QVariantMap payload = DeviceEvents::payload(&m_device);
    if (!concerns) {
        payload.first() = pick(notTheDevice);
        if (chance(20)) {
            payload.clear();
        }
    }
    if (chance(50)) {
        payload.insert("TriggerMode"_s, chance(50) ? QVariant("On"_s) : QVariant());
    }
    if (chance(20)) {
        payload.insert("TriggerConfigWdgImpl"_s, QVariant());
    }
    DeviceEvents::post(*name, payload);
    return concerns;
}

QString PanelWalk::event()
{
    QString name;
    if (!post(&name)) {
        m_model->mustNotCall();
    }
    return "event %1"_s.arg(name);
}

QString PanelWalk::grab()
{
    static constexpr int kStatuses[] = {0, 0, 1, 7, -1};
    Device *const devices[] = {&m_device, &m_device, &m_device, &m_stranger, nullptr};
    Device *const device = pick(devices);
    const int status = pick(kStatuses);
    if (device == &m_device) {
        m_model->grabbed(status);
    } else {
        m_model->mustNotCall();
    }
    if (chance(50)) {
        PanelProbe::grab(device, status);
    } else {
        std::thread([&] { PanelProbe::grab(device, status); }).join();
    }
    return "grab status %1"_s.arg(status);
}

QString PanelWalk::language()
{
    m_model->mustNotCall();
    m_translated = !m_translated;
    m_model->translated(m_translated);
    if (m_translated) {
        QCoreApplication::installTranslator(&m_translator);
    } else {
        QCoreApplication::removeTranslator(&m_translator);
    }
    return "another language"_s;
}

QString PanelWalk::hideOrShow()
{
    mayLeave();
    if (m_panel->isVisible()) {
        QWidget *const hidden = chance(50) ? m_panel->window() : m_panel.data();
        hidden->hide();
        return "hide"_s;
    }
    m_panel->show();
    m_panel->window()->show();
    m_panel->window()->activateWindow();
    return "show"_s;
}

QString PanelWalk::look()
{
    const int what = below(4);
    if (what == 0) {
        mayLeave();
        m_panel->setEnabled(!m_panel->isEnabled() || chance(50));
        return "enable or disable the panel"_s;
    }
    m_model->mustNotCall();
    if (what == 1) {
        m_panel->window()->resize(200 + below(500), 200 + below(500));
    } else if (what == 2) {
        m_panel->setLayoutDirection(chance(50) ? Qt::LeftToRight : Qt::RightToLeft);
    } else {
        QFont font = m_panel->font();
        font.setPointSize(8 + below(5));
        m_panel->setFont(font);
    }
    return "another look"_s;
}

QString PanelWalk::focusElsewhere()
{
    mayLeave();
    QWidget &host = pick(m_hosts);
    if (chance(50)) {
        host.findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly)->setFocus();
    }
    host.activateWindow();
    return "focus elsewhere"_s;
}

QString PanelWalk::move()
{
    mayLeave();
    if (chance(30)) {
        m_panel->setParent(nullptr);
    } else {
        pick(m_hosts).layout()->addWidget(m_panel);
    }
    m_panel->show();
    m_panel->window()->activateWindow();
    return "move"_s;
}

QString PanelWalk::destroy()
{
    if (chance(50)) {
        delete m_panel;
    } else {
        m_panel->deleteLater();
    }
    return "destroy"_s;
}

void PanelWalk::changeNode()
{
    static constexpr int kNumbers[] = {0, 7, -1, 100, 65535, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};
    static const QString kTexts[] = {
        QString(), "0aF9"_s, "a\nb"_s, "<b>x</b>"_s, "&File"_s, "\u00fc\u6f22\U0001F600"_s, "\u202eabc"_s,
        QString(300, u'x'),
    };
    static const QString kEntries[] = {
        "None"_s, "Hold"_s, "Once"_s, "TcpServer"_s, "TcpClient"_s, "Udp"_s, "RS-232"_s, "AutoTrigger"_s, "SensingTrigger"_s,
        "Hex"_s, "String"_s, "<b>x</b>"_s, "&File"_s, "a\nb"_s, QString(),
    };
    static constexpr int kModes[] = {-1, 0, 1, 2, 3, 3, 5, 1 << 30};
    QString name = pick(m_model->rows())->objectName();
    if (chance(20)) {
        name = "TriggerStopConfig%1Enable"_s.arg(2 + below(4));
    } else if (chance(20)) {
        name = "InputTriggerMode"_s;
    } else if (chance(20) && focusRow()) {
        name = focusRow()->objectName();
    }
    ScriptedDevice::Node &node = m_device.node(name);
    node.failsReads = chance(5);
    node.refusesWrites = chance(5);
    node.mode = chance(75) ? RuvoNodeReadWrite : static_cast<RuvoNodeAccessMode>(pick(kModes));
    if (chance(2)) {
        node.type = static_cast<RuvoNodeType>(below(9) - 1);
    }
    if (node.type == RuvoNodeInteger) {
        node.value = pick(kNumbers);
        node.min = chance(80) ? 0 : pick(kNumbers);
        node.max = chance(80) ? 65535 : pick(kNumbers);
        node.inc = below(4) - 1;
    } else if (node.type == RuvoNodeFloat) { // such as three decimals hold exactly
        node.value = float(below(2000)) / 8;
        node.min = 0;
        node.max = 200;
    } else if (node.type == RuvoNodeEnumeration) {
        if (chance(20)) {
            node.entries.clear();
            for (int i = below(8); i > 0; --i) {
                node.entries.append(pick(kEntries));
            }
        }
        node.value = node.entries.isEmpty() || chance(10) ? pick(kEntries) : pick(node.entries);
        if (name == "InputTriggerMode"_s && chance(60)) {
            node.value = "Hold"_s; // all that there is to see
        }
    } else if (node.type == RuvoNodeBoolean) {
        node.value = chance(50);
    } else {
        node.value = pick(kTexts);
    }
}

QString PanelWalk::change()
{
    m_model->mustNotCall();
    for (int i = below(6); i >= 0; --i) {
        changeNode();
    }
    return "the device changes"_s;
}

QString PanelWalk::lieInWait()
{
    m_model->mustNotCall();
    m_callsToReaction = below(chance(50) ? 3 : 200);
    return "the device lies in wait"_s;
}

/// What a device, or a host that has a word in its calls, does inside one.
void PanelWalk::react()
{
    m_model->reacted();
    QString ignored;
    switch (below(6)) {
    case 0:
        changeNode();
        break;
    case 1:
        changeNode();
        post(&ignored);
        break;
    case 2:
        changeNode();
        PanelProbe::grab(&m_device, below(2));
        break;
    case 3:
        m_panel->deleteLater();
        post(&ignored);
        break;
    case 4:
        QCoreApplication::processEvents();
        break;
    default:
        m_model->mayFinish(focusRow(), true);
        m_panel->setVisible(!m_panel->isVisible());
        break;
    }
}
