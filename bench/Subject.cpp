#include "Subject.h"

#include "BenchCamera.h"
#include "FloorForm.h"
#include "MemoryDevice.h"

#include "panel/VyTriggerConfigWdg.h"
#include "parampage/ParamPageWidget.h"
#include "parampage/ParamPageWidgetItem.h"

#include <VyCommonGUI/VyBlockWidget.h>
#include <VyCommonGUI/VyScrollArea.h>

#include <QVBoxLayout>

#include <QPointer>

namespace {

constexpr QSize kSize(472, 552); // the panel's own, where a host gives it no other

Nodes nodesOf(int times)
{
    return times == 0 ? Nodes::complete() : Nodes::onePage(times);
}

Subject floor(int times)
{
    const auto nodes = std::make_shared<Nodes>(nodesOf(times));
    const auto form = std::make_shared<QPointer<FloorForm>>();
    return {[nodes, form] {
                auto built = std::make_unique<FloorForm>(*nodes);
                built->resize(kSize);
                *form = built.get();
                return built;
            },
            [form](bool all) { all ? (*form)->refreshAll() : (*form)->refresh(0); }, [nodes] { nodes->change(); },
            [nodes, form](bool follow) {
                (*form)->followsSource = follow;
                nodes->offer(follow ? nodes->chosenSource() : QString());
                (*form)->refreshAll();
            }};
}

/// A panel of one page with any number of rows, put together of the panel's own parts.
std::unique_ptr<QWidget> buildPage(MemoryDevice &device)
{
    auto form = std::make_unique<QWidget>();
    auto *const area = new VyViewer::VyScrollArea(form.get());
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setStyleSheet(QStringLiteral("#scrollAreaWidgetContents { background: white; }"));
    auto *const contents = new QWidget;
    contents->setObjectName(QStringLiteral("scrollAreaWidgetContents"));
    auto *const blocks = new QVBoxLayout(contents);
    auto *const block = new VyViewer::VyBlockWidget(contents);
    auto *const page = new ParamPageWidget(&device, block);
    for (const Node &node : device.nodes.pages.front()) {
        page->addItem(new ParamPageWidgetItem(&device, node.label, node.name, page));
    }
    block->setContentsWidget(page);
    blocks->addWidget(block);
    blocks->addStretch();
    area->setWidget(contents);
    auto *const layout = new QVBoxLayout(form.get());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area);
    return form;
}

/// Refreshes the pages of the form built last, of which `pages` holds them.
std::function<void(bool)> refresher(const std::shared_ptr<QList<ParamPageWidget *>> &pages)
{
    return [pages](bool all) {
        for (int i = 0; i < (all ? pages->size() : 1); ++i) {
            pages->at(i)->updateWidget();
        }
    };
}

std::unique_ptr<QWidget> prepared(std::unique_ptr<QWidget> form, QList<ParamPageWidget *> &pages)
{
    form->resize(kSize);
    pages = form->findChildren<ParamPageWidget *>();
    return form;
}

std::unique_ptr<QWidget> buildPanel(Device *device)
{
    auto panel = std::make_unique<VyTriggerConfigWdg>();
    panel->setVyDevice(device);
    return panel;
}

Subject panel(int times)
{
    const auto device = std::make_shared<MemoryDevice>(nodesOf(times));
    const auto pages = std::make_shared<QList<ParamPageWidget *>>();
    const auto refresh = refresher(pages);
    return {[device, pages, times] {
                return prepared(times == 0 ? buildPanel(device.get()) : buildPage(*device), *pages);
            },
            refresh, [device] { device->nodes.change(); },
            [device, refresh](bool follow) {
                device->followsSource = follow;
                device->nodes.offer(follow ? device->nodes.chosenSource() : QString());
                refresh(true);
            },
            [device] { return DeviceUse{device->calls}; }};
}

Subject panelOnCamera(BenchCamera::Place place)
{
    const auto camera = std::make_shared<BenchCamera>(place);
    const auto pages = std::make_shared<QList<ParamPageWidget *>>();
    Subject subject{[camera, pages] { return prepared(buildPanel(camera->device()), *pages); }, refresher(pages)};
    subject.device = [camera] { return camera->use(); };
    return subject;
}

} // namespace

Subject Subject::named(const QString &name, int times)
{
    if (name == QLatin1String("camera")) {
        return panelOnCamera(BenchCamera::Place::Process);
    }
    if (name == QLatin1String("network")) {
        return panelOnCamera(BenchCamera::Place::Network);
    }
    if (name == QLatin1String("uncached")) {
        return panelOnCamera(BenchCamera::Place::Uncached);
    }
    Subject subject = name == QLatin1String("floor") ? floor(times) : panel(times);
    if (times != 0) {
        subject.number = "TriggerUdpPort";
    }
    return subject;
}
