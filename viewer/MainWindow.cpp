#include "MainWindow.h"

#include "panel/VyTriggerConfigWdg.h"

#include <VyViewerCore/CoreEventBus.h>
#include <VyViewerCore/IDeviceManager.h>
#include <VyViewerCore/Singleton.h>

#include <QActionGroup>
#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QLibraryInfo>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>
#include <QTranslator>

using VyViewer::CoreEventBus;
using VyViewer::IDeviceManager;
using VyViewer::Singleton;

namespace {

constexpr int kMessageTime = 8000; // milliseconds that a message stays in the status bar
constexpr char kModeNode[] = "InputTriggerMode";
constexpr char kUserSetNode[] = "UserSetSelector";

IDeviceManager *devices()
{
    return Singleton<IDeviceManager>::getInstance();
}

QString text(Device *device, const char *node)
{
    QString value;
    return devices()->getParamString(device, QString::fromLatin1(node), value) == 0 ? value : QString();
}

} // namespace

MainWindow::MainWindow(Device *device, const QString &language)
    : m_device(device)
    , m_panel(new VyTriggerConfigWdg(this))
    , m_translator(new QTranslator(this))
    , m_qtTranslator(new QTranslator(this))
    , m_state(new QLabel(this))
    , m_cameraMenu(menuBar()->addMenu(QString()))
    , m_userSetMenu(new QMenu(this))
    , m_modeMenu(new QMenu(this))
    , m_languageMenu(menuBar()->addMenu(QString()))
    , m_start(new QAction(style()->standardIcon(QStyle::SP_MediaPlay), QString(), this))
    , m_stop(new QAction(style()->standardIcon(QStyle::SP_MediaStop), QString(), this))
    , m_quit(new QAction(this))
{
    m_panel->setVyDevice(device);
    setCentralWidget(m_panel);
    statusBar()->addPermanentWidget(m_state);
    const QSize wanted(fontMetrics().averageCharWidth() * 92, fontMetrics().height() * 45);
    resize(wanted.boundedTo(QGuiApplication::primaryScreen()->availableSize()));
    buildActions();
    setLanguage(language);
    retranslate();
}

MainWindow::~MainWindow() = default;

void MainWindow::fitToPanel()
{
    const auto *const area = m_panel->findChild<QScrollArea *>();
    resize(width(), height() + area->widget()->minimumSizeHint().height() - area->viewport()->height());
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::buildActions()
{
    m_start->setShortcut(Qt::Key_F5);
    m_stop->setShortcut(Qt::SHIFT + Qt::Key_F5);
    m_quit->setShortcut(QKeySequence::Quit);
    connect(m_start, &QAction::triggered, this, [this] { setAcquiring(true); });
    connect(m_stop, &QAction::triggered, this, [this] { setAcquiring(false); });
    connect(m_quit, &QAction::triggered, this, &QWidget::close);
    fillMenu(m_userSetMenu, QLatin1String(kUserSetNode), &MainWindow::loadUserSet);
    fillMenu(m_modeMenu, QLatin1String(kModeNode), &MainWindow::setTriggerMode);

    m_cameraMenu->addActions({m_start, m_stop});
    m_cameraMenu->addSeparator();
    m_cameraMenu->addMenu(m_userSetMenu);
    m_cameraMenu->addMenu(m_modeMenu);
    m_cameraMenu->addSeparator();
    m_cameraMenu->addAction(m_quit);

    auto *const languages = new QActionGroup(this);
    for (const char *code : {"en", "de"}) {
        const QLocale locale(QString::fromLatin1(code));
        QString name = locale.nativeLanguageName();
        name[0] = name[0].toUpper();
        QAction *const action = m_languageMenu->addAction(name);
        action->setData(locale.name().left(2));
        action->setCheckable(true);
        languages->addAction(action);
    }
    connect(languages, &QActionGroup::triggered, this,
            [this](const QAction *action) { setLanguage(action->data().toString()); });

    QToolBar *const tools = addToolBar(QString());
    tools->setMovable(false);
    tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    tools->setContextMenuPolicy(Qt::PreventContextMenu);
    tools->addActions({m_start, m_stop});
    tools->addSeparator();
    for (QMenu *menu : {m_userSetMenu, m_modeMenu}) {
        tools->addAction(menu->menuAction());
        auto *const button = qobject_cast<QToolButton *>(tools->widgetForAction(menu->menuAction()));
        button->setPopupMode(QToolButton::InstantPopup);
    }
    setContextMenuPolicy(Qt::NoContextMenu);
}

void MainWindow::retranslate()
{
    const QString model = text(m_device, "DeviceModelName");
    setWindowTitle(model.isEmpty() ? tr("Trigger Viewer") : tr("%1 – Trigger Viewer").arg(model));
    m_cameraMenu->setTitle(tr("&Camera"));
    m_start->setText(tr("&Start acquisition"));
    m_stop->setText(tr("S&top acquisition"));
    m_userSetMenu->setTitle(tr("&Load user set"));
    m_modeMenu->setTitle(tr("Trigger &mode"));
    m_modeMenu->menuAction()->setToolTip(tr("Change the trigger mode outside the panel"));
    m_languageMenu->setTitle(tr("&Language"));
    m_quit->setText(tr("&Quit"));
    m_start->setEnabled(!m_acquiring);
    m_stop->setEnabled(m_acquiring);
    const QString serial = text(m_device, "DeviceSerialNumber");
    m_state->setText(tr("%1 %2 – %3").arg(model, serial, m_acquiring ? tr("acquiring") : tr("idle")));
}

void MainWindow::setLanguage(const QString &code)
{
    // English is what the sources are written in.
    QCoreApplication::removeTranslator(m_translator);
    QCoreApplication::removeTranslator(m_qtTranslator);
    const QLocale locale = code.isEmpty() ? QLocale() : QLocale(code);
    if (locale.language() != QLocale::English) {
        if (m_qtTranslator->load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                                 QLibraryInfo::location(QLibraryInfo::TranslationsPath))) {
            QCoreApplication::installTranslator(m_qtTranslator);
        }
        if (m_translator->load(locale, QStringLiteral("trigger"), QStringLiteral("_"), QStringLiteral(":/translations"))) {
            QCoreApplication::installTranslator(m_translator);
        }
    }
    const QString shown = m_translator->isEmpty() || locale.language() == QLocale::English
                              ? QStringLiteral("en") : locale.name().left(2);
    const QList<QAction *> actions = m_languageMenu->actions();
    for (QAction *action : actions) {
        action->setChecked(action->data().toString() == shown);
    }
}

void MainWindow::setAcquiring(bool start)
{
    commitPendingEdit();
    const long status = devices()->executeCMD(m_device, start ? QStringLiteral("AcquisitionStart")
                                                              : QStringLiteral("AcquisitionStop"));
    if (status == 0) {
        m_acquiring = start;
        Q_EMIT devices()->deviceGrabStatusUpdate(m_device, start ? 1 : 0);
    }
    retranslate();
    report(start ? tr("Start acquisition") : tr("Stop acquisition"), status);
}

void MainWindow::loadUserSet(const QString &set)
{
    commitPendingEdit();
    long status = devices()->setParamEnum(m_device, QLatin1String(kUserSetNode), set);
    if (status == 0) {
        status = devices()->executeCMD(m_device, QStringLiteral("UserSetLoad"));
    }
    if (status == 0) {
        post(QStringLiteral("UserSetLoad"));
    }
    report(tr("Load user set %1").arg(set), status);
}

void MainWindow::setTriggerMode(const QString &mode)
{
    commitPendingEdit();
    const long status = devices()->setParamEnum(m_device, QLatin1String(kModeNode), mode);
    if (status == 0) {
        const QString state = mode == QLatin1String("None") ? QStringLiteral("Off") : QStringLiteral("On");
        post(QStringLiteral("DeviceParamChanged"), {{QStringLiteral("TriggerMode"), state}});
    }
    report(tr("Trigger mode %1").arg(mode), status);
}

void MainWindow::fillMenu(QMenu *menu, const QString &node, void (MainWindow::*choose)(const QString &))
{
    // Each time it opens: what a device offers changes with its state.
    connect(menu, &QMenu::aboutToShow, this, [this, menu, node, choose] {
        QString current;
        QList<QString> entries;
        devices()->getParamEnum(m_device, node, current, entries);
        menu->clear();
        for (const QString &entry : qAsConst(entries)) {
            QAction *const action = menu->addAction(QString(entry).replace(QLatin1Char('&'), QLatin1String("&&")));
            action->setCheckable(true);
            action->setChecked(entry == current);
            connect(action, &QAction::triggered, this, [this, choose, entry] { (this->*choose)(entry); });
        }
    });
}

void MainWindow::post(const QString &event, QVariantMap payload) const
{
    payload.insert(QStringLiteral("IDevice"), QVariant::fromValue<IDevice>(m_device));
    Singleton<CoreEventBus>::getInstance()->post(event, payload);
}

void MainWindow::commitPendingEdit() const
{
    QWidget *const focused = focusWidget();
    if (focused && focused->hasFocus()) {
        focused->clearFocus();
        focused->setFocus();
    }
}

void MainWindow::report(const QString &what, long status)
{
    statusBar()->showMessage(status == 0 ? tr("%1: done").arg(what)
                                         : tr("%1: refused by the device (status %2)").arg(what).arg(status),
                             kMessageTime);
}
