#include "DevicePage.h"

#include "DeviceText.h"
#include "SettingsApplier.h"
#include "SettingsFile.h"
#include "TrafficModel.h"

#include "panel/VyTriggerConfigWdg.h"

#include <VyViewerCore/CoreEventBus.h>
#include <VyViewerCore/IDeviceManager.h>
#include <VyViewerCore/Singleton.h>

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QRegularExpression>
#include <QStyle>

using VyViewer::CoreEventBus;
using VyViewer::IDeviceManager;
using VyViewer::Singleton;

namespace {

constexpr int kMaxShownValue = 60;  // characters of a value in a message
constexpr int kMaxName = 64;        // characters of a model's name, so that it widens no window
constexpr int kProgressDelay = 400; // milliseconds before applying shows its progress
constexpr char kUserSetNode[] = "UserSetSelector";

IDeviceManager *devices()
{
    return Singleton<IDeviceManager>::getInstance();
}

/// A list of what could not be done, to be read and copied.
void showProblems(QWidget *parent, const QString &title, const QString &summary,
                  const QVector<SettingsApplier::Problem> &problems)
{
    QDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("problemsDialog"));
    dialog.setWindowTitle(title);
    auto *const label = new QLabel(summary, &dialog);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    auto *const list = new QPlainTextEdit(&dialog);
    list->setObjectName(QStringLiteral("problems"));
    list->setReadOnly(true);
    for (const SettingsApplier::Problem &problem : problems) {
        list->appendPlainText(problem.reason);
    }
    list->moveCursor(QTextCursor::Start);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto *const layout = new QVBoxLayout(&dialog);
    layout->addWidget(label);
    layout->addWidget(list);
    layout->addWidget(buttons);
    dialog.resize(dialog.fontMetrics().averageCharWidth() * 95, dialog.fontMetrics().height() * 20);
    dialog.exec();
}

} // namespace

DevicePage::DevicePage(const DeviceList::Camera &known, const QString &description, QWidget *parent)
    : QWidget(parent)
    , m_camera(known)
    , m_connection(known.address, description)
    , m_traffic(new TrafficModel(this))
    , m_strip(new QWidget(this))
    , m_stripText(new QLabel(m_strip))
    , m_notice(new QWidget(this))
    , m_noticeIcon(new QLabel(m_notice))
    , m_noticeText(new QLabel(m_notice))
    , m_busy(new QProgressBar(m_notice))
    , m_reconnect{new QPushButton(m_strip), new QPushButton(m_notice)}
{
    m_strip->setObjectName(QStringLiteral("readOnlyStrip"));
    m_notice->setObjectName(QStringLiteral("notice"));
    m_noticeText->setObjectName(QStringLiteral("noticeText"));
    for (QPushButton *button : m_reconnect) {
        button->setObjectName(QStringLiteral("reconnect"));
        connect(button, &QPushButton::clicked, this, &DevicePage::open);
    }

    m_strip->setAutoFillBackground(true);
    m_strip->setBackgroundRole(QPalette::ToolTipBase);
    m_strip->setForegroundRole(QPalette::ToolTipText);
    m_stripText->setWordWrap(true);
    auto *const stripLayout = new QHBoxLayout(m_strip);
    stripLayout->addWidget(m_stripText, 1);
    stripLayout->addWidget(m_reconnect[0]);

    m_noticeText->setAlignment(Qt::AlignCenter);
    m_noticeText->setTextFormat(Qt::PlainText);
    m_noticeText->setWordWrap(true);
    m_noticeText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_busy->setRange(0, 0);
    m_busy->setTextVisible(false);
    const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
    m_noticeIcon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size));
    auto *const noticeLayout = new QVBoxLayout(m_notice);
    noticeLayout->setSpacing(fontMetrics().height());
    noticeLayout->addStretch();
    noticeLayout->addWidget(m_noticeIcon, 0, Qt::AlignCenter);
    noticeLayout->addWidget(m_noticeText);
    noticeLayout->addWidget(m_busy, 0, Qt::AlignCenter);
    noticeLayout->addWidget(m_reconnect[1], 0, Qt::AlignCenter);
    noticeLayout->addStretch();

    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_strip);
    layout->addWidget(m_notice);
    connect(&m_connection, &CameraConnection::stateChanged, this, &DevicePage::followConnection);
    retranslate();
}

DevicePage::~DevicePage()
{
    delete m_panel; // while its device is there
}

DeviceList::State DevicePage::state() const
{
    switch (m_connection.state()) {
    case CameraConnection::Opening:
        return DeviceList::Connecting;
    case CameraConnection::Open:
        return isReadOnly() ? DeviceList::ReadOnly : m_acquiring ? DeviceList::Acquiring : DeviceList::Connected;
    case CameraConnection::Lost:
        return DeviceList::Lost;
    case CameraConnection::Closed:
    case CameraConnection::Failed:
        break;
    }
    return DeviceList::Failed;
}

Device *DevicePage::device() const
{
    return bareDevice() ? m_device.get() : nullptr;
}

GenicamDevice *DevicePage::bareDevice() const
{
    return m_connection.state() == CameraConnection::Open ? m_connection.device() : nullptr;
}

bool DevicePage::isReadOnly() const
{
    return bareDevice() && bareDevice()->isReadOnly();
}

void DevicePage::commitPendingEdit() const
{
    QWidget *const focused = focusWidget();
    if (focused && focused->hasFocus()) {
        focused->clearFocus();
        focused->setFocus();
    }
}

void DevicePage::open()
{
    commitPendingEdit();
    m_connection.open();
}

void DevicePage::setAcquiring(bool start)
{
    if (!device()) {
        return;
    }
    commitPendingEdit();
    const bool before = m_acquiring;
    const long status =
        devices()->executeCMD(device(), start ? QStringLiteral("AcquisitionStart") : QStringLiteral("AcquisitionStop"));
    readAcquiring(status == 0 ? start : before);
    if (status == 0 || m_acquiring != before) {
        Q_EMIT devices()->deviceGrabStatusUpdate(device(), m_acquiring ? 1 : 0);
        Q_EMIT changed();
    }
    finish(start ? tr("Start acquisition") : tr("Stop acquisition"), status);
}

void DevicePage::loadUserSet(const QString &set)
{
    if (!device()) {
        return;
    }
    commitPendingEdit();
    if (m_unsaved) {
        QMessageBox box(QMessageBox::Question, tr("Load user set"), tr("Load user set %1?").arg(set),
                        QMessageBox::Cancel, window());
        box.setObjectName(QStringLiteral("loadUserSetBox"));
        box.setTextFormat(Qt::PlainText);
        box.setInformativeText(tr("Settings of this camera were changed and are in no user set. "
                                  "Loading replaces them."));
        const QAbstractButton *const load = box.addButton(tr("Load"), QMessageBox::AcceptRole);
        box.setDefaultButton(QMessageBox::Cancel);
        box.exec();
        if (box.clickedButton() != load || !device()) {
            return;
        }
    }
    const long status = selectUserSet(set, "UserSetLoad");
    if (status == 0) {
        post(QStringLiteral("UserSetLoad"));
    }
    finish(tr("Load user set %1").arg(set), status);
}

void DevicePage::saveUserSet(const QString &set)
{
    commitPendingEdit();
    finish(tr("Save to user set %1").arg(set), selectUserSet(set, "UserSetSave"));
}

void DevicePage::setTriggerMode(const QString &mode)
{
    commitPendingEdit();
    const long status = devices()->setParamEnum(device(), QStringLiteral("InputTriggerMode"), mode);
    if (status == 0) {
        const QString state = mode == QLatin1String("None") ? QStringLiteral("Off") : QStringLiteral("On");
        post(QStringLiteral("DeviceParamChanged"), {{QStringLiteral("TriggerMode"), state}});
    }
    finish(tr("Trigger mode %1").arg(mode), status);
}

void DevicePage::saveSettings()
{
    if (!device()) {
        return;
    }
    commitPendingEdit();
    const SettingsFile file = SettingsFile::read(*device(), bareDevice()->nodes());
    if (!file.unread.isEmpty()) {
        DeviceText::tell(
            window(), QMessageBox::Critical, tr("Save settings"),
            tr("Nothing was saved. These settings could not be read: %1").arg(file.unread.join(QLatin1String(", "))));
        return;
    }
    if (file.entries.isEmpty()) {
        QMessageBox::information(window(), tr("Save settings"),
                                 m_acquiring ? tr("While the camera is acquiring, none of its settings can be saved. "
                                                  "Stop the acquisition first.")
                                             : tr("This camera has no trigger setting that can be saved now."));
        return;
    }
    QString suggestion = QStringLiteral("%1-%2").arg(file.model, file.serial);
    suggestion.replace(QRegularExpression(QStringLiteral("[^\\w .-]")), QStringLiteral("_"));
    QFileDialog dialog(window(), tr("Save settings"), {}, tr("Settings (*.json)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("json"));
    dialog.selectFile(suggestion + QStringLiteral(".json"));
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const QString fileName = dialog.selectedFiles().constFirst();
    const QString error = file.save(fileName);
    if (!error.isEmpty()) {
        DeviceText::tell(window(), QMessageBox::Critical, tr("Save settings"), error);
        return;
    }
    Q_EMIT said(tr("Settings saved in %1").arg(QDir::toNativeSeparators(fileName)));
}

void DevicePage::applySettings()
{
    if (!device()) {
        return;
    }
    commitPendingEdit();
    const QString fileName = QFileDialog::getOpenFileName(window(), tr("Apply settings"), {}, tr("Settings (*.json)"));
    if (fileName.isEmpty() || !device()) {
        return;
    }
    SettingsFile file;
    const QString error = file.load(fileName);
    if (!error.isEmpty()) {
        DeviceText::tell(window(), QMessageBox::Critical, tr("Apply settings"), error);
        return;
    }
    SettingsApplier applier(*m_device, file, [this] { return lastError(); });
    QProgressDialog progress(tr("Applying the settings…"), tr("Cancel"), 0, applier.total(), window());
    progress.setWindowTitle(tr("Apply settings"));
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(kProgressDelay);
    progress.setAutoReset(false); // what was written is read back after that
    while (!progress.wasCanceled() && applier.step()) {
        progress.setValue(applier.done()); // serves events too: the camera may be lost here, but not reopened
    }
    progress.reset(); // gone for good, also if it was not shown yet
    if (device()) {
        post(QStringLiteral("UserSetLoad"));
    }
    const QVector<SettingsApplier::Problem> problems = applier.problems();
    const int applied = applier.total() - problems.size();
    if (problems.isEmpty()) {
        Q_EMIT said(applied == 1 ? tr("1 setting applied") : tr("%1 settings applied").arg(applied));
        return;
    }
    const QString summary = tr("%1 of %2 settings were applied to %3. These were not:");
    Q_EMIT said(tr("%1 of %2 settings applied").arg(applied).arg(applier.total()));
    showProblems(window(), tr("Apply settings"),
                 summary.arg(applied).arg(applier.total()).arg(DeviceList::name(m_camera)), problems);
}

void DevicePage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}

void DevicePage::retranslate()
{
    const CameraConnection::State state = m_connection.state();
    const QString name = DeviceList::name(m_camera);
    QString what = tr("Not connected to %1.").arg(name);
    if (state == CameraConnection::Opening) {
        what = tr("Connecting to %1…").arg(name);
    } else if (state == CameraConnection::Failed) {
        what = tr("There is no connection to %1.").arg(name);
    } else if (state == CameraConnection::Lost) {
        what = tr("The connection to %1 was lost.").arg(name);
    }
    const QString reason = m_connection.reason();
    m_noticeText->setText(reason.isEmpty() ? what : what + QStringLiteral("\n\n") + reason);
    m_stripText->setText(tr("Another program controls this camera: settings can be read, not changed."));
    for (QPushButton *button : m_reconnect) {
        button->setText(tr("&Reconnect"));
    }
    m_strip->setVisible(isReadOnly());
    m_notice->setVisible(!bareDevice());
    m_busy->setVisible(state == CameraConnection::Opening);
    m_noticeIcon->setVisible(state != CameraConnection::Opening);
    m_reconnect[1]->setVisible(state != CameraConnection::Opening);
}

void DevicePage::followConnection()
{
    const QWidget *const focused = window()->focusWidget(); // also while a dialog is in front
    const bool takesFocus = isVisible() && (!focused || isAncestorOf(focused));
    delete m_panel;
    m_panel = nullptr;
    m_acquiring = false;
    if (m_connection.state() != CameraConnection::Lost) { // somebody may be using a lost one still
        m_device.reset();
    }
    if (GenicamDevice *const bare = bareDevice()) {
        m_device = std::make_unique<TracedDevice>(
            *bare, [this](const TracedDevice::Call &call) { followCall(call); }, [this] { return lastError(); });
        m_unsaved = false;
        m_values.clear();
        readText("DeviceVendorName", m_camera.vendor);
        readText("DeviceModelName", m_camera.model);
        readText("DeviceSerialNumber", m_camera.serial);
        readAcquiring(false);
        m_panel = new VyTriggerConfigWdg(this);
        m_panel->setVyDevice(m_device.get());
        layout()->addWidget(m_panel);
    }
    retranslate();
    if (takesFocus && !m_reconnect[1]->isHidden()) {
        m_reconnect[1]->setFocus();
    }
    Q_EMIT changed();
}

void DevicePage::followCall(const TracedDevice::Call &call)
{
    m_traffic->append(call);
    // An editor writes what it shows whenever it loses the focus: only another value is a change.
    const bool isValue = call.operation != TracedDevice::GetType && call.operation != TracedDevice::GetAccessMode;
    const bool isOther = isValue && call.status == 0 && m_values.value(call.node) != call.value;
    if (isOther) {
        m_values.insert(call.node, call.value);
    }
    if (!TracedDevice::isWrite(call.operation)) {
        return;
    }
    const bool isCommand = call.operation == TracedDevice::Execute;
    if (call.status != 0) {
        const QString value =
            call.value.size() > kMaxShownValue ? call.value.left(kMaxShownValue) + QChar(0x2026) : call.value;
        Q_EMIT said(isCommand ? tr("%1 was not executed: %2").arg(call.node, call.reason)
                              : tr("%1 was not set to %2: %3").arg(call.node, value, call.reason));
    } else if (isOther && !isCommand && call.node != QLatin1String(kUserSetNode)) {
        m_unsaved = true;
    }
    Q_EMIT written();
}

/// Without the name of the node, which whoever asks knows.
QString DevicePage::lastError() const
{
    const QString error = m_connection.device() ? m_connection.device()->lastError() : QString();
    return error.mid(error.indexOf(QLatin1String(": ")) + 1).trimmed();
}

void DevicePage::readText(const char *node, QString &text) const
{
    QString value;
    if (devices()->getParamString(device(), QString::fromLatin1(node), value) == 0 && !value.isEmpty()) {
        text = value.simplified().left(kMaxName);
    }
}

void DevicePage::readAcquiring(bool otherwise)
{
    if (devices()->getParamBool(device(), QStringLiteral("AcquisitionStatus"), m_acquiring) != 0) {
        m_acquiring = otherwise;
    }
}

void DevicePage::post(const QString &event, QVariantMap payload) const
{
    payload.insert(QStringLiteral("IDevice"), QVariant::fromValue<IDevice>(device()));
    Singleton<CoreEventBus>::getInstance()->post(event, payload);
}

long DevicePage::selectUserSet(const QString &set, const char *command)
{
    long status = devices()->setParamEnum(device(), QLatin1String(kUserSetNode), set);
    if (status == 0) {
        status = devices()->executeCMD(device(), QString::fromLatin1(command));
    }
    m_unsaved = m_unsaved && status != 0;
    return status;
}

void DevicePage::finish(const QString &what, long status)
{
    if (status == 0) {
        Q_EMIT said(tr("%1: done").arg(what));
    }
}
