#pragma once

#include "VyCommonGUIExport.h"

#include <QSpinBox>

namespace VyViewer {

/// An integer spin box that the wheel changes only while it has the focus.
class VYCOMMONGUI_EXPORT VySpinBox : public QSpinBox
{
    Q_OBJECT
public:
    explicit VySpinBox(QWidget *parent);
    ~VySpinBox() override;

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
};

} // namespace VyViewer
