#pragma once

#include <QVector>

/// One picture of the gallery: what surrounds the panel, and what it shows.
struct Picture
{
    enum Colors { Light, Dark, HighContrast };
    /// Idle, or besides: acquiring images, a text being edited, an open list, a tool tip.
    enum State { Idle, Acquiring, Editing, List, Tip };

    const char *name;
    int points; // of the font
    int scale;  // per cent
    int width;
    Colors colors;
    const char *style;
    Qt::LayoutDirection direction;
    const char *language;
    const char *source; // the trigger source
    State state;

    static const QVector<Picture> &all();
    /// Those at the scale that this process has.
    static QVector<Picture> here();
};
