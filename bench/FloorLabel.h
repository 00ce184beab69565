#pragma once

#include <QLabel>

/// A label of the floor, which cuts its text where it ends.
class FloorLabel : public QLabel
{
public:
    explicit FloorLabel(QWidget *parent);

    void setFullText(const QString &text);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void elide();

    QString m_text;
};
