#include "Literal.h"

#include "gallery/Scene.h"
#include "gallery/Sketch.h"

#include <QtTest>
#include <QtWidgets>

#include <cmath>

using Fonts = std::function<void(QFont &)>;
using Change = std::function<void(QWidget &)>;
Q_DECLARE_METATYPE(Picture)
Q_DECLARE_METATYPE(Fonts)
Q_DECLARE_METATYPE(Change)

/// The panel in everything it has to look well in, at the scale that this process has.
class GalleryTest : public QObject
{
    Q_OBJECT

    static Sketch::Distance distance(const Picture &picture, Scene &scene)
    {
        return Sketch(QStringLiteral(KEPT "/%1.png").arg(QLatin1String(picture.name))).to(Sketch(scene));
    }

    /// The first visible widget of a class.
    static QWidget *part(QWidget &in, const char *type)
    {
        const auto widgets = in.findChildren<QWidget *>();
        const auto isIt = [type](const QWidget *one) { return one->inherits(type) && one->isVisible(); };
        return *std::find_if(widgets.begin(), widgets.end(), isIt);
    }
    static QLabel *label(QWidget &in) { return part(in, "ParamPageWidgetItem")->findChild<QLabel *>(); }
    static QLabel *title(QWidget &in) { return part(in, "VyViewer::VyMultiCheckTitleWidget")->findChild<QLabel *>(); }

    static void dye(QWidget *widget, QPalette::ColorRole role, const QColor &color)
    {
        QPalette colors = widget->palette();
        colors.setColor(role, color);
        widget->setPalette(colors);
    }
    static void cover(QWidget *widget, const QRect &place, const QColor &color)
    {
        auto *const patch = new QWidget(widget);
        patch->setAutoFillBackground(true);
        patch->setPalette(color);
        patch->setGeometry(place);
        patch->show();
    }

    /// Of the lightest and the darkest in a rectangle.
    static double contrast(const QImage &picture, const QRect &rect)
    {
        double light = 0;
        double dark = 1;
        const double scale = picture.devicePixelRatio();
        for (int y = qRound(rect.top() * scale); y < qRound((rect.bottom() + 1) * scale); ++y) {
            for (int x = qRound(rect.left() * scale); x < qRound((rect.right() + 1) * scale); ++x) {
                const QColor color = picture.pixelColor(x, y);
                const auto linear = [](double level) { return std::pow(level, 2.2); }; // near enough
                const double luminance = 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
                    + 0.0722 * linear(color.blueF());
                light = qMax(light, luminance);
                dark = qMin(dark, luminance);
            }
        }
        return (light + 0.05) / (dark + 0.05);
    }

    /// What a widget writes, and where it can.
    static QPair<QString, QRect> text(const QWidget *widget)
    {
        const QStyle *const style = widget->style();
        QStyleOptionComboBox box;
        box.initFrom(widget);
        QStyleOptionFrame frame;
        frame.initFrom(widget);
        if (auto *const shown = qobject_cast<const QLabel *>(widget)) {
            return {shown->text(), shown->contentsRect()};
        }
        if (auto *const combo = qobject_cast<const QComboBox *>(widget)) {
            return {combo->currentText(),
                    style->subControlRect(QStyle::CC_ComboBox, &box, QStyle::SC_ComboBoxEditField, widget)};
        }
        if (auto *const edit = qobject_cast<const QLineEdit *>(widget)) {
            frame.lineWidth = edit->hasFrame() ? style->pixelMetric(QStyle::PM_DefaultFrameWidth, &frame, widget) : 0;
            return {edit->text(), style->subElementRect(QStyle::SE_LineEditContents, &frame, widget)};
        }
        const int end = widget->height();
        return {widget->inherits("VyViewer::BlockTitleBar") ? widget->toolTip() : QString(),
                widget->rect().adjusted(end, 0, -end, 0)};
    }

    /// Whether a pointer at rest is told so.
    static bool tells(QWidget *widget, const QString &whole)
    {
        const QPoint center = widget->rect().center();
        QHelpEvent help(QEvent::ToolTip, center, widget->mapToGlobal(center));
        QCoreApplication::sendEvent(widget, &help);
        const bool isTold = QToolTip::text() == whole;
        const auto windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            window->setVisible(window->isVisible() && !window->inherits("QTipLabel"));
        }
        return isTold;
    }

    static QStringList flaws(Scene &scene, bool isCovered)
    {
        QStringList flaws;
        const QImage picture = scene.grab();
        const QWidget &panel = scene.panel();
        QSet<int> columns[5]; // of labels and editors the beginnings and widths, and where fields begin to write
        const auto found = panel.findChildren<QWidget *>();
        const QVector<QPointer<QWidget>> widgets(found.begin(), found.end()); // a tip goes when another comes
        for (QWidget *const widget : widgets) {
            if (!widget || !widget->isVisible()) {
                continue;
            }
            const auto complain = [&](bool isFlaw, const char *flaw) {
                const QLatin1String name(widget->metaObject()->className());
                flaws += isFlaw ? widget->parentWidget()->objectName() + u'/' + name + QLatin1String(flaw) : QString();
            };
            const QPoint origin = panel.mapFromGlobal(widget->mapToGlobal(QPoint()));
            const auto isSeen = [&](const QRect &place, double least) {
                return isCovered || contrast(picture, place.translated(origin)) >= least;
            };
            const auto [written, room] = text(widget);
            const auto *const edit = qobject_cast<QLineEdit *>(widget);
            if (!written.isEmpty()) {
                const QFontMetrics metrics = widget->fontMetrics();
                const int height = qMax(metrics.height(), metrics.boundingRect(written).height());
                complain(height > room.height(), " is cut in height");
                const auto *const shown = qobject_cast<QLabel *>(widget);
                const QString whole = shown && !widget->toolTip().isEmpty() ? widget->toolTip() : written;
                const bool isCut = metrics.horizontalAdvance(written) > room.width();
                complain(isCut && shown, " sticks out");
                const bool isTold = tells(widget, whole) && (!shown || whole.startsWith(written.chopped(1)));
                complain((isCut || whole != written) && !isTold, " is cut and does not tell");
                const bool isOurs = widget->isEnabled() && !(edit && edit->hasSelectedText());
                complain(!isSeen(room, isOurs ? 4.5 : 3), " is hard to read");
            }
            if (auto *const list = qobject_cast<QAbstractItemView *>(widget)) {
                for (int row = 0; row < list->model()->rowCount(); ++row) {
                    const QRect entry = list->visualRect(list->model()->index(row, 0)) & list->viewport()->rect();
                    complain(contrast(picture, entry.translated(origin)) < 4.5, " has an entry that is hard to read");
                }
            }
            const bool isSpinBox = qobject_cast<QAbstractSpinBox *>(widget);
            if (qobject_cast<QComboBox *>(widget) || isSpinBox || (edit && edit->hasFrame())) {
                const QRect side(-2, widget->height() / 2, 8, 1); // with the ground beside it
                const bool isSide = isSeen(side, 3) && isSeen(side.translated(widget->width() - 4, 0), 3);
                complain(widget->isEnabled() && !isSide, " has a frame that is hard to see");
            }
            if (edit && !widget->isRightToLeft()) {
                columns[4].insert(origin.x() + room.x() + edit->textMargins().left());
            }
            for (int i = 0; widget->inherits("ParamPageWidgetItem") && i < 2; ++i) {
                const QRect place = widget->layout()->itemAt(i)->geometry();
                columns[2 * i].insert(origin.x() + place.x());
                columns[2 * i + 1].insert(place.width());
            }
            if (widget->isWindow()) {
                continue;
            }
            complain(!widget->parentWidget()->rect().contains(widget->geometry()), " is cut off");
            for (auto *other : widget->parentWidget()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
                const bool isBeside = other != widget && other->isVisible() && !other->isWindow();
                complain(isBeside && other->geometry().intersects(widget->geometry()), " is overlapped");
            }
        }
        for (const QSet<int> &column : columns) {
            flaws += column.size() > 1 ? "column %1 is not straight"_s.arg(&column - columns) : QString();
        }
        flaws.removeAll({});
        return flaws;
    }

private Q_SLOTS:
    void looks_data()
    {
        QTest::addColumn<Picture>("picture");
        for (const Picture &picture : Picture::here()) {
            QTest::newRow(picture.name) << picture;
        }
    }
    void looks()
    {
        QFETCH(Picture, picture);
        Scene scene(picture);
        const Sketch::Distance off = distance(picture, scene);
        const QString flawed = flaws(scene, picture.state >= Picture::List).join(u'\n');
        if (!off.isSmall() || !flawed.isEmpty()) {
            const QString file = QFileInfo("gallery-%1.png"_s.arg(QLatin1String(picture.name))).absoluteFilePath();
            scene.grab().save(file);
            QFAIL(qPrintable("off: %1\n%2\nsee %3"_s.arg(off.where, flawed, file)));
        }
    }

    void otherFontsAreAlike_data()
    {
        QTest::addColumn<Fonts>("fonts");
        const auto row = [](const char *name, const Fonts &fonts) { QTest::newRow(name) << fonts; };
        row("no hinting", [](QFont &font) { font.setHintingPreference(QFont::PreferNoHinting); });
        row("full hinting", [](QFont &font) { font.setHintingPreference(QFont::PreferFullHinting); });
        row("farther apart", [](QFont &font) { font.setLetterSpacing(QFont::AbsoluteSpacing, 0.2); });
        row("closer", [](QFont &font) { font.setLetterSpacing(QFont::AbsoluteSpacing, -0.2); });
        row("wider", [](QFont &font) { font.setStretch(102); });
        row("narrower", [](QFont &font) { font.setStretch(98); });
    }
    void otherFontsAreAlike()
    {
        QFETCH(Fonts, fonts);
        for (const Picture &picture : Picture::here()) {
            if (picture.state == Picture::Idle && picture.width <= 472 && picture.colors == Picture::Light) {
                Scene scene(picture, fonts);
                const Sketch::Distance off = distance(picture, scene);
                QVERIFY2(off.isSmall(), qPrintable(QLatin1String(picture.name) + u' ' + off.where));
            }
        }
    }

    void changesAreNot_data()
    {
        QTest::addColumn<Change>("change");
        const auto row = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
        row("a margin", [](auto &in) { part(in, "ParamPageWidgetItem")->layout()->setContentsMargins(4, 0, 0, 0); });
        row("a title's colour", [](auto &in) { dye(title(in), QPalette::WindowText, QColor(0, 60, 160)); });
        row("a title's weight", [](auto &in) { title(in)->setFont(QApplication::font()); });
        row("a label's place", [](auto &in) { label(in)->move(label(in)->pos() + QPoint(6, 0)); });
        row("no knob", [](auto &in) {
            QWidget *const toggle = part(in, "VyViewer::VyToggleSwitch");
            cover(toggle, QRect(11, 6, 38, 16), toggle->palette().color(QPalette::Highlight));
        });
        row("half a text", [](auto &in) { cover(label(in), QRect(0, 17, 200, 15), Qt::white); });
        row("no text", [](auto &in) { label(in)->clear(); });
        row("no icon", [](auto &in) { cover(part(in, "VyViewer::GlyphButton"), {0, 0, 99, 99}, QColor(0xf1f3f5)); });
        row("no frame", [](auto &in) { static_cast<QLineEdit *>(part(in, "VyViewer::VyLineEdit"))->setFrame(false); });
        row("a dark field", [](auto &in) { dye(part(in, "VyViewer::VyLineEdit"), QPalette::Base, Qt::black); });
        row("not mirrored", [](auto &in) {
            in.setLayoutDirection(in.isRightToLeft() ? Qt::LeftToRight : Qt::RightToLeft);
        });
    }
    void changesAreNot()
    {
        QFETCH(Change, change);
        const auto pictures = Picture::here();
        for (const Picture &picture : pictures) {
            if (&picture == &pictures.first() || qstrcmp(picture.name, "rtl") == 0) {
                Scene scene(picture);
                change(scene.panel());
                QCoreApplication::processEvents();
                const Sketch::Distance off = distance(picture, scene);
                QVERIFY2(!off.isSmall(), qPrintable("%1: %2"_s.arg(QLatin1String(picture.name)).arg(off.look)));
            }
        }
    }
};

QTEST_MAIN(GalleryTest)
#include "GalleryTest.moc"
