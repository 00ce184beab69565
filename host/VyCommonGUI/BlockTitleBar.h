#pragma once

#include "KitButton.h"

namespace VyViewer {

class GlyphButton;

/// The title bar of a block: one wide button that expands and collapses, with an add button at its end.
class BlockTitleBar : public KitButton
{
    Q_OBJECT
public:
    explicit BlockTitleBar(QWidget *parent);
    ~BlockTitleBar() override;

    /// The title is no button text: an ampersand in it stands for itself.
    void setTitle(const QString &title);
    QString title() const { return m_title; }
    void setExpanded(bool expanded);
    bool isExpanded() const { return m_expanded; }
    GlyphButton *addButton() const { return m_addButton; }

    QSize sizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect titleRect() const; // as in a left-to-right layout
    QString shownTitle() const;
    void paintChevron(QPainter &painter, const QRectF &space) const;

    GlyphButton *const m_addButton; // child
    QString m_title;
    bool m_expanded = true;
};

} // namespace VyViewer
