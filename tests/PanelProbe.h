#pragma once

#include "parampage/ParamPageWidgetItem.h"

#include <VyCommonGUI/VyComboBox.h>
#include <VyCommonGUI/VyMultiCheckTitleWidget.h>
#include <VyViewerCore/IDeviceManager.h>

#include <QAbstractButton>
#include <QLabel>
#include <QtTest>

/// Finds what a user sees of a page or panel.
namespace PanelProbe {

inline ParamPageWidgetItem *row(const QWidget *in, const QString &node)
{
    return in->findChild<ParamPageWidgetItem *>(node);
}

template <typename Editor>
Editor *editor(const QWidget *in, const QString &node)
{
    return row(in, node)->findChild<Editor *>();
}
template <typename Editor>
Editor *editor(const QWidget *in, const char *node)
{
    return editor<Editor>(in, QString::fromLatin1(node));
}

inline void choose(const QWidget *in, const char *node, const char *entry)
{
    editor<VyViewer::VyComboBox>(in, node)->setCurrentText(QString::fromLatin1(entry));
}

inline QString text(const VyViewer::VyMultiCheckTitleWidget *title)
{
    return title->findChild<QLabel *>()->text();
}

inline QStringList shownTitles(const QWidget *in)
{
    QStringList titles;
    for (const auto *title : in->findChildren<VyViewer::VyMultiCheckTitleWidget *>()) {
        if (title->isVisible()) {
            titles.append(text(title));
        }
    }
    return titles;
}

/// Tells the panels that a device starts (not 0) or stops acquiring.
inline void grab(Device *device, int status)
{
    Q_EMIT VyViewer::Singleton<VyViewer::IDeviceManager>::getInstance()->deviceGrabStatusUpdate(device, status);
}

/// Clicks the visible button whose tool tip begins so.
inline void click(const QWidget *in, const char *toolTip)
{
    for (auto *button : in->findChildren<QAbstractButton *>()) {
        if (button->toolTip().startsWith(QLatin1String(toolTip)) && button->isVisible()) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    QFAIL("no such button");
}

} // namespace PanelProbe
