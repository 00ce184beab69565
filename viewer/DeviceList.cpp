#include "DeviceList.h"

#include "DeviceText.h"

#include <QAction>
#include <QEvent>
#include <QGuiApplication>
#include <QPainter>

namespace {

constexpr int kIconSize = 16; // pixels at 100 %

struct Item final : QListWidgetItem
{
    using QListWidgetItem::QListWidgetItem;
    Q_DISABLE_COPY(Item)

    void update()
    {
        setText(DeviceList::details(camera, state));
        setToolTip(DeviceText::toolTip(text()));
        setIcon(DeviceList::icon(state));
    }

    DeviceList::Camera camera;
    DeviceList::State state = DeviceList::NotOpen;
};

Item *toItem(QListWidgetItem *item)
{
    return static_cast<Item *>(item); // the list has no others
}

} // namespace

DeviceList::DeviceList(QWidget *parent)
    : QListWidget(parent)
    , m_open(new QAction(this))
    , m_remove(new QAction(this))
{
    setObjectName(QStringLiteral("deviceList"));
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame);
    setSpacing(1);

    m_open->setObjectName(QStringLiteral("openDevice"));
    m_remove->setObjectName(QStringLiteral("removeDevice"));
    m_remove->setShortcut(QKeySequence::Delete);
    m_remove->setShortcutContext(Qt::WidgetShortcut);
    addActions({m_open, m_remove});
    setContextMenuPolicy(Qt::ActionsContextMenu);
    const auto choose = [this](QListWidgetItem *item) { Q_EMIT chosen(toItem(item)->camera.address); };
    connect(this, &QListWidget::itemActivated, this, choose);
    connect(m_open, &QAction::triggered, this, [this, choose] { choose(currentItem()); });
    connect(m_remove, &QAction::triggered, this, [this] { delete currentItem(); });
    connect(this, &QListWidget::currentItemChanged, this, &DeviceList::updateActions);

    setCamera({});
    setCurrentRow(0);
    retranslate();
}

QString DeviceList::name(const Camera &camera)
{
    QString name = QStringLiteral("%1 %2").arg(camera.model, camera.serial).trimmed();
    if (!name.isEmpty()) {
        return name;
    }
    return camera.address.isEmpty() ? tr("Built-in camera") : camera.address;
}

QString DeviceList::details(const Camera &camera, State state)
{
    const QString address = camera.address.isEmpty() ? tr("Built-in camera") : camera.address;
    QStringList lines{name(camera)};
    lines.append(lines.constFirst() == address ? text(state) : tr("%1 – %2").arg(address, text(state)));
    if (!camera.vendor.isEmpty()) {
        lines.append(camera.vendor);
    }
    return lines.join(QLatin1Char('\n'));
}

QString DeviceList::text(State state)
{
    switch (state) {
    case NotOpen:
    case Failed:
        break;
    case Connecting:
        return tr("connecting…");
    case Connected:
        return tr("connected");
    case ReadOnly:
        return tr("read-only");
    case Acquiring:
        return tr("acquiring");
    case Lost:
        return tr("lost");
    }
    return tr("not connected");
}

QIcon DeviceList::icon(State state)
{
    static constexpr QRgb kColours[] = {0xffa0a0a0, 0xff6fa8d6, 0xffd03a32, 0xff3c9d4b,
                                        0xffe0a020, 0xff2f6fd0, 0xffd03a32}; // in the order of the states
    const QColor colour(kColours[state]);
    QPixmap pixmap(QSize(kIconSize, kIconSize) * qGuiApp->devicePixelRatio());
    pixmap.setDevicePixelRatio(qGuiApp->devicePixelRatio());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 4)); // seen on the colour of the selection only
    painter.drawEllipse(QRectF(4, 4, kIconSize - 8, kIconSize - 8));
    painter.setPen(QPen(colour, 2));
    painter.setBrush(state >= Connected ? colour : QColor(Qt::white));
    painter.drawEllipse(QRectF(4, 4, kIconSize - 8, kIconSize - 8));
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected); // not tinted
    return icon;
}

bool DeviceList::setCamera(const Camera &camera)
{
    Item *item = toItem(itemFor(camera.address));
    bool isNews = !item;
    if (!item) {
        item = new Item(this);
        item->camera.address = camera.address;
    }
    for (QString Camera::*text : {&Camera::vendor, &Camera::model, &Camera::serial}) {
        if (!(camera.*text).isEmpty() && item->camera.*text != camera.*text) {
            item->camera.*text = camera.*text;
            isNews = true;
        }
    }
    item->update();
    return isNews;
}

void DeviceList::setState(const QString &address, State state)
{
    if (Item *const item = toItem(itemFor(address))) {
        item->state = state;
        item->update();
    }
    updateActions();
}

void DeviceList::setCurrentCamera(const QString &address)
{
    setCurrentItem(itemFor(address));
}

DeviceList::Camera DeviceList::camera(const QString &address) const
{
    const Item *const found = toItem(itemFor(address));
    return found ? found->camera : Camera{address, {}, {}, {}};
}

QVector<DeviceList::Camera> DeviceList::cameras() const
{
    QVector<Camera> cameras;
    for (int row = 0; row < count(); ++row) {
        cameras.append(toItem(item(row))->camera);
    }
    return cameras;
}

void DeviceList::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QListWidget::changeEvent(event);
}

QListWidgetItem *DeviceList::itemFor(const QString &address) const
{
    for (int row = 0; row < count(); ++row) {
        if (toItem(item(row))->camera.address == address) {
            return item(row);
        }
    }
    return nullptr;
}

void DeviceList::retranslate()
{
    m_open->setText(tr("&Open"));
    m_remove->setText(tr("&Remove from the list"));
    for (int row = 0; row < count(); ++row) {
        toItem(item(row))->update();
    }
}

void DeviceList::updateActions()
{
    const Item *const item = toItem(currentItem());
    m_open->setEnabled(item);
    m_remove->setEnabled(item && !item->camera.address.isEmpty() && item->state == NotOpen);
}
