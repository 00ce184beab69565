#pragma once

#include "VyCommonGUIExport.h"

#include <QFrame>
#include <QPointer>

namespace VyViewer {

class BlockTitleBar;

/// A framed block: a title bar that expands and collapses it by mouse and keyboard, with an optional add
/// button, and a body that shows one contents widget. A new block is expanded and has no add button.
class VYCOMMONGUI_EXPORT VyBlockWidget : public QFrame
{
    Q_OBJECT
public:
    explicit VyBlockWidget(QWidget *parent);
    ~VyBlockWidget() override;

    void setTitleText(const QString &text);
    /// Takes ownership of the widget; a widget set before is deleted.
    void setContentsWidget(QWidget *widget);
    void setAddButtonVisible(bool visible);
    void setExpanded(bool expanded);

Q_SIGNALS:
    void addButtonClicked();

private:
    void add();
    void retranslate();

    BlockTitleBar *const m_titleBar; // child
    QWidget *const m_body;           // child, what collapsing hides
    QPointer<QWidget> m_contents;    // child of the body, unless its maker took it away
};

} // namespace VyViewer
