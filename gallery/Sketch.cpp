#include "Sketch.h"

#include "Scene.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int kSquare = 8;   // device-independent pixels
constexpr int kVisible = 8;  // levels; what differs by less does not count
constexpr int kLetters = 24; // the same for a line of text, which another hinting makes lighter or darker
constexpr int kTint = 3;     // times; letters have no tint of their own
constexpr int kMargin = 5;   // pixels, by which a text may be longer or shorter
constexpr char kThings[] = "Things";

/// Where a widget has written, or nothing.
QRect textOf(const QWidget *widget)
{
    QString text;
    QRect room = widget->rect().adjusted(2, 4, -2, -4);
    bool startsRight = widget->isRightToLeft();
    if (const auto *const label = qobject_cast<const QLabel *>(widget)) {
        text = std::max(label->text(), label->toolTip(), [](auto &one, auto &two) { return one.size() < two.size(); });
        room = widget->rect().adjusted(-kMargin, 0, kMargin, 0);
    } else if (const auto *const edit = qobject_cast<const QLineEdit *>(widget)) {
        text = edit->text();
        startsRight = false;
    } else if (const auto *const box = qobject_cast<const QComboBox *>(widget)) {
        text = box->currentText();
    } else if (widget->inherits("VyViewer::BlockTitleBar")) {
        text = widget->toolTip();
        room = widget->rect().adjusted(room.height(), 4, -room.height(), -4);
    } else {
        return widget->isWindow() ? widget->rect() : QRect(); // a list or a tip
    }
    const int width = qMin(room.width(), widget->fontMetrics().horizontalAdvance(text) + 2 * kMargin);
    const int height = qMin(room.height(), widget->fontMetrics().height());
    return {startsRight ? room.right() + 1 - width : room.left(), room.center().y() - height / 2, width, height};
}

/// Things whose place does not depend on the length of a text.
bool isThing(const QWidget *widget)
{
    // clang-format off
    static const char *const kClasses[] = {
        "QComboBox", "QAbstractSpinBox", "QAbstractButton", "VyViewer::VyLineEdit", "VyViewer::VyToggleSwitch",
        "VyViewer::VyMultiCheckTitleWidget"};
    // clang-format on
    return std::any_of(std::begin(kClasses), std::end(kClasses), [&](auto name) { return widget->inherits(name); });
}

int difference(QRgb one, QRgb two)
{
    const int red = qRed(one) - qRed(two);
    const int green = qGreen(one) - qGreen(two);
    const int blue = qBlue(one) - qBlue(two);
    return std::max({std::abs(green), kTint * std::abs(red - green), kTint * std::abs(blue - green)});
}

} // namespace

Sketch::Sketch(Scene &scene)
{
    QImage picture = scene.grab();
    const int side = qRound(kSquare * picture.devicePixelRatio());
    picture.setDevicePixelRatio(1);
    const QSize size = (picture.size() + QSize(side - 1, side - 1)) / side;
    m_squares = picture.copy(QRect(QPoint(), size * side)).scaled(size, {}, Qt::SmoothTransformation);

    const QWidget &panel = scene.panel();
    const QWidgetList widgets = panel.findChildren<QWidget *>() + QApplication::topLevelWidgets();
    for (const QWidget *widget : widgets) {
        const QPoint at = panel.mapFromGlobal(widget->mapToGlobal(QPoint()));
        const QRect text = textOf(widget).translated(at);
        if (!widget->isVisible() || widget == &panel) {
            continue;
        }
        if (!text.isEmpty()) {
            const QRect squares(text.topLeft() / kSquare, text.bottomRight() / kSquare);
            m_texts.append(squares.intersected(m_squares.rect()));
        }
        const QString row = widget->parentWidget() ? widget->parentWidget()->objectName() : QString();
        if (isThing(widget) || (qobject_cast<const QLabel *>(widget) && !row.isEmpty())) {
            m_things.append(
                {QLatin1String(widget->metaObject()->className()) + QLatin1Char('/') + row, {at, widget->size()}});
        }
    }
}

Sketch::Sketch(const QString &fileName)
    : m_squares(fileName)
{
    const QStringList lines = m_squares.text(QLatin1String(kThings)).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const QStringList parts = line.split(QLatin1Char(' '));
        const auto number = [&](int i) { return parts.value(i).toInt(); };
        m_things.append({parts.first(), {number(1), number(2), number(3), number(4)}});
    }
}

bool Sketch::save(const QString &fileName) const
{
    QStringList lines;
    for (const Thing &thing : m_things) {
        const QRect &place = thing.place;
        lines.append(QStringLiteral("%1 %2 %3 %4 %5")
                         .arg(thing.name)
                         .arg(place.x())
                         .arg(place.y())
                         .arg(place.width())
                         .arg(place.height()));
    }
    QImage squares = m_squares.convertToFormat(QImage::Format_RGB32);
    squares.setText(QLatin1String(kThings), lines.join(QLatin1Char('\n')));
    return squares.save(fileName);
}

Sketch::Distance Sketch::to(const Sketch &now) const
{
    Distance distance{};
    for (int i = 0; i < std::max(m_things.size(), now.m_things.size()); ++i) {
        const Thing one = m_things.value(i);
        const Thing two = now.m_things.value(i);
        const QRect by(two.place.topLeft() - one.place.topLeft(), two.place.size() - one.place.size());
        const int off = one.name != two.name
            ? 9999
            : std::max({std::abs(by.x()), std::abs(by.y()), std::abs(by.width()), std::abs(by.height())});
        if (off > distance.place) {
            distance.place = off;
            distance.where += QStringLiteral("%1 by %2 pixels; ").arg(two.name).arg(off);
        }
    }
    if (m_squares.size() != now.m_squares.size()) {
        return distance;
    }

    const QImage one = smeared(now.m_texts);
    const QImage two = now.smeared(now.m_texts);
    const int width = one.width();
    QVector<int> levels;
    for (int i = 0; i < width * one.height(); ++i) {
        const QPoint at(i % width, i / width);
        const bool isText =
            std::any_of(now.m_texts.begin(), now.m_texts.end(), [&](auto &text) { return text.contains(at); });
        const int level = difference(one.pixel(at), two.pixel(at));
        levels.append(level < (isText ? kLetters : kVisible) ? 0 : level);
    }
    for (int i = 0; i < levels.size(); ++i) {
        int sum = 0; // of all that differs side by side: it is one thing
        QVector<int> next{i};
        while (!next.isEmpty()) {
            const int at = next.takeLast();
            if (levels.value(at) > 0) {
                sum += levels.at(at);
                levels[at] = 0;
                next << at - 1 << at + 1 << at - width << at + width;
            }
        }
        if (sum > distance.look) {
            distance.look = sum;
            distance.where +=
                QStringLiteral("%1, %2 by %3; ").arg(i % width * kSquare).arg(i / width * kSquare).arg(sum);
        }
    }
    return distance;
}

/// With the letters of each line wiped into one colour, on which their places have no influence.
QImage Sketch::smeared(const QVector<QRect> &texts) const
{
    QImage picture = m_squares;
    QPainter painter(&picture);
    for (const QRect &text : texts) {
        for (int y = text.top(); y <= text.bottom(); ++y) {
            const QRect line(text.left(), y, text.width(), 1);
            painter.fillRect(line, m_squares.copy(line).scaled(1, 1, {}, Qt::SmoothTransformation).pixelColor(0, 0));
        }
    }
    return picture;
}
