#pragma once

#include "devices/CameraFinder.h"

#include <QIcon>
#include <QListWidget>

class QAction;

/// The cameras that are known, the built-in one first, each with its name, its address and what is going on with it.
class DeviceList : public QListWidget
{
    Q_OBJECT
public:
    using Camera = CameraFinder::Camera; // known by its address, which is empty for the built-in one

    enum State {
        NotOpen,
        Connecting,
        Failed, ///< open, but there is no connection
        Connected,
        ReadOnly,
        Acquiring,
        Lost
    };

    explicit DeviceList(QWidget *parent = nullptr);

    /// Model and serial number, or the address until these are known.
    static QString name(const Camera &camera);
    /// All there is to say, line by line.
    static QString details(const Camera &camera, State state);
    static QString text(State state);
    static QIcon icon(State state);

    /// Adds the camera, or brings up to date what is known of it. Empty texts tell nothing new. Returns whether
    /// there was news.
    bool setCamera(const Camera &camera);
    /// Of a camera that is in the list.
    void setState(const QString &address, State state);

    void setCurrentCamera(const QString &address);
    Camera camera(const QString &address) const;
    QVector<Camera> cameras() const;

Q_SIGNALS:
    /// The user wants to see this camera's settings.
    void chosen(const QString &address);

protected:
    void changeEvent(QEvent *event) override;

private:
    QListWidgetItem *itemFor(const QString &address) const;
    void retranslate();
    void updateActions();

    QAction *m_open;   // child
    QAction *m_remove; // child
};
