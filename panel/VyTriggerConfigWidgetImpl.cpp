#include "VyTriggerConfigWidgetImpl.h"

#include "ui_VyTriggerConfigWidgetImpl.h"

#include "parampage/DeviceAccess.h"
#include "parampage/KeyboardFocus.h"
#include "parampage/ParamPageWidgetItem.h"
#include "trigger/TriggerConfigWdgImpl.h"
#include "triggerstop/TriggerStopConfigContainerWdg.h"

#include <VyCommonGUI/VyBlockWidget.h>
#include <VyViewerCore/CoreEvent.h>

#include <QEvent>

using namespace VyViewer;

VyTriggerConfigWidgetImpl::VyTriggerConfigWidgetImpl(QWidget *parent)
    : QWidget(parent)
    , m_ui(new Ui_VyTriggerConfigWidgetImpl)
{
    m_ui->setupUi(this);
    buildBlocks();

    // moc spells the signal's first argument "Device*const"; an emission on another thread looks the types of
    // its arguments up by name and would be dropped.
    qRegisterMetaType<IDevice>();
    qRegisterMetaType<IDevice>("Device*const");
    connect(DeviceAccess::service(), &IDeviceManager::deviceGrabStatusUpdate, this,
            &VyTriggerConfigWidgetImpl::onUpdateDeviceGrabStatus, Qt::UniqueConnection);
    connect(m_events.subscribe(QStringLiteral("UserSetLoad")), &CoreEvent::triggered, this,
            &VyTriggerConfigWidgetImpl::onChangeProj, Qt::UniqueConnection);
    connect(m_events.subscribe(QStringLiteral("DeviceParamChanged")), &CoreEvent::triggered, this,
            &VyTriggerConfigWidgetImpl::onDeviceParamChanged, Qt::UniqueConnection);
}

VyTriggerConfigWidgetImpl::~VyTriggerConfigWidgetImpl() = default;

void VyTriggerConfigWidgetImpl::setVyDevice(Device *device)
{
    if (!device || m_device) {
        qWarning("VyTriggerConfigWdg: %s", device ? "already bound to a device" : "cannot bind a null device");
        return;
    }
    m_device = device;
    m_triggerPage = new TriggerConfigWdgImpl(device, this);
    m_triggerBlock->setContentsWidget(m_triggerPage);
    connect(m_triggerPage, &TriggerConfigWdgImpl::triggerModeHoldRefresh, this,
            &VyTriggerConfigWidgetImpl::holdTriggerRefresh);
    m_stopContainer->setDevice(device);
    orderTabStops();
    if (isVisible()) {
        reshow(); // bound late: what a show reads has not been read
    }
}

void VyTriggerConfigWidgetImpl::holdTriggerRefresh(bool en)
{
    if (en) {
        m_stopBlock->show();
    } else {
        KeyboardFocus::hideQuietly(m_stopBlock);
    }
}

void VyTriggerConfigWidgetImpl::onUpdateDeviceGrabStatus(IDevice dev, int status)
{
    if (!m_device || dev != m_device) {
        return;
    }
    const bool acquiring = status != 0;
    m_stopBlock->blockSignals(acquiring); // its add button does nothing then
    m_triggerPage->updateWidget();
    m_stopContainer->updatePages();
    m_stopContainer->setTitlesEnabled(!m_stopBlock->signalsBlocked()); // by now maybe another state's
}

void VyTriggerConfigWidgetImpl::onChangeProj(QVariantMap payload)
{
    if (DeviceEvents::concern(payload, m_device)) {
        reshow();
    }
}

void VyTriggerConfigWidgetImpl::onDeviceParamChanged(QVariantMap payload)
{
    // The second key marks what the panel's own trigger page has posted.
    if (DeviceEvents::concern(payload, m_device) && payload.contains(QStringLiteral("TriggerMode"))
        && !payload.contains(QStringLiteral("TriggerConfigWdgImpl"))) {
        reshow();
    }
}

void VyTriggerConfigWidgetImpl::showEvent(QShowEvent *event)
{
    if (m_device) {
        // The trigger mode is locked while images are acquired, so its access mode tells, whether or not the
        // host has signalled the state that holds now.
        const QLatin1String node("InputTriggerMode");
        const bool acquiring = DeviceAccess::service()->getNodeAccessMode(m_device, node) != RuvoNodeReadWrite;
        onUpdateDeviceGrabStatus(m_device, acquiring ? 1 : 0);
        holdTriggerRefresh(DeviceAccess::currentEntry(m_device, node) == QLatin1String("Hold"));
    }
    QWidget::showEvent(event);
}

void VyTriggerConfigWidgetImpl::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        m_triggerBlock->setTitleText(tr("Trigger Config"));
        m_stopBlock->setTitleText(tr("Trigger Stop Config"));
    }
    QWidget::changeEvent(event);
}

void VyTriggerConfigWidgetImpl::buildBlocks()
{
    m_triggerBlock = new VyBlockWidget(this);
    m_triggerBlock->setTitleText(tr("Trigger Config"));
    m_triggerBlock->setExpanded(true);

    m_stopBlock = new VyBlockWidget(this);
    m_stopBlock->setTitleText(tr("Trigger Stop Config"));
    m_stopContainer = new TriggerStopConfigContainerWdg(this);
    m_stopBlock->setAddButtonVisible(true);
    m_stopBlock->setContentsWidget(m_stopContainer);
    connect(m_stopBlock, &VyBlockWidget::addButtonClicked, m_stopContainer,
            &TriggerStopConfigContainerWdg::addStopConfig);

    m_ui->scrollArea->setStyleSheet(QStringLiteral("#scrollAreaWidgetContents { background: white; }"));
    m_ui->gridLayout->addWidget(m_triggerBlock, 0, 0);
    m_ui->gridLayout->addWidget(m_stopBlock, 1, 0);
    m_stopBlock->setHidden(true);
}

/// Puts the rows and buttons behind each other as they stand on the screen. Tab stops otherwise follow the order of
/// construction: the stop block was built before the trigger rows, and maybe the host's next widgets as well.
void VyTriggerConfigWidgetImpl::orderTabStops()
{
    QWidget *last = nullptr;
    const QList<QWidget *> parts = m_ui->scrollAreaWidgetContents->findChildren<QWidget *>();
    for (QWidget *part : parts) {
        if (part->focusPolicy() & Qt::TabFocus || qobject_cast<ParamPageWidgetItem *>(part)) {
            if (last) {
                KeyboardFocus::placeBehind(last, part);
            }
            last = part;
        }
    }
}

/// Makes every page read the device again.
void VyTriggerConfigWidgetImpl::reshow()
{
    const QPointer<QWidget> focused = KeyboardFocus::giveUp(this);
    hide();
    show();
    KeyboardFocus::giveBack(focused);
}
