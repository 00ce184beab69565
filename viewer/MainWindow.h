#pragma once

#include "DevicePage.h"
#include "Language.h"

#include <QFutureWatcher>
#include <QMainWindow>
#include <QPointer>
#include <QStyle>
#include <QTimer>

#include <functional>

class NodeView;
class QAction;
class QDockWidget;
class QLabel;
class QMenu;
class QPushButton;
class QStackedWidget;
class QTabWidget;
class TrafficView;

/// A host in small: the cameras, each open one with its panel in a tab of its own, and what goes on with the
/// current one.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    /// Language code; empty for the one chosen last, or the system's. With `remember` the window keeps its state
    /// and the cameras in the settings of the application.
    explicit MainWindow(const QString &language, bool remember);
    ~MainWindow() override;

    /// Opens the camera in a new tab, or raises the tab that it has. Arguments as CameraConnection takes them.
    void openDevice(const QString &address, const QString &description = {});

    /// Null when no camera is open.
    DevicePage *currentPage() const;

    /// Makes the window so large that nothing of the current panel is cut off, whatever the screen.
    void fitToPanel();

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    using Choice = void (DevicePage::*)(const QString &);
    enum Need { Nothing, Page, Connection, Control }; // what an action makes sense with, each including the one before
    struct Item
    {
        QAction *action;  // child
        const char *text; // untranslated
        Need need;
    };
    struct Dock
    {
        const char *name;
        const char *title; // untranslated
        QWidget *contents; // child of the dock
        QDockWidget *dock; // child
    };

    void buildPlaceholder();
    void buildDocks();
    void buildActions();
    QAction *add(QAction *action, const char *name, const char *text, Need need, const QKeySequence &shortcut = {});
    QMenu *addMenu(const char *name, const char *text);
    /// The action that opens the menu.
    QAction *newEntryMenu(QStyle::StandardPixmap icon, const char *node, const char *needed, Choice choose);
    void retranslate();
    void setLanguage(const QString &code);
    void restore();
    void rememberCameras() const;
    DevicePage *pageAt(int index) const;
    void commitPendingEdit() const;
    void closePage(DevicePage *page);
    void askForAddress();
    void findCameras();
    void addFoundCameras();
    void followPage(DevicePage *page);
    /// Brings everything that shows the current page in line with it.
    void followCurrentPage();

    const bool m_remember;
    QString m_lastAddress;
    QFutureWatcher<QVector<DeviceList::Camera>> m_search;
    QTimer m_nodeTimer; // many writes in one go, one refresh
    QPointer<const DevicePage> m_followed;
    Language m_language;
    QStackedWidget *m_centre;
    QTabWidget *m_tabs;
    QWidget *m_placeholder;
    QLabel *m_nothingOpen;
    QPushButton *m_connectButton, *m_builtInButton;
    DeviceList *m_list;
    TrafficView *m_traffic;
    NodeView *m_nodes;
    QLabel *m_state;
    QMenu *m_languageMenu;
    QAction *m_find, *m_reconnect, *m_start, *m_stop, *m_mode;
    QVector<Item> m_items;
    Dock m_docks[3];
};
