#include "ParamPageWidgetItem.h"

#include "CLabel.h"
#include "DeviceAccess.h"
#include "KeyboardFocus.h"

#include <VyCommonGUI/VyComboBox.h>
#include <VyCommonGUI/VyDoubleSpinBox.h>
#include <VyCommonGUI/VyLineEdit.h>
#include <VyCommonGUI/VySpinBox.h>
#include <VyCommonGUI/VyToggleSwitch.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QCursor>
#include <QHBoxLayout>
#include <QPainter>
#include <QPaintEvent>
#include <QPushButton>
#include <QResizeEvent>
#include <QSignalBlocker>
#include <QTimer>

#include <cmath>
#include <limits>

using namespace VyViewer;

namespace {

constexpr int kRowHeight = 35;
constexpr int kEditorHeight = 30;
constexpr int kSwitchWidth = 60;
constexpr char kValueList[] = "valueList"; // the entries as the device spells them, in the combo box's order

// The entries that devices are known to offer. They reach tr() in a variable, where lupdate cannot see them.
[[maybe_unused]] constexpr const char *kKnownEntries[] = {
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "None"),
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Hold"),
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "SoftwareTrigger"),
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "IOTrigger"),
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "TcpServer"),
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "TcpClient"),
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Udp"),
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "RS-232"),
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "AutoTrigger"),
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "SensingTrigger"),
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Master-Slave"),
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Hex"),
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Normal"),
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "String"),
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "FrameCount"),
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Duration"),
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "DecodeCount"),
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Command"),
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Odd"),
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Even"),
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "RtsCts"),
    QT_TRANSLATE_NOOP("ParamPageWidgetItem", "XonXoff"),
};

/// The list of a combo box, which is made when it is first opened, while it is open.
QAbstractItemView *openList(const QComboBox *combo)
{
    auto *const list = combo->findChild<QAbstractItemView *>();
    return list && list->isVisible() ? list : nullptr;
}

int highlightedRow(const QAbstractItemView *list)
{
    return list ? list->currentIndex().row() : -1;
}

/// Highlights a row of an open list, and that of the current entry in place of a row that is not there.
void highlight(QAbstractItemView *list, const QComboBox *combo, int row)
{
    list->setCurrentIndex(list->model()->index(row < 0 ? combo->currentIndex() : row, combo->modelColumn()));
}

bool holds(const QComboBox *combo, const QList<QString> &texts)
{
    int same = 0;
    while (same < combo->count() && same < texts.size() && combo->itemText(same) == texts.at(same)) {
        ++same;
    }
    return same == combo->count() && same == texts.size();
}

} // namespace

ParamPageWidgetItem::ParamPageWidgetItem(Device *device, const QString &label, const QString &nodeName, QWidget *parent)
    : QWidget(parent)
    , m_device(device)
    , m_nodeName(nodeName)
    , m_labelText(label)
    , m_label(new CLabel(this))
{
    // Lets scripts that drive the user interface find the row.
    setObjectName(m_nodeName);
    m_label->setAttribute(Qt::WA_TranslucentBackground); // the row's own ground shows through
    m_label->setAttribute(Qt::WA_Resized);               // the row decides on its size: a show need not measure it
    setFixedHeight(kRowHeight);
    m_label->setFullText(translated(m_labelText));
}

ParamPageWidgetItem::~ParamPageWidgetItem() = default;

void ParamPageWidgetItem::refresh()
{
    if (!m_editor) {
        return;
    }
    m_mode = DeviceAccess::service()->getNodeAccessMode(m_device, m_nodeName);
    const auto isShown = [this] {
        return m_mode == RuvoNodeWriteOnly || m_mode == RuvoNodeReadOnly || m_mode == RuvoNodeReadWrite;
    };
    if (isShown()) {
        readValue();
    }
    const bool shown = isShown(); // an event within the read may have brought a newer mode
    // An editor that loses the focus by being disabled or hidden reports a finished edit. That is not the
    // user's doing and must not be written.
    const QSignalBlocker blocker(m_editor);
    if (shown) {
        m_editor->setEnabled(m_mode != RuvoNodeReadOnly);
    }
    if (isHidden() == shown) { // once more would be a whole show, of all the row holds
        setHidden(!shown);
    }
}

void ParamPageWidgetItem::retranslate()
{
    m_label->setFullText(translated(m_labelText));
    if (!m_editor) {
        return;
    }
    focusEditor()->setAccessibleName(m_label->toolTip());
    if (auto *const combo = qobject_cast<QComboBox *>(m_editor)) {
        const QSignalBlocker blocker(combo);
        const int index = combo->currentIndex();
        auto *const list = openList(combo);
        const int highlighted = highlightedRow(list);
        combo->clear();
        combo->addItems(translated(combo->property(kValueList).value<QList<QString>>()));
        combo->setCurrentIndex(index);
        if (list) {
            highlight(list, combo, highlighted);
        }
    } else if (auto *const button = qobject_cast<QPushButton *>(m_editor)) {
        button->setText(tr("Execute"));
    }
}

void ParamPageWidgetItem::setSection(const QString &title)
{
    setAccessibleDescription(title);
    if (m_editor) {
        focusEditor()->setAccessibleDescription(title);
    }
}

void ParamPageWidgetItem::setValidator(QValidator *validator)
{
    auto *const edit = qobject_cast<VyLineEdit *>(m_editor);
    if (m_nodeType != RuvoNodeString || !edit) {
        return;
    }
    const QSignalBlocker blocker(edit);
    edit->setValidator(validator);
}

bool ParamPageWidgetItem::takeFocus()
{
    if (!m_editor) {
        return false;
    }
    KeyboardFocus::giveBack(focusEditor());
    return focusEditor()->hasFocus();
}

void ParamPageWidgetItem::enterEvent(QEvent *event)
{
    m_background = m_hoverColor;
    update();
    QWidget::enterEvent(event);
}

void ParamPageWidgetItem::leaveEvent(QEvent *event)
{
    m_background = m_normalColor;
    // With the pointer still inside, a popup took the mouse: the highlight stays until the next repaint.
    if (!rect().contains(mapFromGlobal(QCursor::pos()))) {
        update();
    }
    QWidget::leaveEvent(event);
}

void ParamPageWidgetItem::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    QPainter(this).fillRect(event->rect(), m_background);
}

void ParamPageWidgetItem::resizeEvent(QResizeEvent *event)
{
    m_label->setFixedWidth(event->size().width() / 2);
    QWidget::resizeEvent(event);
}

void ParamPageWidgetItem::showEvent(QShowEvent *event)
{
    const RuvoNodeType type = m_editor ? m_nodeType : DeviceAccess::service()->getNodeType(m_device, m_nodeName);
    if (!m_editor) { // nor was it built by a show within the call
        m_nodeType = type;
        m_editor = createEditor();
        m_editor->setFixedHeight(kEditorHeight);
        focusEditor()->setAccessibleName(m_label->toolTip());
        focusEditor()->setAccessibleDescription(accessibleDescription());
        // Built late, it would be the last stop of the whole window.
        KeyboardFocus::placeBehind(this, focusEditor());

        auto *const layout = new QHBoxLayout;
        layout->addWidget(m_label);
        layout->addWidget(m_editor);
        layout->setContentsMargins(0, 0, 0, 0);
        setLayout(layout);
        m_editor->show(); // at once: what Qt posts to show it later lays the whole window out
        layout->activate();
    }
    QWidget::showEvent(event);
}

QWidget *ParamPageWidgetItem::createEditor()
{
    switch (m_nodeType) {
    case RuvoNodeBoolean:
        return createSwitch();
    case RuvoNodeInteger: {
        auto *const spin = new VySpinBox(this);
        spin->setContextMenuPolicy(Qt::NoContextMenu);
        connect(spin, &QAbstractSpinBox::editingFinished, this, &ParamPageWidgetItem::onIntParamEditFinished);
        return spin;
    }
    case RuvoNodeFloat: {
        auto *const spin = new VyDoubleSpinBox(this);
        spin->setContextMenuPolicy(Qt::NoContextMenu);
        connect(spin, &QAbstractSpinBox::editingFinished, this, &ParamPageWidgetItem::onFloatParamEditFinished);
        return spin;
    }
    case RuvoNodeEnumeration: {
        auto *const combo = new VyComboBox(this);
        connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &ParamPageWidgetItem::onEnumParamChanged);
        return combo;
    }
    case RuvoNodeCommand: {
        auto *const button = new QPushButton(tr("Execute"), this);
        connect(button, &QAbstractButton::clicked, this, &ParamPageWidgetItem::onButtonClicked);
        return button;
    }
    case RuvoNodeString: {
        auto *const edit = new VyLineEdit(this);
        connect(edit, &QLineEdit::editingFinished, this, &ParamPageWidgetItem::onLineEditFinished);
        return edit;
    }
    case RuvoNodeUnknown:
        break;
    }
    return new VySpinBox(this); // a type from outside the enumeration: an editor that is bound to nothing
}

QWidget *ParamPageWidgetItem::createSwitch()
{
    auto *const toggle = new VyToggleSwitch(this);
    toggle->setFixedWidth(kSwitchWidth);
    connect(toggle, &VyToggleSwitch::toggled, this, &ParamPageWidgetItem::onBoolParamChanged);

    auto *const container = new QWidget(this);
    auto *const layout = new QHBoxLayout(container);
    layout->addWidget(toggle);
    layout->addStretch(0);
    layout->setContentsMargins(0, 0, 0, 0);
    return container;
}

void ParamPageWidgetItem::readValue()
{
    switch (m_nodeType) {
    case RuvoNodeBoolean:
        return readBool();
    case RuvoNodeInteger:
        return readInt();
    case RuvoNodeFloat:
        return readFloat();
    case RuvoNodeEnumeration:
        return readEnum();
    case RuvoNodeString:
        return readString();
    case RuvoNodeCommand:
    case RuvoNodeUnknown:
        break;
    }
}

void ParamPageWidgetItem::readBool()
{
    bool value = false;
    if (DeviceAccess::service()->getParamBool(m_device, m_nodeName, value) != 0) {
        return;
    }
    auto *const toggle = qobject_cast<VyToggleSwitch *>(focusEditor());
    const QSignalBlocker blocker(toggle);
    toggle->setIsToggled(value);
}

void ParamPageWidgetItem::readInt()
{
    int value = 0;
    int min = 0;
    int max = 0;
    int inc = 0;
    if (DeviceAccess::service()->getParamInt(m_device, m_nodeName, value, min, max, inc) != 0) {
        return;
    }
    auto *const spin = static_cast<VySpinBox *>(m_editor);
    const QSignalBlocker blocker(spin);
    setRange(spin, min, max == -1 ? std::numeric_limits<int>::max() : max, inc);
    showValue(spin, value);
}

void ParamPageWidgetItem::readFloat()
{
    float value = 0;
    float min = 0;
    float max = 0;
    float inc = 0;
    if (DeviceAccess::service()->getParamFloat(m_device, m_nodeName, value, min, max, inc) != 0) {
        return;
    }
    auto *const spin = static_cast<VyDoubleSpinBox *>(m_editor);
    const QSignalBlocker blocker(spin);
    // A limit that is no number is none: a spin box would take it for the value.
    using Limits = std::numeric_limits<float>;
    setRange(spin, std::isnan(min) ? Limits::lowest() : min, std::isnan(max) ? Limits::max() : max, inc);
    showValue(spin, static_cast<double>(value));
    m_valueRead = value;
    m_textShown = spin->text();
}

void ParamPageWidgetItem::readEnum()
{
    QString value;
    QList<QString> entries;
    if (DeviceAccess::service()->getParamEnum(m_device, m_nodeName, value, entries) != 0) {
        return;
    }
    auto *const combo = static_cast<VyComboBox *>(m_editor);
    const auto before = combo->property(kValueList).value<QList<QString>>();
    const QList<QString> texts = translated(entries);
    const QSignalBlocker blocker(combo);
    if (entries != before || !holds(combo, texts)) { // the language may have changed
        auto *const list = openList(combo);
        const int highlighted = highlightedRow(list);
        // Stored as the very type it is read back as: a QStringList in a QVariant reads back empty.
        combo->setProperty(kValueList, QVariant::fromValue<QList<QString>>(entries));
        combo->clear();
        combo->addItems(texts);
        if (list) {
            highlight(list, combo, entries == before ? highlighted : entries.indexOf(before.value(highlighted)));
        }
    }
    // A value that is not among the entries leaves the first chosen, as in a list just filled.
    combo->setCurrentIndex(texts.isEmpty() ? -1 : std::max(0, texts.indexOf(translated(value))));
}

/// Even an equal range would have an editor forget its size, and the whole window laid out again.
template <typename Spin, typename Number>
void ParamPageWidgetItem::setRange(Spin *spin, Number min, Number max, Number inc)
{
    const std::array<double, 3> range{double(min), double(max), double(inc)};
    if (range != m_range || min > max) { // what an editor makes of limits in the wrong order depends on those before
        m_range = range;
        spin->setMinimum(min);
        spin->setMaximum(max);
        spin->setSingleStep(inc);
    }
}

/// Qt announces to assistive technology which value the user steps to, but none that is set.
template <typename Spin, typename Number>
void ParamPageWidgetItem::showValue(Spin *spin, Number value)
{
    const Number before = spin->value();
    spin->setValue(value);
    if (spin->value() < before || spin->value() > before) {
        QAccessibleValueChangeEvent change(spin, spin->value());
        QAccessible::updateAccessibility(&change);
    }
}

void ParamPageWidgetItem::readString()
{
    QString value;
    if (DeviceAccess::service()->getParamString(m_device, m_nodeName, value) != 0) {
        return;
    }
    auto *const edit = static_cast<VyLineEdit *>(m_editor);
    const QSignalBlocker blocker(edit);
    edit->setText(value);
    m_valueRead = value;
    m_textShown = edit->text();
}

void ParamPageWidgetItem::onIntParamEditFinished()
{
    const auto *const spin = qobject_cast<VySpinBox *>(sender());
    if (!spin) {
        return;
    }
    DeviceAccess::service()->setParamInt(m_device, m_nodeName, spin->value());
    Q_EMIT valueChanged();
}

void ParamPageWidgetItem::onFloatParamEditFinished()
{
    const auto *const spin = qobject_cast<VyDoubleSpinBox *>(sender());
    if (!spin) {
        return;
    }
    DeviceAccess::service()->setParamFloat(m_device, m_nodeName,
                                           edited(spin->text(), static_cast<float>(spin->value())));
    Q_EMIT valueChanged();
}

void ParamPageWidgetItem::onBoolParamChanged()
{
    const auto *const toggle = qobject_cast<VyToggleSwitch *>(sender());
    if (!toggle) {
        return;
    }
    DeviceAccess::service()->setParamBool(m_device, m_nodeName, toggle->getIsToggled());
    Q_EMIT valueChanged();
}

void ParamPageWidgetItem::onEnumParamChanged()
{
    const auto *const combo = qobject_cast<VyComboBox *>(sender());
    if (!combo) {
        return;
    }
    const auto entries = combo->property(kValueList).value<QList<QString>>();
    const int index = combo->currentIndex();
    if (index < 0 || index >= entries.size()) {
        return;
    }
    const bool focused = combo->hasFocus();
    DeviceAccess::service()->setParamEnum(m_device, m_nodeName, entries.at(index));
    Q_EMIT valueChanged();
    // The Return that has chosen in a list is yet to be delivered, to whatever has the focus: not to an editor that
    // got it because this one was hidden or disabled.
    if (focused && !combo->hasFocus()) {
        QTimer::singleShot(0, this, [next = KeyboardFocus::giveUp(window())] { KeyboardFocus::giveBack(next); });
    }
}

void ParamPageWidgetItem::onButtonClicked()
{
    if (isHidden()) {
        return; // by what another editor wrote when the press took its focus away
    }
    DeviceAccess::service()->executeCMD(m_device, m_nodeName);
    Q_EMIT valueChanged();
}

void ParamPageWidgetItem::onLineEditFinished()
{
    const auto *const edit = qobject_cast<VyLineEdit *>(sender());
    if (!edit) {
        return;
    }
    DeviceAccess::service()->setParamString(m_device, m_nodeName, edited(edit->text(), edit->text()));
    Q_EMIT valueChanged();
}

/// The widget that takes the keyboard: the editor itself, or the switch in its container.
QWidget *ParamPageWidgetItem::focusEditor() const
{
    QWidget *const toggle = m_editor->findChild<VyToggleSwitch *>();
    return toggle ? toggle : m_editor;
}

/// What an edit comes to. An untouched editor stands for what the device holds, also where it rounds, clamps or
/// cuts what it shows.
template <typename Value>
Value ParamPageWidgetItem::edited(const QString &shown, Value value) const
{
    return shown == m_textShown ? m_valueRead.value<Value>() : value;
}

QString ParamPageWidgetItem::translated(const QString &text) const
{
    const QByteArray source = text.toUtf8();
    // Nobody translates what this cannot hold, a NUL or half a character, and two entries must not become one.
    return QString::fromUtf8(source.constData()) == text ? tr(source.constData()) : text;
}

QList<QString> ParamPageWidgetItem::translated(QList<QString> entries) const
{
    for (QString &entry : entries) {
        entry = translated(entry);
    }
    return entries;
}
