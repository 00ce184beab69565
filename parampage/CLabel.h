#pragma once

#include <QLabel>
#include <QString>

/// A one-line label that cuts a text too wide for it at the right, with an ellipsis; the tool tip and the
/// accessible name always hold the whole text.
class CLabel : public QLabel
{
public:
    explicit CLabel(QWidget *parent);
    ~CLabel() override;

    void setFullText(const QString &text);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void showElided();

    QString m_fullText;
};
