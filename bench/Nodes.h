#pragma once

#include <VyViewerCore/RuvoNode.h>

#include <QList>
#include <QString>

#include <vector>

/// A node of the device in memory, and what stands for it in the array that the floor shows.
struct Node
{
    static constexpr int kMaximum = 65535; // of a number; the minimum is 0, the increment 1

    QString name;
    QString label;
    RuvoNodeType type = RuvoNodeBoolean;
    QString source; // the trigger source it belongs to; empty: to none
    bool available = true;

    int integer = 0;
    float real = 0;
    bool flag = false;
    QString text; // of a string or an enumeration
    QList<QString> entries;

    /// Gives it another value within its range. The trigger mode stays, on which it depends what there is to see.
    void change();
};

/// The nodes of each page, in the order of its rows. Every one can be read and written.
struct Nodes
{
    using Page = std::vector<Node>;
    std::vector<Page> pages;

    /// The trigger page and the five stop configurations, in the mode "Hold".
    static Nodes complete();
    /// The trigger page alone, its rows so many times over.
    static Nodes onePage(int times);

    /// Gives every node another value.
    void change();
    QString chosenSource() const { return pages.front().at(1).text; }
    /// Leaves available what belongs to this source; to none: everything.
    void offer(const QString &source);
};
