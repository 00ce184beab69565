#pragma once

#include "Picture.h"

#include "devices/GenicamDevice.h"
#include "panel/VyTriggerConfigWdg.h"

#include <QFont>
#include <QTranslator>

#include <functional>
#include <memory>

/// The panel of one picture on a simulated camera, on the screen at its full height. One at a time: font, colours,
/// style and language are the application's.
class Scene
{
public:
    /// Throws a QString. `change` is for those who want to see what another font does.
    explicit Scene(const Picture &picture, const std::function<void(QFont &)> &change = {});
    ~Scene();

    VyTriggerConfigWdg &panel() { return *m_panel; }
    /// With all that lies above it.
    QImage grab();

private:
    Q_DISABLE_COPY(Scene)
    void surround(const std::function<void(QFont &)> &change);
    void bind();
    void show();
    void bringAbout(Picture::State state);

    const Picture m_picture;
    QTranslator m_texts;
    std::unique_ptr<GenicamDevice> m_camera;
    std::unique_ptr<VyTriggerConfigWdg> m_panel;
};
