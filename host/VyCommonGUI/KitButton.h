#pragma once

#include <QAbstractButton>
#include <QPen>

class QPainter;

namespace VyViewer {

/// What the kit's painted buttons share: the ground that shows hover, press and focus, and Return and Enter
/// as well as Space to click.
class KitButton : public QAbstractButton
{
    Q_OBJECT
public:
    explicit KitButton(QWidget *parent);
    ~KitButton() override;

    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The texts have to be set again.
    void languageChanged();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

    /// `rest` is the colour of the ground while nothing happens.
    void paintGround(QPainter &painter, const QColor &rest, qreal radius) const;
    QPen strokePen() const;
};

} // namespace VyViewer
