#include "Scene.h"

#include <VyViewerCore/IDeviceManager.h>
#include <VyViewerCore/Singleton.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScrollArea>
#include <QStyleFactory>
#include <QToolTip>

namespace {

QPalette palette(Picture::Colors colors)
{
    if (colors == Picture::Light) {
        const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("Fusion")));
        return fusion->standardPalette();
    }
    const bool isDark = colors == Picture::Dark;
    const QColor ground = isDark ? QColor(45, 45, 45) : QColor(Qt::black);
    QPalette palette(isDark ? QColor(60, 60, 60) : QColor(Qt::black), ground);
    palette.setColor(QPalette::Base, isDark ? QColor(30, 30, 30) : QColor(Qt::black));
    palette.setColor(QPalette::Highlight, isDark ? QColor(42, 130, 218) : QColor(26, 235, 255));
    palette.setColor(QPalette::HighlightedText, Qt::black);
    palette.setColor(QPalette::Link, isDark ? QColor(42, 130, 218) : QColor(Qt::yellow));
    palette.setColor(QPalette::ToolTipBase, ground);
    palette.setColor(QPalette::ToolTipText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::Text, isDark ? QColor(127, 127, 127) : QColor(63, 242, 63));
    return palette;
}

} // namespace

Scene::Scene(const Picture &picture, const std::function<void(QFont &)> &change)
    : m_picture(picture)
{
    surround(change);
    bind();
    show();
    bringAbout(picture.state);
}

Scene::~Scene()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        window->hide(); // a tip would by itself stay for a while
    }
    m_panel.reset();
    QCoreApplication::removeTranslator(&m_texts);
}

QImage Scene::grab()
{
    QPixmap picture = m_panel->grab();
    QPainter painter(&picture);
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible() && window != m_panel.get()) {
            painter.drawPixmap(window->pos() - m_panel->pos(), window->grab());
        }
    }
    return picture.toImage();
}

void Scene::surround(const std::function<void(QFont &)> &change)
{
    QFont font(QStringLiteral("DejaVu Sans"), m_picture.points);
    if (change) {
        change(font);
    }
    QApplication::setCursorFlashTime(0); // else a cursor is there or not
    QApplication::setStyle(QString::fromLatin1(m_picture.style));
    QApplication::setPalette(palette(m_picture.colors));
    QApplication::setFont(font);
    const QString folder = QStringLiteral(":/VyTriggerConfigWdg");
    const QString language = QString::fromLatin1(m_picture.language);
    if (m_texts.load(QStringLiteral("trigger_") + language, folder)) {
        QCoreApplication::installTranslator(&m_texts);
    } else if (language != QLatin1String("en")) {
        throw QStringLiteral("there is no language %1").arg(language);
    }
    QApplication::setLayoutDirection(m_picture.direction); // a language has brought its own
}

void Scene::bind()
{
    QString error;
    m_camera = GenicamDevice::openBuiltIn({}, &error, [] { return 0; });
    const auto choose = [this](const char *node, const char *entry) {
        return m_camera->setParamEnum(QString::fromLatin1(node), QString::fromLatin1(entry)) == 0;
    };
    if (!m_camera || !choose("InputTriggerMode", "Hold") || !choose("InputTriggerSource", m_picture.source)
        || m_camera->setParamBool(QStringLiteral("TriggerStopConfig2Enable"), true) != 0
        || !choose("TriggerStopConfig2Condtion", "Command")
        || (m_picture.state == Picture::Acquiring && m_camera->executeCMD(QStringLiteral("AcquisitionStart")) != 0)) {
        throw m_camera ? m_camera->lastError() : error;
    }
    m_panel = std::make_unique<VyTriggerConfigWdg>();
    m_panel->setVyDevice(m_camera.get());
}

void Scene::show()
{
    m_panel->resize(m_picture.width, 552);
    m_panel->show();
    const auto *const area = m_panel->findChild<QScrollArea *>();
    for (int missing = 1; missing != 0; m_panel->resize(m_picture.width, m_panel->height() + missing)) {
        for (int i = 0; i < 10; ++i) { // a layout may take several rounds
            QCoreApplication::processEvents();
        }
        missing = area->widget()->minimumSizeHint().height() - area->viewport()->height();
    }
    QApplication::setActiveWindow(m_panel.get());
    if (QWidget *const focused = QApplication::focusWidget()) {
        focused->clearFocus();
    }
}

void Scene::bringAbout(Picture::State state)
{
    const auto find = [this](const char *row) { return m_panel->findChild<QWidget *>(QString::fromLatin1(row)); };
    switch (state) {
    case Picture::Idle:
    case Picture::Acquiring:
        break;
    case Picture::Editing: {
        auto *const edit = find("TriggerTcpServerStartCMD")->findChild<QLineEdit *>();
        edit->setFocus();
        edit->selectAll();
        break;
    }
    case Picture::List:
        find("InputTriggerSource")->findChild<QComboBox *>()->showPopup();
        break;
    case Picture::Tip: {
        auto *const label = find("TriggerTcpServerStorageImageCMD")->findChild<QLabel *>();
        QToolTip::showText(label->mapToGlobal(label->rect().center()), label->toolTip(), label);
        break;
    }
    }
    QCoreApplication::processEvents();
}
