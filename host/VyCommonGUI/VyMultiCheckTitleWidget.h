#pragma once

#include "VyCommonGUIExport.h"

#include <QWidget>

class QCheckBox;
class QLabel;

namespace VyViewer {

class GlyphButton;

/// A one-line title with an optional check box and an optional delete button, both visible in a new title.
class VYCOMMONGUI_EXPORT VyMultiCheckTitleWidget : public QWidget
{
    Q_OBJECT
public:
    explicit VyMultiCheckTitleWidget(QWidget *parent);
    ~VyMultiCheckTitleWidget() override;

    void setText(const QString &text);
    void setCheckBoxVisible(bool visible);
    void setDeleteButtonVisible(bool visible);

Q_SIGNALS:
    /// The delete button was clicked; never while the title is disabled.
    void deleteButtonClicked();

private:
    void retranslate();

    QCheckBox *const m_checkBox;       // child
    QLabel *const m_label;             // child
    GlyphButton *const m_deleteButton; // child
};

} // namespace VyViewer
