#include "CLabel.h"

#include <QFontMetrics>

namespace {
// Kept free at the right, so that the text does not touch the editor beside it.
constexpr int kRightMargin = 5;
}

CLabel::CLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText); // a translation may hold a '<'
}

CLabel::~CLabel() = default;

void CLabel::setFullText(const QString &text)
{
    m_fullText = text;
    setToolTip(text);
    showElided();
}

void CLabel::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    showElided();
}

void CLabel::showElided()
{
    setText(fontMetrics().elidedText(m_fullText, Qt::ElideRight, width() - kRightMargin));
}
