#include "MainWindow.h"

#include "DeviceText.h"
#include "NodeView.h"
#include "TrafficView.h"

#include <VyViewerCore/IDeviceManager.h>
#include <VyViewerCore/Singleton.h>

#include <QActionGroup>
#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <QtConcurrentRun>

using VyViewer::IDeviceManager;
using VyViewer::Singleton;

namespace {

constexpr int kMessageTime = 10000; // milliseconds that a message stays in the status bar
constexpr char kInFront[] = "inFront";
constexpr int kListWidth = 38; // average characters
constexpr int kPanelWidth = 92;
constexpr int kPanelHeight = 45; // lines

// The address of one host: not of this network, of a group or of everybody.
constexpr char kAddressPattern[] = "(22[0-3]|2[01]\\d|1\\d\\d|[1-9]\\d?)(\\.(25[0-5]|2[0-4]\\d|1\\d\\d|[1-9]?\\d)){3}";

} // namespace

MainWindow::MainWindow(const QString &language, bool remember)
    : m_remember(remember)
    , m_centre(new QStackedWidget(this))
    , m_tabs(new QTabWidget(m_centre))
    , m_placeholder(new QWidget(m_centre))
    , m_nothingOpen(new QLabel(m_placeholder))
    , m_connectButton(new QPushButton(m_placeholder))
    , m_builtInButton(new QPushButton(m_placeholder))
    , m_list(new DeviceList(this))
    , m_traffic(new TrafficView(this))
    , m_nodes(new NodeView(this))
    , m_state(new QLabel(this))
    , m_docks{{"devicesDock", QT_TR_NOOP("Devices"), m_list, nullptr},
              {"trafficDock", QT_TR_NOOP("Traffic"), m_traffic, nullptr},
              {"nodesDock", QT_TR_NOOP("Nodes"), m_nodes, nullptr}}
{
    m_tabs->setObjectName(QStringLiteral("tabs"));
    m_tabs->setDocumentMode(true);
    m_tabs->setTabsClosable(true);
    m_tabs->setMovable(true);
    connect(m_tabs, &QTabWidget::currentChanged, this, &MainWindow::followCurrentPage);
    connect(m_tabs, &QTabWidget::tabCloseRequested, this, [this](int index) { closePage(pageAt(index)); });
    // Before the page that is left is hidden.
    connect(m_tabs, &QTabWidget::tabBarClicked, this, &MainWindow::commitPendingEdit);
    m_placeholder->setObjectName(QStringLiteral("placeholder"));
    m_centre->addWidget(m_placeholder);
    m_centre->addWidget(m_tabs);
    setCentralWidget(m_centre);
    m_state->setTextFormat(Qt::PlainText);
    statusBar()->addPermanentWidget(m_state);
    connect(&m_search, &QFutureWatcherBase::finished, this, &MainWindow::addFoundCameras);
    m_nodeTimer.setSingleShot(true);
    connect(&m_nodeTimer, &QTimer::timeout, m_nodes, &NodeView::refresh);

    buildDocks();
    buildActions();
    buildPlaceholder();
    const QFontMetrics font = fontMetrics();
    const QSize wanted(font.averageCharWidth() * (kPanelWidth + kListWidth), font.height() * kPanelHeight);
    const QSize frame(0, 2 * style()->pixelMetric(QStyle::PM_TitleBarHeight)); // about what goes around it
    resize(wanted.boundedTo(QGuiApplication::primaryScreen()->availableSize() - frame));
    resizeDocks({m_docks[0].dock}, {font.averageCharWidth() * kListWidth}, Qt::Horizontal);
    setLanguage(language.isEmpty() && remember ? QSettings().value(QStringLiteral("language")).toString() : language);
    retranslate();
    if (remember) {
        restore();
    }
}

MainWindow::~MainWindow()
{
    m_tabs->disconnect(this);
    m_nodes->setDevice(nullptr);
    m_traffic->setModel(nullptr);
    while (m_tabs->count() > 0) { // before anything that their signals reach
        delete m_tabs->widget(0);
    }
}

void MainWindow::openDevice(const QString &address, const QString &description)
{
    for (int i = 0; i < m_tabs->count(); ++i) {
        if (pageAt(i)->camera().address == address) {
            m_tabs->setCurrentIndex(i);
            return;
        }
    }
    if (!address.isEmpty()) {
        m_lastAddress = address;
    }
    m_list->setCamera({address, {}, {}, {}});
    rememberCameras();
    auto *const page = new DevicePage(m_list->camera(address), description, m_tabs);
    connect(page, &DevicePage::changed, this, [this, page] { followPage(page); });
    connect(page, &DevicePage::written, this, [this, page] {
        if (page == currentPage()) {
            m_nodeTimer.start(0);
        }
    });
    connect(page, &DevicePage::said, this, [this, page](const QString &message) {
        const bool isCurrent = page == currentPage();
        statusBar()->showMessage(isCurrent ? message : tr("%1 – %2").arg(DeviceList::name(page->camera()), message),
                                 kMessageTime);
    });
    m_tabs->setCurrentIndex(m_tabs->addTab(page, QString()));
    page->open();
}

DevicePage *MainWindow::currentPage() const
{
    return pageAt(m_tabs->currentIndex());
}

void MainWindow::fitToPanel()
{
    const auto *const area = currentPage() ? currentPage()->findChild<QScrollArea *>() : nullptr;
    if (area) {
        const int missing = fontMetrics().averageCharWidth() * kPanelWidth - currentPage()->width();
        resize(width() + qMax(missing, 0),
               height() + area->widget()->minimumSizeHint().height() - area->viewport()->height());
    }
}

bool MainWindow::event(QEvent *event)
{
    // Qt's bar for docks one behind the other would be a stop for Tab even while none of them is shown.
    if (event->type() == QEvent::ChildPolished) { // complete by then
        QObject *const polished = static_cast<QChildEvent *>(event)->child();
        if (auto *const bar = qobject_cast<QTabBar *>(polished)) { // clazy:exclude=child-event-qobject-cast
            bar->setFocusPolicy(Qt::NoFocus);
        }
    }
    // No action has a status tip, but the empty one would wipe away the message when the mouse passes a button.
    return event->type() == QEvent::StatusTip || QMainWindow::event(event);
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    commitPendingEdit();
    if (m_remember) {
        QSettings settings;
        settings.setValue(QStringLiteral("geometry"), saveGeometry());
        settings.setValue(QStringLiteral("state"), saveState());
        rememberCameras();
    }
    QMainWindow::closeEvent(event);
}

void MainWindow::buildPlaceholder()
{
    auto *const layout = new QVBoxLayout(m_placeholder);
    layout->addStretch();
    layout->addWidget(m_nothingOpen);
    layout->addSpacing(fontMetrics().height());
    layout->addWidget(m_connectButton, 0, Qt::AlignCenter);
    layout->addWidget(m_builtInButton, 0, Qt::AlignCenter);
    layout->addStretch();
    m_nothingOpen->setAlignment(Qt::AlignCenter);
    m_connectButton->setObjectName(QStringLiteral("connectButton"));
    m_builtInButton->setObjectName(QStringLiteral("builtInButton"));
    connect(m_connectButton, &QPushButton::clicked, this, &MainWindow::askForAddress);
    connect(m_builtInButton, &QPushButton::clicked, this, [this] { openDevice({}); });
}

void MainWindow::buildDocks()
{
    for (Dock &dock : m_docks) {
        dock.dock = new QDockWidget(this);
        dock.dock->setObjectName(QLatin1String(dock.name));
        dock.dock->setWidget(dock.contents);
        const bool isList = dock.contents == m_list;
        addDockWidget(isList ? Qt::LeftDockWidgetArea : Qt::BottomDockWidgetArea, dock.dock);
        dock.dock->setVisible(isList);
        // Shown means seen, also where it shares its place with another: one behind that comes to the front first.
        QDockWidget *const widget = dock.dock;
        connect(
            widget, &QDockWidget::visibilityChanged, widget,
            [widget](bool isInFront) { widget->setProperty(kInFront, isInFront); },
            Qt::QueuedConnection); // known to the following as it was before
        connect(widget->toggleViewAction(), &QAction::triggered, widget, [widget] {
            widget->setVisible(widget->isVisible() || !widget->property(kInFront).toBool());
            widget->raise();
        });
    }
    tabifyDockWidget(m_docks[1].dock, m_docks[2].dock);
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    connect(m_list, &DeviceList::chosen, this, [this](const QString &address) { openDevice(address); });
}

QAction *MainWindow::add(QAction *action, const char *name, const char *text, Need need, const QKeySequence &shortcut)
{
    action->setObjectName(QLatin1String(name));
    action->setIconVisibleInMenu(false);
    action->setShortcut(shortcut);
    m_items.append({action, text, need});
    return action;
}

QMenu *MainWindow::addMenu(const char *name, const char *text)
{
    QMenu *const menu = menuBar()->addMenu(QString());
    add(menu->menuAction(), name, text, Nothing);
    return menu;
}

/// A menu of the entries of a node, made each time it opens: what a device offers changes with its state. They can
/// be chosen while the node `needed` can be written.
QAction *MainWindow::newEntryMenu(QStyle::StandardPixmap icon, const char *node, const char *needed, Choice choose)
{
    auto *const menu = new QMenu(this);
    menu->setIcon(style()->standardIcon(icon));
    connect(menu, &QMenu::aboutToShow, this, [this, menu, node, needed, choose] {
        IDeviceManager *const devices = Singleton<IDeviceManager>::getInstance();
        Device *const device = currentPage()->device();
        QString current;
        QList<QString> entries;
        const bool isReadable = devices->getParamEnum(device, QLatin1String(node), current, entries) == 0;
        const RuvoNodeAccessMode mode = devices->getNodeAccessMode(device, QLatin1String(needed));
        menu->clear();
        if (!isReadable) {
            menu->addAction(tr("Not available now"))->setEnabled(false);
            return;
        }
        for (const QString &entry : qAsConst(entries)) {
            QAction *const action = menu->addAction(DeviceText::action(entry));
            action->setCheckable(true);
            action->setChecked(entry == current);
            action->setEnabled(mode == RuvoNodeReadWrite || mode == RuvoNodeWriteOnly);
            connect(action, &QAction::triggered, this, [this, choose, entry] { (currentPage()->*choose)(entry); });
        }
    });
    return menu->menuAction();
}

void MainWindow::buildActions()
{
    using Act = std::function<void()>;
    const auto onPage = [this](void (DevicePage::*act)()) -> Act { return [this, act] { (currentPage()->*act)(); }; };
    const auto acquire = [this](bool start) -> Act { return [this, start] { currentPage()->setAcquiring(start); }; };

    QMenu *menu = addMenu("deviceMenu", QT_TR_NOOP("&Device"));
    const auto put = [this, &menu](const char *name, const char *text, Need need, const QKeySequence &shortcut,
                                   const Act &act) {
        return add(menu->addAction(QString(), this, act), name, text, need, shortcut);
    };
    put("connect", QT_TR_NOOP("&Connect…"), Nothing, Qt::CTRL + Qt::Key_N, [this] { askForAddress(); });
    m_find =
        put("find", QT_TR_NOOP("&Find cameras"), Nothing, Qt::CTRL + Qt::SHIFT + Qt::Key_N, [this] { findCameras(); });
    menu->addSeparator();
    m_reconnect = put("reconnectDevice", QT_TR_NOOP("&Reconnect"), Page, Qt::CTRL + Qt::SHIFT + Qt::Key_R,
                      onPage(&DevicePage::open));
    put("closeDevice", QT_TR_NOOP("C&lose"), Page, Qt::CTRL + Qt::Key_W, [this] { closePage(currentPage()); });
    menu->addSeparator();
    put("saveSettings", QT_TR_NOOP("&Save settings…"), Connection, QKeySequence::Save,
        onPage(&DevicePage::saveSettings));
    put("applySettings", QT_TR_NOOP("&Apply settings…"), Control, QKeySequence::Open,
        onPage(&DevicePage::applySettings));
    menu->addSeparator();
    put("quit", QT_TR_NOOP("&Quit"), Nothing, Qt::CTRL + Qt::Key_Q, [this] { close(); });

    menu = addMenu("cameraMenu", QT_TR_NOOP("&Camera"));
    m_start = put("start", QT_TR_NOOP("&Start acquisition"), Control, Qt::Key_F5, acquire(true));
    m_stop = put("stop", QT_TR_NOOP("S&top acquisition"), Control, Qt::SHIFT + Qt::Key_F5, acquire(false));
    m_start->setIcon(style()->standardIcon(QStyle::SP_MediaPlay));
    m_stop->setIcon(style()->standardIcon(QStyle::SP_MediaStop));
    menu->addSeparator();
    QAction *const load =
        newEntryMenu(QStyle::SP_DialogOpenButton, "UserSetSelector", "UserSetLoad", &DevicePage::loadUserSet);
    // Which set can be saved to is only known once it is selected.
    QAction *const save =
        newEntryMenu(QStyle::SP_DialogSaveButton, "UserSetSelector", "UserSetSelector", &DevicePage::saveUserSet);
    m_mode = newEntryMenu(QStyle::SP_FileDialogDetailedView, "InputTriggerMode", "InputTriggerMode",
                          &DevicePage::setTriggerMode);
    menu->addActions({add(load, "loadUserSet", QT_TR_NOOP("&Load user set"), Control),
                      add(save, "saveUserSet", QT_TR_NOOP("Save to &user set"), Control),
                      add(m_mode, "triggerMode", QT_TR_NOOP("Trigger &mode"), Control)});

    menu = addMenu("viewMenu", QT_TR_NOOP("&View"));
    for (const Dock &dock : m_docks) {
        menu->addAction(dock.dock->toggleViewAction());
        dock.dock->toggleViewAction()->setShortcut(Qt::CTRL + Qt::Key_1 + int(&dock - m_docks));
    }
    menu->addSeparator();
    put("refreshNodes", QT_TR_NOOP("&Refresh nodes"), Connection, Qt::CTRL + Qt::Key_R, [this] { m_nodes->refresh(); });

    m_languageMenu = addMenu("languageMenu", QT_TR_NOOP("&Language"));
    auto *const languages = new QActionGroup(this);
    const QStringList codes = Language::codes();
    for (const QString &code : codes) {
        QAction *const action = m_languageMenu->addAction(Language::name(code));
        action->setData(code);
        action->setCheckable(true);
        languages->addAction(action);
    }
    connect(languages, &QActionGroup::triggered, this, [this](const QAction *action) {
        setLanguage(action->data().toString());
        if (m_remember) {
            QSettings().setValue(QStringLiteral("language"), action->data());
        }
    });

    menu = addMenu("helpMenu", QT_TR_NOOP("&Help"));
    put("about", QT_TR_NOOP("&About Trigger Viewer"), Nothing, {}, [this] {
        QMessageBox::about(this, tr("About Trigger Viewer"),
                           tr("<h3>Trigger Viewer %1</h3><p>Shows and changes the trigger settings of smart cameras."
                              "</p><p>Uses Qt, Aravis and GLib under the GNU Lesser General Public License.</p>")
                               .arg(QStringLiteral(VYVIEWER_VERSION)));
    });

    QToolBar *const tools = addToolBar(QString());
    tools->setObjectName(QStringLiteral("tools"));
    tools->setMovable(false);
    tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    tools->setContextMenuPolicy(Qt::PreventContextMenu);
    tools->addActions({m_start, m_stop, tools->addSeparator(), load, m_mode});
    for (QAction *popup : {load, m_mode}) {
        qobject_cast<QToolButton *>(tools->widgetForAction(popup))->setPopupMode(QToolButton::InstantPopup);
    }
    setContextMenuPolicy(Qt::NoContextMenu);
}

void MainWindow::retranslate()
{
    for (const Item &item : qAsConst(m_items)) {
        const QString text = tr(item.text);
        item.action->setText(text);
        // A tool button has no key, which some languages put behind the text.
        item.action->setIconText(QString(text).remove(QRegularExpression(QStringLiteral("\\(&\\w\\)|&|…"))));
    }
    for (const Dock &dock : m_docks) {
        dock.dock->setWindowTitle(tr(dock.title));
    }
    m_mode->setToolTip(tr("Change the trigger mode outside the panel"));
    m_nothingOpen->setText(tr("No device is open."));
    m_connectButton->setText(tr("Connect…"));
    m_builtInButton->setText(tr("Open the built-in camera"));
    for (int i = 0; i < m_tabs->count(); ++i) {
        followPage(pageAt(i));
    }
    followCurrentPage();
}

void MainWindow::setLanguage(const QString &code)
{
    m_language.speak(code.isEmpty() ? QLocale() : QLocale(code));
    const QList<QAction *> actions = m_languageMenu->actions();
    for (QAction *action : actions) {
        action->setChecked(action->data().toString() == m_language.code());
    }
}

/// Whenever there is news, not only at the end: that may never come.
void MainWindow::rememberCameras() const
{
    if (!m_remember) {
        return;
    }
    QSettings settings;
    settings.setValue(QStringLiteral("lastAddress"), m_lastAddress);
    settings.beginGroup(QStringLiteral("devices"));
    settings.remove(QString());
    const QVector<DeviceList::Camera> cameras = m_list->cameras();
    for (const DeviceList::Camera &camera : cameras) {
        if (!camera.address.isEmpty()) {
            settings.setValue(camera.address, QStringList{camera.vendor, camera.model, camera.serial});
        }
    }
}

void MainWindow::restore()
{
    QSettings settings;
    restoreGeometry(settings.value(QStringLiteral("geometry")).toByteArray());
    restoreState(settings.value(QStringLiteral("state")).toByteArray());
    m_lastAddress = settings.value(QStringLiteral("lastAddress")).toString();
    settings.beginGroup(QStringLiteral("devices"));
    const QStringList addresses = settings.childKeys();
    for (const QString &address : addresses) {
        const QStringList texts = settings.value(address).toStringList();
        m_list->setCamera({address, texts.value(0), texts.value(1), texts.value(2)});
    }
}

DevicePage *MainWindow::pageAt(int index) const
{
    return qobject_cast<DevicePage *>(m_tabs->widget(index));
}

void MainWindow::commitPendingEdit() const
{
    if (currentPage()) {
        currentPage()->commitPendingEdit();
    }
}

void MainWindow::closePage(DevicePage *page)
{
    page->commitPendingEdit();
    const QString address = page->camera().address;
    m_tabs->removeTab(m_tabs->indexOf(page));
    followCurrentPage(); // the docks let go of its device
    delete page;
    m_list->setState(address, DeviceList::NotOpen);
}

void MainWindow::askForAddress()
{
    QDialog dialog(this);
    dialog.setObjectName(QStringLiteral("connectDialog"));
    dialog.setWindowTitle(tr("Connect"));
    auto *const label = new QLabel(tr("&IPv4 address of the camera:"), &dialog);
    auto *const address = new QComboBox(&dialog);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    auto *const layout = new QVBoxLayout(&dialog);
    for (QWidget *widget : std::initializer_list<QWidget *>{label, address, buttons}) {
        layout->addWidget(widget);
    }
    label->setBuddy(address);
    address->setEditable(true);
    address->setMinimumContentsLength(30);
    const QVector<DeviceList::Camera> cameras = m_list->cameras();
    for (const DeviceList::Camera &camera : cameras) {
        if (!camera.address.isEmpty()) {
            address->addItem(camera.address);
        }
    }
    connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    const QRegularExpression pattern(QRegularExpression::anchoredPattern(QLatin1String(kAddressPattern)));
    const auto check = [buttons, pattern](const QString &text) {
        buttons->button(QDialogButtonBox::Ok)->setEnabled(pattern.match(text.trimmed()).hasMatch());
    };
    connect(address, &QComboBox::editTextChanged, &dialog, check);
    address->setEditText(m_lastAddress);
    check(m_lastAddress);
    address->lineEdit()->selectAll();
    if (dialog.exec() == QDialog::Accepted) {
        openDevice(address->currentText().trimmed());
    }
}

void MainWindow::findCameras()
{
    m_search.setFuture(QtConcurrent::run(&CameraFinder::find));
    m_find->setEnabled(false);
    statusBar()->showMessage(tr("Searching for cameras…"));
}

void MainWindow::addFoundCameras()
{
    m_find->setEnabled(true);
    const QVector<DeviceList::Camera> cameras = m_search.result();
    for (const DeviceList::Camera &camera : cameras) {
        m_list->setCamera(camera);
    }
    if (!cameras.isEmpty()) {
        m_docks[0].dock->show();
        rememberCameras();
    }
    statusBar()->showMessage(cameras.isEmpty()         ? tr("No camera answered")
                                 : cameras.size() == 1 ? tr("1 camera found")
                                                       : tr("%1 cameras found").arg(cameras.size()),
                             kMessageTime);
}

void MainWindow::followPage(DevicePage *page)
{
    if (m_list->setCamera(page->camera())) {
        rememberCameras();
    }
    m_list->setState(page->camera().address, page->state());
    const int index = m_tabs->indexOf(page);
    m_tabs->setTabText(index, DeviceText::action(DeviceList::name(page->camera())));
    m_tabs->setTabIcon(index, DeviceList::icon(page->state()));
    m_tabs->setTabToolTip(index, DeviceText::toolTip(DeviceList::details(page->camera(), page->state())));
    if (page == currentPage()) {
        followCurrentPage();
    }
}

void MainWindow::followCurrentPage()
{
    const DevicePage *const page = currentPage();
    if (m_followed != page) {
        m_traffic->setModel(page ? page->traffic() : nullptr);
        m_followed = page;
        if (page) {
            m_list->setCurrentCamera(page->camera().address);
        }
    }
    m_nodes->setDevice(page ? page->bareDevice() : nullptr);
    m_centre->setCurrentWidget(page ? static_cast<QWidget *>(m_tabs) : m_placeholder);

    const DeviceList::State state = page ? page->state() : DeviceList::NotOpen;
    const QString model = page ? DeviceText::windowTitle(page->camera().model) : QString();
    setWindowTitle(model.isEmpty() ? tr("Trigger Viewer") : tr("%1 – Trigger Viewer").arg(model));
    m_state->setText(page ? tr("%1 – %2").arg(DeviceList::name(page->camera()), DeviceList::text(state)) : QString());

    const Need has = !page ? Nothing : !page->device() ? Page : page->isReadOnly() ? Connection : Control;
    for (const Item &item : qAsConst(m_items)) {
        item.action->setEnabled(item.need <= has);
    }
    m_find->setEnabled(!m_search.isRunning());
    m_reconnect->setEnabled(has > Page || (has == Page && state != DeviceList::Connecting));
    m_start->setEnabled(has == Control && !page->isAcquiring());
    m_stop->setEnabled(has == Control && page->isAcquiring());
}
