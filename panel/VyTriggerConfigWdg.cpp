#include "VyTriggerConfigWdg.h"

#include "VyTriggerConfigWidgetImpl.h"

#include "parampage/KeyboardFocus.h"

#include <QVBoxLayout>

struct VyTriggerConfigWdgPrivate
{
    VyTriggerConfigWidgetImpl *impl = new VyTriggerConfigWidgetImpl(nullptr); // child of the facade
};

VyTriggerConfigWdg::VyTriggerConfigWdg(QWidget *parent)
    : QWidget(parent)
    , d(new VyTriggerConfigWdgPrivate)
{
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(d->impl);
    layout->setContentsMargins(0, 0, 0, 0);
}

VyTriggerConfigWdg::~VyTriggerConfigWdg()
{
    KeyboardFocus::giveUp(this); // destroying the panel is not the end of an edit
}

void VyTriggerConfigWdg::setVyDevice(Device *device)
{
    d->impl->setVyDevice(device);
}
