#pragma once

#include <QMainWindow>
#include <QVariantMap>

class Device;
class QAction;
class QLabel;
class QMenu;
class QTranslator;
class VyTriggerConfigWdg;

/// A host in small: the panel, bound to one device, and what other parts of a host would do to the same device
/// meanwhile. Everything goes through the interfaces that any host has.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    /// The device is not owned and has to outlive the window.
    explicit MainWindow(Device *device, const QString &language);
    ~MainWindow() override;

    /// Makes the window so tall that nothing of the panel is cut off.
    void fitToPanel();

protected:
    void changeEvent(QEvent *event) override;

private:
    void buildActions();
    void retranslate();
    void setLanguage(const QString &code);
    void setAcquiring(bool start);
    void loadUserSet(const QString &set);
    void setTriggerMode(const QString &mode);
    void fillMenu(QMenu *menu, const QString &node, void (MainWindow::*choose)(const QString &));
    /// Tells the rest of the host what happened to the device, which is added to the payload.
    void post(const QString &event, QVariantMap payload = {}) const;
    /// Writes what the user is typing, which the coming change would otherwise discard.
    void commitPendingEdit() const;
    void report(const QString &what, long status);

    Device *const m_device; // not owned
    bool m_acquiring = false;
    VyTriggerConfigWdg *m_panel; // child
    QTranslator *m_translator;   // child
    QTranslator *m_qtTranslator; // child
    QLabel *m_state;             // child
    QMenu *m_cameraMenu;         // these: children
    QMenu *m_userSetMenu;
    QMenu *m_modeMenu;
    QMenu *m_languageMenu;
    QAction *m_start;
    QAction *m_stop;
    QAction *m_quit;
};
