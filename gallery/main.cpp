#include "Scene.h"
#include "Sketch.h"

#include <QApplication>
#include <QDir>

#include <cstdio>
#include <cstring>

// Renders the pictures at the scale of this process into a folder, with a sheet of all there are; or, after --keep, in
// small, as that with which the tests compare from now on.

namespace {

void writeSheet(QFile &&sheet)
{
    sheet.open(QIODevice::WriteOnly);
    sheet.write("<!DOCTYPE html><meta charset=utf-8><title>The panel</title>\n<style>body { background: #777 }\n"
                "figure { display: inline-block; margin: 8px; vertical-align: top } img { width: 100% }</style>\n");
    for (const Picture &picture : Picture::all()) {
        sheet.write(qPrintable(QStringLiteral("<figure style='width: %2px'><a href=%1.png><img src=%1.png></a>"
                                              "<figcaption>%1</figcaption></figure>\n")
                                   .arg(QLatin1String(picture.name))
                                   .arg(picture.width)));
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication::setAttribute(Qt::AA_Use96Dpi); // as tests have it
    const QApplication application(argc, argv);
    const bool isKept = argc == 3 && std::strcmp(argv[1], "--keep") == 0;
    const QString folder = QString::fromLocal8Bit(argv[argc - 1]);
    try {
        if (argc != (isKept ? 3 : 2) || !QDir().mkpath(folder)) {
            throw QStringLiteral("no folder to write to");
        }
        const QVector<Picture> pictures = Picture::here();
        for (const Picture &picture : pictures) {
            Scene scene(picture);
            const QString file = QStringLiteral("%1/%2.png").arg(folder, QLatin1String(picture.name));
            if (!(isKept ? Sketch(scene).save(file) : scene.grab().save(file))) {
                throw QStringLiteral("cannot write ") + file;
            }
        }
    } catch (const QString &error) {
        std::fprintf(stderr, "panel_gallery: %s\n", qPrintable(error));
        return 1;
    }
    if (!isKept) {
        writeSheet(folder + QStringLiteral("/index.html"));
    }
    return 0;
}
