#pragma once

#include "ScriptedDevice.h"

#include "parampage/ParamPageWidgetItem.h"

#include <QObject>
#include <QSet>
#include <QVector>

#include <optional>

class TriggerStopConfigWdg;
namespace VyViewer {
class VyBlockWidget;
}

/// What a panel has to look like and may write, worked out from the device's answers and the user's doings alone.
///
/// Used around every step of a test: begin(), say what the step does, take it, check().
class PanelModel : public QObject
{
    Q_OBJECT
public:
    /// Of a panel that is bound to the device and has not been shown. Has the device report its calls.
    PanelModel(ScriptedDevice &device, QWidget *panel);
    ~PanelModel() override;

    /// Null before the row was first shown.
    static QWidget *editorOf(const ParamPageWidgetItem *row);
    const QVector<ParamPageWidgetItem *> &rows() const { return m_rows; }
    /// The row that the widget stands in, or null.
    ParamPageWidgetItem *rowOf(QWidget *widget) const;

    void begin();
    /// The step can end an edit of this row; `again`: once more than it can already.
    void mayFinish(const ParamPageWidgetItem *row, bool again = false);
    /// The step ends one, or presses the row's button.
    void mustFinish(const ParamPageWidgetItem *row);
    /// What the row's editor shows is the user's from now on, until it is read again.
    void touch(const ParamPageWidgetItem *row);
    /// The step can click the add button, or the delete button of a stop page.
    void mayAdd();
    void mayDelete(int number);
    /// The step does not concern the device.
    void mustNotCall() { m_silent = true; }
    void grabbed(int status) { m_acquiring = status != 0; }
    /// The device did something of its own inside a call: what the pages decide in this step depends on the very
    /// moment, and is not judged.
    void reacted() { m_reacted = true; }
    void translated(bool on) { m_prefix = QLatin1String(on ? "~" : ""); }

    /// What is wrong after the step, each in a line.
    QStringList check();
    /// What was written and should not have been; all that can be said once the panel is gone.
    QStringList faults() const { return m_faults; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void hear(const QString &call);
    bool isBound(const ParamPageWidgetItem *row) const;
    bool isTouched(const QString &node) const;
    QString current(const char *node);
    void decide();
    void checkRow(const ParamPageWidgetItem *row);
    QString wrongValue(const ParamPageWidgetItem *row, const ScriptedDevice::Node::Answer &answer) const;
    void expect(bool right, const QString &what);

    ScriptedDevice &m_device;
    QVector<ParamPageWidgetItem *> m_rows;
    QWidget *m_panel;
    QWidget *m_triggerPage;
    QWidget *m_container;
    VyViewer::VyBlockWidget *m_stopBlock;
    QList<TriggerStopConfigWdg *> m_stopPages;
    QString m_prefix;
    QHash<QString, int> m_touched; // by node: how many values it had given then
    QSet<QString> m_doubtful;      // nodes last answered to a page, so that the row may show something else

    // What the pages decided last; empty while it cannot be known.
    std::optional<QString> m_title; // the source whose section title is shown
    std::optional<bool> m_stopShown;
    std::optional<bool> m_acquiring;
    std::optional<QVector<bool>> m_pagesShown;

    // Of the present step.
    QSet<QObject *> m_shown;
    QSet<QString> m_asked;     // what the pages ask about too
    QSet<QString> m_refreshed; // pages, by the beginnings of their nodes
    QHash<QString, int> m_writable; // nodes, or whole calls, and how often
    QStringList m_required;         // nodes
    QStringList m_written;          // nodes, or whole calls
    QStringList m_faults;
    bool m_silent = false;
    bool m_reacted = false;
};
