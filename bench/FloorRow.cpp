#include "FloorRow.h"

#include "FloorLabel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPaintEvent>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>

FloorRow::FloorRow(const Node &node, QWidget *parent)
    : QWidget(parent)
    , m_node(node)
    , m_label(new FloorLabel(this))
{
    setObjectName(node.name);
    m_label->setAttribute(Qt::WA_TranslucentBackground);
    setFixedHeight(35);
    m_label->setFullText(tr(qPrintable(node.label)));
}

void FloorRow::set(const Node &node)
{
    if (!m_editor) {
        return;
    }
    setValue(node);
    m_editor->setEnabled(true);
    setHidden(!node.available);
}

void FloorRow::retranslate()
{
    m_label->setFullText(tr(qPrintable(m_node.label)));
    if (auto *const combo = qobject_cast<QComboBox *>(m_editor)) {
        const QSignalBlocker blocker(combo);
        const int index = combo->currentIndex();
        combo->clear();
        for (const QString &entry : m_node.entries) {
            combo->addItem(tr(qPrintable(entry)));
        }
        combo->setCurrentIndex(index);
    } else if (auto *const button = qobject_cast<QPushButton *>(m_editor)) {
        button->setText(tr("Execute"));
    }
}

void FloorRow::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setBrush(Qt::white);
    painter.setPen(QPen(Qt::white, 0));
    painter.drawRect(event->rect());
}

void FloorRow::resizeEvent(QResizeEvent *event)
{
    m_label->setFixedWidth(event->size().width() / 2);
    QWidget::resizeEvent(event);
}

void FloorRow::showEvent(QShowEvent *event)
{
    if (!m_editor) {
        m_editor = createEditor();
        m_editor->setFixedHeight(30);
        auto *const layout = new QHBoxLayout;
        layout->addWidget(m_label);
        layout->addWidget(m_editor);
        layout->setContentsMargins(0, 0, 0, 0);
        setLayout(layout);
    }
    QWidget::showEvent(event);
}

QWidget *FloorRow::createEditor()
{
    switch (m_node.type) {
    case RuvoNodeBoolean: {
        auto *const container = new QWidget(this);
        auto *const check = new QCheckBox(container);
        check->setFixedWidth(60);
        auto *const layout = new QHBoxLayout(container);
        layout->addWidget(check);
        layout->addStretch(0);
        layout->setContentsMargins(0, 0, 0, 0);
        connect(check, &QCheckBox::toggled, this, [this](bool on) { Q_EMIT edited(QString::number(on)); });
        return container;
    }
    case RuvoNodeInteger: {
        auto *const spin = new QSpinBox(this);
        connect(spin, &QSpinBox::editingFinished, this, [this, spin] { Q_EMIT edited(spin->text()); });
        return spin;
    }
    case RuvoNodeFloat: {
        auto *const spin = new QDoubleSpinBox(this);
        spin->setDecimals(3);
        connect(spin, &QDoubleSpinBox::editingFinished, this, [this, spin] { Q_EMIT edited(spin->text()); });
        return spin;
    }
    case RuvoNodeEnumeration: {
        auto *const combo = new QComboBox(this);
        connect(combo, &QComboBox::currentTextChanged, this, &FloorRow::edited);
        return combo;
    }
    case RuvoNodeCommand:
        return new QPushButton(tr("Execute"), this);
    default: {
        auto *const edit = new QLineEdit(this);
        connect(edit, &QLineEdit::editingFinished, this, [this, edit] { Q_EMIT edited(edit->text()); });
        return edit;
    }
    }
}

void FloorRow::setValue(const Node &node)
{
    if (node.type == RuvoNodeBoolean) {
        auto *const check = m_editor->findChild<QCheckBox *>();
        const QSignalBlocker blocker(check);
        check->setChecked(node.flag);
        return;
    }
    const QSignalBlocker blocker(m_editor);
    if (node.type == RuvoNodeInteger) {
        auto *const spin = static_cast<QSpinBox *>(m_editor);
        spin->setRange(0, Node::kMaximum);
        spin->setSingleStep(1);
        spin->setValue(node.integer);
    } else if (node.type == RuvoNodeFloat) {
        auto *const spin = static_cast<QDoubleSpinBox *>(m_editor);
        spin->setRange(0, Node::kMaximum);
        spin->setSingleStep(1);
        spin->setValue(double(node.real));
    } else if (node.type == RuvoNodeEnumeration) {
        auto *const combo = static_cast<QComboBox *>(m_editor);
        combo->clear();
        combo->addItems(node.entries);
        combo->setCurrentText(node.text);
    } else if (node.type == RuvoNodeString) {
        static_cast<QLineEdit *>(m_editor)->setText(node.text);
    }
}
