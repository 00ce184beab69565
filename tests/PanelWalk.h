#pragma once

#include "PanelModel.h"
#include "TildeTranslator.h"

#include "panel/VyTriggerConfigWdg.h"

#include <QPointer>

#include <memory>
#include <random>

class QAbstractButton;
class QWindow;

/// A host with a panel, a device that changes under it, and somebody who uses both at random. Every step is worked
/// out from the seed and its number alone, so that a walk can be taken again with some of its steps left out.
class PanelWalk
{
public:
    explicit PanelWalk(uint seed);
    ~PanelWalk();

    /// Takes the step of that number; what it was, for people.
    QString step(int number);
    /// What was wrong after it.
    QStringList faults() const { return m_faults; }
    /// Called with the type of each node that the panel writes or runs.
    std::function<void(RuvoNodeType)> onWrite;

private:
    struct Action { int weight; QString (PanelWalk::*take)(); };
    static const Action kActions[];

    // What the user does.
    QString clickRow();
    QString pressOrRelease();
    QString key();
    QString list();
    QString wheel();
    QString hover();
    QString clickButton();
    // What the host does.
    QString event();
    QString grab();
    QString language();
    QString hideOrShow();
    QString look();
    QString focusElsewhere();
    QString move();
    QString destroy();
    // What the device does.
    QString change();
    QString lieInWait();

    void build();
    void settle();
    int below(int bound) { return int(m_random() % uint(bound)); }
    bool chance(int percent) { return below(100) < percent; }
    template <typename List>
    auto &&pick(List &&from) { return *(std::begin(from) + below(int(std::size(from)))); }
    QWindow *window() const;
    ParamPageWidgetItem *visibleRow(const QMetaObject *kind = nullptr);
    ParamPageWidgetItem *focusRow() const;
    ParamPageWidgetItem *listRow() const;
    bool reveal(QWidget *widget);
    void mayLeave();
    void mayPress(const QAbstractButton *button);
    bool post(QString *name);
    void changeNode();
    void react();

    const uint m_seed;
    std::mt19937 m_random;
    ScriptedDevice m_device;
    ScriptedDevice m_stranger;
    TildeTranslator m_translator;
    bool m_translated = false;
    QWidget m_hosts[2];
    QPointer<VyTriggerConfigWdg> m_panel;
    std::unique_ptr<PanelModel> m_model; // of the panel, which it does not outlive by more than a step
    QPointer<QWidget> m_pressed;
    int m_callsToReaction = -1; // negative while the device only answers
    QStringList m_faults;
};
