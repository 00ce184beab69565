#include "Literal.h"

#include <QProcess>
#include <QtTest>

#include <atspi/atspi.h>

#include <functional>
#include <memory>

namespace {

struct Release
{
    void operator()(void *object) const { g_object_unref(object); }
};
using Accessible = std::unique_ptr<AtspiAccessible, Release>;

/// Takes over a text that a call has returned.
QString taken(gchar *text)
{
    const std::unique_ptr<gchar, void (*)(gpointer)> owned(text, g_free);
    return QString::fromUtf8(text);
}

bool has(AtspiAccessible *accessible, AtspiStateType state)
{
    const std::unique_ptr<AtspiStateSet, Release> states(atspi_accessible_get_state_set(accessible));
    return atspi_state_set_contains(states.get(), state);
}

/// The first in depth that is accepted.
Accessible search(Accessible in, const std::function<bool(AtspiAccessible *)> &accepts)
{
    if (!in || accepts(in.get())) {
        return in;
    }
    const int count = atspi_accessible_get_child_count(in.get(), nullptr);
    for (int i = 0; i < count; ++i) {
        if (auto found = search(Accessible(atspi_accessible_get_child_at_index(in.get(), i, nullptr)), accepts)) {
            return found;
        }
    }
    return nullptr;
}

/// Performs the action of that name; false if there is none.
bool act(AtspiAccessible *accessible, const QString &name)
{
    const std::unique_ptr<AtspiAction, Release> actions(atspi_accessible_get_action_iface(accessible));
    for (int i = 0; actions && i < atspi_action_get_n_actions(actions.get(), nullptr); ++i) {
        if (taken(atspi_action_get_action_name(actions.get(), i, nullptr)) == name) {
            return atspi_action_do_action(actions.get(), i, nullptr);
        }
    }
    return false;
}

QString textOf(AtspiAccessible *accessible)
{
    const std::unique_ptr<AtspiText, Release> text(atspi_accessible_get_text_iface(accessible));
    return text ? taken(atspi_text_get_text(text.get(), 0, -1, nullptr)) : QString();
}

double valueOf(AtspiAccessible *accessible)
{
    const std::unique_ptr<AtspiValue, Release> value(atspi_accessible_get_value_iface(accessible));
    return value ? atspi_value_get_current_value(value.get(), nullptr) : -1;
}

} // namespace

/// The viewer in the hands of assistive technology: another process, which knows nothing but the accessibility bus.
class AccessBusTest : public QObject
{
    Q_OBJECT

    /// What is shown under that role, name and, unless it is null, description.
    Accessible find(AtspiRole role, const QString &name, const QString &description = {})
    {
        Accessible desktop(atspi_get_desktop(0));
        atspi_accessible_clear_cache(desktop.get());
        return search(std::move(desktop), [&](AtspiAccessible *candidate) {
            return atspi_accessible_get_role(candidate, nullptr) == role
                && taken(atspi_accessible_get_name(candidate, nullptr)) == name
                && (description.isNull() || taken(atspi_accessible_get_description(candidate, nullptr)) == description)
                && has(candidate, ATSPI_STATE_SHOWING);
        });
    }
    static void hear(AtspiEvent *event, void *heard)
    {
        *static_cast<QStringList *>(heard) += QString::fromUtf8(event->type) + u' '
            + taken(atspi_accessible_get_name(event->source, nullptr));
        g_boxed_free(ATSPI_TYPE_EVENT, event);
    }

    QProcess m_viewer;
    QStringList m_heard; // what was announced, as "event name"
    std::unique_ptr<AtspiEventListener, Release> m_listener;

private Q_SLOTS:
    void initTestCase()
    {
        atspi_init();
        m_listener.reset(atspi_event_listener_new(hear, &m_heard, nullptr));
        QVERIFY(atspi_event_listener_register(m_listener.get(), "object:", nullptr));
        m_viewer.start(QStringLiteral(VIEWER), {"--language"_s, "en"_s, "--set"_s, "InputTriggerMode=Hold"_s,
                       "--set"_s, "InputTriggerSource=TcpServer"_s, "--set"_s, "TriggerStopConfig2Enable=true"_s,
                       "--set"_s, "TriggerStopConfig2Condtion=Command"_s});
        QTRY_VERIFY_WITH_TIMEOUT(find(ATSPI_ROLE_CHECK_BOX, "Key Trigger"_s), 60000);
    }
    void init() { m_heard.clear(); }
    void cleanupTestCase()
    {
        m_viewer.kill();
        m_viewer.waitForFinished();
        const QByteArray errors = m_viewer.readAllStandardError();
        QVERIFY2(!errors.contains("Sanitizer"), errors.constData());
        m_listener.reset();
        atspi_exit();
    }

    void tree()
    {
        const struct { AtspiRole role; QString name, description; QVector<AtspiStateType> states; } rows[] = {
            {ATSPI_ROLE_PUSH_BUTTON, "Trigger Config"_s, ""_s, {ATSPI_STATE_EXPANDABLE, ATSPI_STATE_EXPANDED}},
            {ATSPI_ROLE_PUSH_BUTTON, "Add to Trigger Stop Config"_s, {}, {}},
            {ATSPI_ROLE_PUSH_BUTTON, "Delete Config 2"_s, {}, {}},
            {ATSPI_ROLE_COMBO_BOX, "Trigger Mode"_s, {}, {ATSPI_STATE_EXPANDABLE}},
            {ATSPI_ROLE_COMBO_BOX, "Command Format"_s, "TCP Server"_s, {}},
            {ATSPI_ROLE_COMBO_BOX, "Command Format"_s, "Config 2"_s, {}},
            {ATSPI_ROLE_CHECK_BOX, "Key Trigger"_s, {}, {}},
            {ATSPI_ROLE_SPIN_BUTTON, "TCP Port"_s, "TCP Server"_s, {}},
            {ATSPI_ROLE_SPIN_BUTTON, "TCP Port"_s, "Config 2"_s, {}},
            {ATSPI_ROLE_TEXT, "Start Trigger Command"_s, "TCP Server"_s, {ATSPI_STATE_EDITABLE}},
        };
        for (const auto &row : rows) {
            const Accessible found = find(row.role, row.name, row.description);
            QVERIFY2(found, qPrintable(row.name + u' ' + row.description));
            const QVector<AtspiStateType> common{ATSPI_STATE_ENABLED, ATSPI_STATE_FOCUSABLE};
            for (const AtspiStateType state : common + row.states) {
                QVERIFY2(has(found.get(), state), qPrintable("%1: %2"_s.arg(row.name).arg(state)));
            }
        }
        QVERIFY(!find(ATSPI_ROLE_SPIN_BUTTON, "UDP Port"_s));
        const Accessible locked = find(ATSPI_ROLE_SPIN_BUTTON, "Trigger Cache"_s);
        QVERIFY(locked && !has(locked.get(), ATSPI_STATE_ENABLED));
    }

    /// Whatever is written has all rows read again: what stays has reached the camera.
    void editing()
    {
        const Accessible port = find(ATSPI_ROLE_SPIN_BUTTON, "TCP Port"_s, "TCP Server"_s);
        const std::unique_ptr<AtspiValue, Release> value(atspi_accessible_get_value_iface(port.get()));
        QVERIFY(value && atspi_value_set_current_value(value.get(), 2345, nullptr));
        QTRY_VERIFY(m_heard.contains("object:property-change:accessible-value TCP Port"_s));

        const Accessible key = find(ATSPI_ROLE_CHECK_BOX, "Key Trigger"_s);
        const bool before = has(key.get(), ATSPI_STATE_CHECKED);
        QVERIFY(act(key.get(), "Toggle"_s));
        QTRY_VERIFY(m_heard.contains("object:state-changed:checked Key Trigger"_s));
        QTRY_COMPARE(has(find(ATSPI_ROLE_CHECK_BOX, "Key Trigger"_s).get(), ATSPI_STATE_CHECKED), !before);
        QCOMPARE(valueOf(port.get()), 2345.);
        QCOMPARE(textOf(port.get()), "2345"_s);
    }

    void choosing()
    {
        QCOMPARE(textOf(find(ATSPI_ROLE_COMBO_BOX, "Trigger Source"_s).get()), "TcpServer"_s);
        const Accessible entry = find(ATSPI_ROLE_LIST_ITEM, "Udp"_s);
        QVERIFY(entry && act(entry.get(), "Toggle"_s));
        QTRY_VERIFY(find(ATSPI_ROLE_SPIN_BUTTON, "UDP Port"_s, "UDP"_s));
        QVERIFY(!find(ATSPI_ROLE_SPIN_BUTTON, "TCP Port"_s, "TCP Server"_s));
        QCOMPARE(textOf(find(ATSPI_ROLE_COMBO_BOX, "Trigger Source"_s).get()), "Udp"_s);
        QTRY_VERIFY(m_heard.contains("object:selection-changed Trigger Source"_s));
        QTRY_VERIFY(m_heard.contains("object:state-changed:showing UDP Port"_s));
    }

    /// With pointer and keyboard: a text is finished with Return.
    void typing()
    {
        const Accessible command = find(ATSPI_ROLE_TEXT, "Start Trigger Command"_s, "UDP"_s);
        QVERIFY(command);
        const std::unique_ptr<AtspiComponent, Release> component(atspi_accessible_get_component_iface(command.get()));
        const std::unique_ptr<AtspiRect, void (*)(gpointer)> place(
            atspi_component_get_extents(component.get(), ATSPI_COORD_TYPE_SCREEN, nullptr), g_free);
        QVERIFY(atspi_generate_mouse_event(place->x + place->width / 2, place->y + place->height / 2, "b1c", nullptr));
        QTRY_VERIFY(m_heard.contains("object:state-changed:focused Start Trigger Command"_s));
        const std::unique_ptr<AtspiEditableText, Release> text(
            atspi_accessible_get_editable_text_iface(command.get()));
        QVERIFY(text && atspi_editable_text_set_text_contents(text.get(), "go on", nullptr));
        QVERIFY(atspi_generate_keyboard_event(0xff0d, nullptr, ATSPI_KEY_SYM, nullptr)); // Return
        QTRY_VERIFY(m_heard.contains("object:text-changed:insert Start Trigger Command"_s));
        const Accessible key = find(ATSPI_ROLE_CHECK_BOX, "Key Trigger"_s);
        QVERIFY(act(key.get(), "Toggle"_s));
        QTRY_VERIFY(m_heard.contains("object:state-changed:checked Key Trigger"_s));
        QCOMPARE(textOf(command.get()), "go on"_s);
    }
};

QTEST_GUILESS_MAIN(AccessBusTest)
#include "AccessBusTest.moc"
