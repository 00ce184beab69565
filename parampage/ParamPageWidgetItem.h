#pragma once

#include <VyViewerCore/RuvoNode.h>

#include <QColor>
#include <QString>
#include <QVariant>
#include <QWidget>

#include <array>

class CLabel;
class Device;
class QValidator;

/// One line of a page: a label and the editor of one device node, of the kind that the node's type calls for.
///
/// The row reads the node when it is refreshed and writes it as soon as the user finishes an edit. The node's
/// access mode, read at every refresh, decides whether the row is shown and whether its editor is enabled.
/// The row never reads or writes by itself otherwise, and reports no failure.
class ParamPageWidgetItem : public QWidget
{
    Q_OBJECT
public:
    /// `label` is the untranslated text. The device is not owned and not called before the row is shown.
    ParamPageWidgetItem(Device *device, const QString &label, const QString &nodeName, QWidget *parent);
    ~ParamPageWidgetItem() override;

    /// Reads the node and shows it. Does nothing before the row was first shown.
    void refresh();
    /// Translates what the row shows again. Reads and writes nothing.
    void retranslate();
    /// What the row stands below, translated. Tells editors apart, for assistive technology, whose labels are the same.
    void setSection(const QString &title);
    /// Restricts what can be typed into the editor of a string node; ignored for any other node and before the
    /// row was first shown. The validator is not owned.
    void setValidator(QValidator *validator);
    /// Moves the keyboard focus to the editor, if that can take it. Returns whether it has it.
    bool takeFocus();

Q_SIGNALS:
    /// The node was written, or its command executed, whatever the device answered.
    void valueChanged();

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private Q_SLOTS:
    void onIntParamEditFinished();
    void onFloatParamEditFinished();
    void onBoolParamChanged();
    void onEnumParamChanged();
    void onButtonClicked();
    void onLineEditFinished();

private:
    QWidget *createEditor();
    QWidget *createSwitch();
    void readValue();
    void readBool();
    void readInt();
    void readFloat();
    void readEnum();
    void readString();
    template <typename Spin, typename Number>
    void setRange(Spin *spin, Number min, Number max, Number inc);
    template <typename Spin, typename Number>
    static void showValue(Spin *spin, Number value);
    QWidget *focusEditor() const;
    template <typename Value>
    Value edited(const QString &shown, Value value) const;
    QString translated(const QString &text) const;
    QList<QString> translated(QList<QString> entries) const;

    Device *const m_device; // not owned
    const QString m_nodeName;
    const QString m_labelText;
    CLabel *m_label;             // child
    QWidget *m_editor = nullptr; // child, built on first show
    const QColor m_hoverColor{216, 216, 216};
    QColor m_background = Qt::white;
    const QColor m_normalColor = Qt::white;
    RuvoNodeType m_nodeType = RuvoNodeUnknown;          // fixed once the editor is built
    RuvoNodeAccessMode m_mode = RuvoNodeNotImplemented; // as answered last
    QVariant m_valueRead;                               // the float or text that the device holds ...
    QString m_textShown;                                // ... and what the editor made of it
    std::array<double, 3> m_range{qQNaN()};             // limits and step of a number, as last given to the editor
};
