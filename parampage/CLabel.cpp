#include "CLabel.h"

#include <QFontMetrics>
#include <QHash>
#include <QPair>

namespace {
// Kept free at the right, so that the text does not touch the editor beside it.
constexpr int kRightMargin = 5;
constexpr int kMostKnown = 500; // texts, of each width
} // namespace

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
    setAccessibleName(text);
    showElided();
}

void CLabel::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    showElided();
}

void CLabel::showElided()
{
    // Labels repeat, and are as wide as each other: a text is measured once.
    static QHash<QPair<QString, int>, QString> known;
    static QFont knownFont;
    static int knownResolution;
    if (known.size() == kMostKnown || knownFont != font() || knownResolution != logicalDpiX()) {
        known.clear();
        knownFont = font();
        knownResolution = logicalDpiX();
    }
    QString &elided = known[{m_fullText, width()}];
    if (elided.isEmpty()) {
        elided = fontMetrics().elidedText(m_fullText, Qt::ElideRight, width() - kRightMargin);
    }
    // Where the row begins. Left to itself a label goes by the direction of its text.
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    setAlignment((isMirrored ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute | Qt::AlignVCenter);
    setText(elided);
}
