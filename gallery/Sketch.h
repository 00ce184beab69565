#pragma once

#include <QImage>
#include <QRect>
#include <QString>
#include <QVector>

class Scene;

/// A picture in small, and where things stand in it: alike under another version of a font, but not after a change that
/// a user sees.
class Sketch
{
public:
    struct Distance
    {
        int place; // pixels, by which a thing is off; very many where there is another thing
        int look;  // levels of colour, summed up over squares side by side
        bool isSmall() const { return place <= 2 && look <= 95; }
        QString where;
    };

    explicit Sketch(Scene &scene);
    /// As it was saved; with nothing in it if it was not.
    explicit Sketch(const QString &fileName);
    bool save(const QString &fileName) const;

    /// From what is kept to what is seen now.
    Distance to(const Sketch &now) const;

private:
    struct Thing
    {
        QString name;
        QRect place;
    };

    QImage smeared(const QVector<QRect> &texts) const;

    QImage m_squares; // the mean colour of each
    QVector<Thing> m_things;
    QVector<QRect> m_texts; // in squares; not saved
};
