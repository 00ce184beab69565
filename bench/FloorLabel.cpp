#include "FloorLabel.h"

FloorLabel::FloorLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

void FloorLabel::setFullText(const QString &text)
{
    m_text = text;
    setToolTip(text);
    elide();
}

void FloorLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    elide();
}

void FloorLabel::elide()
{
    setText(fontMetrics().elidedText(m_text, Qt::ElideRight, width() - 5));
}
