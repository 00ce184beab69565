#include "TriggerStopConfigContainerWdg.h"

#include "TriggerStopConfigWdg.h"

#include "parampage/DeviceAccess.h"
#include "parampage/DeviceEvents.h"
#include "parampage/KeyboardFocus.h"

#include <QGridLayout>

#include <algorithm>

namespace {
constexpr int kPageCount = 5;
}

TriggerStopConfigContainerWdg::TriggerStopConfigContainerWdg(QWidget *parent)
    : QWidget(parent)
    , m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
}

TriggerStopConfigContainerWdg::~TriggerStopConfigContainerWdg() = default;

void TriggerStopConfigContainerWdg::setDevice(Device *device)
{
    m_device = device;
    for (int i = 0; i < kPageCount; ++i) {
        auto *const page = new TriggerStopConfigWdg(i + 1, device, this);
        m_grid->addWidget(page, i, 0);
        m_pages.append(page);
    }
}

void TriggerStopConfigContainerWdg::addStopConfig()
{
    const auto hidden = std::find_if(m_pages.cbegin(), m_pages.cend(),
                                     [](const TriggerStopConfigWdg *page) { return page->isHidden(); });
    if (hidden == m_pages.cend()) {
        return;
    }
    const int number = static_cast<int>(hidden - m_pages.cbegin()) + 1;
    if (number != 1) { // the first configuration has no switch
        DeviceAccess::service()->setParamBool(m_device, TriggerStopConfigWdg::enableNode(number), true);
    }
    (*hidden)->setVisible(true);

    const QString event = QStringLiteral("TriggerStopConditionEvent");
    QVariantMap payload = DeviceEvents::payload(m_device);
    payload.insert(event, QString());
    DeviceEvents::post(event, payload);
}

void TriggerStopConfigContainerWdg::updatePages()
{
    for (TriggerStopConfigWdg *page : qAsConst(m_pages)) {
        page->updateWidget();
    }
}

void TriggerStopConfigContainerWdg::setTitlesEnabled(bool enabled)
{
    for (TriggerStopConfigWdg *page : qAsConst(m_pages)) {
        page->setTitleEnabled(enabled);
    }
}

void TriggerStopConfigContainerWdg::showEvent(QShowEvent *event)
{
    for (int i = 1; i < m_pages.size(); ++i) {
        bool enabled = false;
        DeviceAccess::service()->getParamBool(m_device, TriggerStopConfigWdg::enableNode(i + 1), enabled);
        if (enabled) {
            m_pages.at(i)->show();
        } else {
            KeyboardFocus::hideQuietly(m_pages.at(i));
        }
    }
    QWidget::showEvent(event);
}
