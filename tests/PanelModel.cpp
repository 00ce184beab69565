#include "PanelModel.h"

#include "PanelProbe.h"

#include "panel/VyTriggerConfigWidgetImpl.h"
#include "trigger/TriggerConfigWdgImpl.h"
#include "triggerstop/TriggerStopConfigContainerWdg.h"
#include "triggerstop/TriggerStopConfigWdg.h"

#include <VyCommonGUI/VyBlockWidget.h>
#include <VyCommonGUI/VyDoubleSpinBox.h>
#include <VyCommonGUI/VyLineEdit.h>
#include <VyCommonGUI/VySpinBox.h>
#include <VyCommonGUI/VyToggleSwitch.h>

#include <QLayout>

#include <limits>

using namespace VyViewer;

namespace {

const auto enableNode = &TriggerStopConfigWdg::enableNode;
constexpr char kMode[] = "InputTriggerMode";
constexpr char kSource[] = "InputTriggerSource";
const struct { const char *source; const char *title; } kTitles[] = {
    {"TcpServer", "TCP Server"}, {"AutoTrigger", "Auto Trigger"}, {"SensingTrigger", "Sensing Trigger"},
    {"TcpClient", "TCP Client"}, {"Udp", "UDP"}, {"RS-232", "RS-232"},
};

QString writeOf(const QString &node, const QVariant &value)
{
    return "set %1=%2"_s.arg(node, value.toString());
}

/// The page of a node, by the beginning of its nodes' names.
QString pageOf(const QString &node)
{
    const QString stop = "TriggerStopConfig"_s;
    return node.startsWith(stop) ? node.left(stop.size() + 1) : QString();
}

/// The pages ask about these themselves.
bool isSharedNode(const QString &node)
{
    return node.endsWith("CMDFormat"_s) || node == QLatin1String(kMode) || node == QLatin1String(kSource);
}

bool isShown(RuvoNodeAccessMode mode)
{
    return mode == RuvoNodeWriteOnly || mode == RuvoNodeReadOnly || mode == RuvoNodeReadWrite;
}

} // namespace

PanelModel::PanelModel(ScriptedDevice &device, QWidget *panel)
    : m_device(device)
    , m_rows(panel->findChildren<ParamPageWidgetItem *>().toVector())
    , m_panel(panel->findChild<VyTriggerConfigWidgetImpl *>())
    , m_triggerPage(panel->findChild<TriggerConfigWdgImpl *>())
    , m_container(panel->findChild<TriggerStopConfigContainerWdg *>())
    , m_stopBlock(panel->findChildren<VyBlockWidget *>().at(1))
    , m_stopPages(panel->findChildren<TriggerStopConfigWdg *>())
{
    for (const ParamPageWidgetItem *row : qAsConst(m_rows)) {
        m_device.node(row->objectName()).answer = {};
    }
    for (QWidget *widget : {m_panel, m_triggerPage, m_container}) {
        widget->installEventFilter(this);
    }
    m_device.onCall = [this](const QString &call) { hear(call); };
}

PanelModel::~PanelModel()
{
    m_device.onCall = nullptr;
}

QWidget *PanelModel::editorOf(const ParamPageWidgetItem *row)
{
    return row->layout() ? row->layout()->itemAt(1)->widget() : nullptr;
}

ParamPageWidgetItem *PanelModel::rowOf(QWidget *widget) const
{
    for (; widget; widget = widget->parentWidget()) { // a combo box is the parent of its list
        if (auto *const row = qobject_cast<ParamPageWidgetItem *>(widget)) {
            return m_rows.contains(row) ? row : nullptr;
        }
    }
    return nullptr;
}

void PanelModel::begin()
{
    m_device.calls.clear();
    m_shown.clear();
    m_asked.clear();
    m_refreshed.clear();
    m_writable.clear();
    m_required.clear();
    m_written.clear();
    m_faults.clear();
    m_silent = m_reacted = false;
}

void PanelModel::mayFinish(const ParamPageWidgetItem *row, bool again)
{
    if (row && isBound(row)) {
        int &times = m_writable[row->objectName()];
        times = again ? times + 1 : qMax(times, 1);
    }
}

void PanelModel::mustFinish(const ParamPageWidgetItem *row)
{
    mayFinish(row);
    if (isBound(row)) {
        m_required.append(row->objectName());
    }
}

void PanelModel::touch(const ParamPageWidgetItem *row)
{
    if (row) {
        m_touched.insert(row->objectName(), m_device.node(row->objectName()).answer.values);
    }
}

void PanelModel::mayAdd()
{
    const bool known = m_pagesShown && m_container->isVisible(); // or else the click shows it, which reads the switches
    for (int i = 1; i < m_stopPages.size() && !(m_acquiring && *m_acquiring); ++i) {
        if (!known || !m_pagesShown->at(i)) {
            m_writable.insert(writeOf(enableNode(i + 1), true), 1);
            if (known) {
                return; // the first hidden one only
            }
        }
    }
}

void PanelModel::mayDelete(int number)
{
    if (!(m_acquiring && *m_acquiring)) {
        m_writable.insert(writeOf(enableNode(number), false), 1);
    }
}

QStringList PanelModel::check()
{
    decide();
    const ParamPageWidgetItem *above = nullptr;
    for (const ParamPageWidgetItem *row : qAsConst(m_rows)) {
        checkRow(row);
        const QWidget *const page = row->parentWidget();
        if (row->isVisible() && page->height() >= page->sizeHint().height()) { // else its turn is still to come
            const bool isBelow = !above || above->parent() != page || above->geometry().bottom() < row->y();
            expect(isBelow, "%1 lies on the row above"_s.arg(row->objectName()));
            above = row;
        }
    }
    for (const QString &node : qAsConst(m_required)) {
        expect(m_written.contains(node), "the finished edit of %1 was not written"_s.arg(node));
    }
    expect(!m_silent || m_device.calls.isEmpty(), "the device was called: %1"_s.arg(m_device.calls.value(0)));

    const auto titles = m_panel->findChildren<VyMultiCheckTitleWidget *>();
    for (const auto *title : titles) {
        const QString text = PanelProbe::text(title);
        for (const auto &known : kTitles) {
            if (m_title && text == m_prefix + QLatin1String(known.title)) {
                expect(title->isHidden() != (*m_title == QLatin1String(known.source)),
                       "title %1, source %2"_s.arg(text, *m_title));
            }
        }
    }
    if (m_stopShown) {
        expect(m_stopBlock->isHidden() != *m_stopShown, "the stop block's visibility"_s);
    }
    for (int i = 0; i < m_stopPages.size(); ++i) {
        const TriggerStopConfigWdg *const page = m_stopPages.at(i);
        if (m_pagesShown) {
            expect(page->isHidden() != m_pagesShown->at(i), "the visibility of stop page %1"_s.arg(i + 1));
        }
        if (m_acquiring) {
            expect(page->findChild<VyMultiCheckTitleWidget *>()->testAttribute(Qt::WA_ForceDisabled) == *m_acquiring,
                   "the lock of stop page %1"_s.arg(i + 1));
        }
    }
    if (m_acquiring) {
        expect(m_stopBlock->signalsBlocked() == *m_acquiring, "the lock of the add button"_s);
    }
    return m_faults;
}

bool PanelModel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show) {
        m_shown.insert(watched);
    }
    return QObject::eventFilter(watched, event);
}

/// Judges a write at the moment it is made: whether the user made it, and whether it is what he sees.
void PanelModel::hear(const QString &call)
{
    const QString asked = call.section(u' ', 1);
    if (isSharedNode(asked)) {
        m_asked.insert(asked);
    } else if (call.startsWith("mode "_s) && (call.endsWith("Delay"_s) || call.endsWith("FrameCount"_s))) {
        m_refreshed.insert(pageOf(asked)); // rows that are read with their whole page only
    }
    if (!ScriptedDevice::isWrite(call)) {
        return;
    }
    const bool isRun = call.startsWith("run "_s);
    const bool isSwitch = m_writable.contains(call); // of a stop page
    const QString node = isSwitch ? call : call.mid(4).section(u'=', 0, 0);
    m_written.append(node);
    expect(m_written.count(node) <= m_writable.value(node), "nobody has finished an edit: %1"_s.arg(call));
    if (isSwitch) {
        return;
    }
    const ParamPageWidgetItem *const row = PanelProbe::row(m_panel, node);
    if (!row) {
        expect(false, "no row writes %1"_s.arg(call));
        return;
    }
    touch(row); // the device may hold another value now
    const ScriptedDevice::Node::Answer &answer = m_device.node(node).answer;
    if (m_doubtful.contains(node)) {
        return;
    }
    expect(answer.mode == RuvoNodeWriteOnly || answer.mode == RuvoNodeReadWrite, "not writable: %1"_s.arg(call));
    const QWidget *const editor = editorOf(row);
    const auto *const real = qobject_cast<const VyDoubleSpinBox *>(editor);
    const QVariant own = real ? QVariant(answer.value.toFloat()) : answer.value;
    if (wrongValue(row, answer).isEmpty() && call == writeOf(node, own)) {
        return; // the device's own value, also where the editor cannot show it whole
    }
    QVariant seen;
    if (const auto *const spin = qobject_cast<const VySpinBox *>(editor)) {
        seen = spin->value();
    } else if (real) {
        seen = float(real->value());
    } else if (const auto *const combo = qobject_cast<const VyComboBox *>(editor)) {
        seen = answer.entries.value(combo->currentIndex());
        expect(m_prefix + seen.toString() == combo->currentText() || combo->currentText().isEmpty(),
               "%1 shows %2"_s.arg(node, combo->currentText()));
    } else if (const auto *const edit = qobject_cast<const VyLineEdit *>(editor)) {
        seen = edit->text();
    } else if (!isRun) {
        seen = editor->findChild<VyToggleSwitch *>()->getIsToggled();
    }
    expect(isRun || call == writeOf(node, seen), "%1, and the user sees %2"_s.arg(call, seen.toString()));
}

/// Whether the row has an editor of the node's kind, which is fixed when it is first shown.
bool PanelModel::isBound(const ParamPageWidgetItem *row) const
{
    const RuvoNodeType type = m_device.node(row->objectName()).answer.type;
    return type >= RuvoNodeBoolean && type <= RuvoNodeString;
}

bool PanelModel::isTouched(const QString &node) const
{
    return m_touched.value(node, -1) == m_device.node(node).answer.values;
}

/// The entry as the pages read it, for whom a failure is an empty one.
QString PanelModel::current(const char *node)
{
    const ScriptedDevice::Node &asked = m_device.node(node);
    return asked.failsReads ? QString() : asked.value.toString();
}

/// What the pages decide at the moments at which they have to.
void PanelModel::decide()
{
    for (const QString &node : qAsConst(m_asked)) {
        const ScriptedDevice::Node &state = m_device.node(node);
        const bool byRow = m_refreshed.contains(pageOf(node)) && isShown(state.answer.mode) && !state.failsReads;
        if (byRow && !m_reacted) {
            m_doubtful.remove(node);
        } else {
            m_doubtful.insert(node);
        }
    }
    const bool modeWritten = m_written.contains(QLatin1String(kMode));
    if (m_reacted) {
        m_title.reset();
        m_stopShown.reset();
        m_acquiring.reset();
        m_pagesShown.reset();
        return;
    }
    if (m_shown.contains(m_triggerPage) || modeWritten || m_written.contains(QLatin1String(kSource))) {
        m_title = current(kMode) == "None"_s ? "none"_s : current(kSource);
    }
    if (m_shown.contains(m_panel) || modeWritten) {
        m_stopShown = current(kMode) == "Hold"_s;
    }
    if (m_shown.contains(m_panel)) {
        m_acquiring = m_device.node(kMode).mode != RuvoNodeReadWrite;
    }
    if (m_shown.contains(m_container)) {
        m_pagesShown = QVector<bool>{true};
        for (int number = 2; number <= m_stopPages.size(); ++number) {
            const ScriptedDevice::Node &enable = m_device.node(enableNode(number));
            m_pagesShown->append(!enable.failsReads && enable.value.toBool());
        }
    }
    for (int i = 1; m_pagesShown && i < m_stopPages.size(); ++i) { // a click on "Add" expands the block first
        for (const bool on : {true, false}) {
            if (m_written.contains(writeOf(enableNode(i + 1), on))) {
                (*m_pagesShown)[i] = on;
            }
        }
    }
}

void PanelModel::checkRow(const ParamPageWidgetItem *row)
{
    const QString node = row->objectName();
    const ScriptedDevice::Node::Answer &answer = m_device.node(node).answer;
    const QWidget *const editor = editorOf(row);
    expect(m_reacted || !m_written.contains(node) || !row->parentWidget()->isVisible() || m_refreshed.contains(pageOf(node)),
           "the page was not read again after %1 was written"_s.arg(node));
    if (answer.modes == 0 || m_doubtful.contains(row->objectName())) {
        return;
    }
    if (!editor) {
        expect(false, "%1 was read before it was shown"_s.arg(row->objectName()));
        return;
    }
    const QString named = "%1, mode %2: %3"_s.arg(row->objectName()).arg(answer.mode);
    expect(row->isHidden() != isShown(answer.mode), named.arg("its visibility"_s));
    if (isShown(answer.mode)) {
        expect(editor->testAttribute(Qt::WA_ForceDisabled) == (answer.mode == RuvoNodeReadOnly),
               named.arg("whether it can be edited"_s));
    }
    if (answer.values > 0 && isBound(row) && !isTouched(row->objectName())) {
        const QString wrong = wrongValue(row, answer);
        expect(wrong.isEmpty(), named.arg(wrong));
    }
}

/// Empty when the editor shows what the device answered.
QString PanelModel::wrongValue(const ParamPageWidgetItem *row, const ScriptedDevice::Node::Answer &answer) const
{
    const auto differs = [](const QVariant &seen, const QVariant &expected) {
        return seen == expected ? QString() : "shows \"%1\", not \"%2\""_s.arg(seen.toString(), expected.toString());
    };
    const QWidget *const editor = editorOf(row);
    if (const auto *const spin = qobject_cast<const VySpinBox *>(editor)) {
        const int max = answer.max == -1 ? std::numeric_limits<int>::max() : int(answer.max);
        return differs(spin->value(), qBound(qMin(int(answer.min), max), answer.value.toInt(), max));
    }
    if (const auto *const real = qobject_cast<const VyDoubleSpinBox *>(editor)) {
        return differs(float(real->value()), float(qBound(qMin(answer.min, answer.max), answer.value.toDouble(), answer.max)));
    }
    if (const auto *const edit = qobject_cast<const VyLineEdit *>(editor)) {
        return differs(edit->text(), answer.value.toString());
    }
    if (const auto *const combo = qobject_cast<const VyComboBox *>(editor)) {
        QStringList seen;
        for (int i = 0; i < combo->count(); ++i) {
            seen.append(combo->itemText(i));
        }
        QStringList entries;
        for (const QString &entry : answer.entries) {
            entries.append(entry.isEmpty() ? entry : m_prefix + entry);
        }
        if (seen != entries) {
            return "lists \"%1\", not \"%2\""_s.arg(seen.join(u'|'), entries.join(u'|'));
        }
        const int index = answer.entries.indexOf(answer.value.toString());
        return differs(combo->currentIndex(), entries.isEmpty() ? -1 : qMax(0, index));
    }
    const auto *const toggle = editor->findChild<VyToggleSwitch *>();
    return toggle ? differs(toggle->getIsToggled(), answer.value.toBool()) : QString();
}

void PanelModel::expect(bool right, const QString &what)
{
    if (!right) {
        m_faults.append(what);
    }
}
