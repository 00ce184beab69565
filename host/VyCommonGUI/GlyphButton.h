#pragma once

#include "KitButton.h"

namespace VyViewer {

/// A small square button with a painted sign.
class GlyphButton : public KitButton
{
    Q_OBJECT
public:
    enum class Glyph { Plus, Cross };

    GlyphButton(Glyph glyph, QWidget *parent);
    ~GlyphButton() override;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const Glyph m_glyph;
};

} // namespace VyViewer
