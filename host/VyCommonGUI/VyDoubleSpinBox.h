#pragma once

#include "VyCommonGUIExport.h"

#include <QDoubleSpinBox>

namespace VyViewer {

/// A spin box for single-precision numbers that the wheel changes only while it has the focus.
/// It shows as many decimals as the value and the step need, three at least.
class VYCOMMONGUI_EXPORT VyDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT
public:
    explicit VyDoubleSpinBox(QWidget *parent);
    ~VyDoubleSpinBox() override;

    /// Hides the base class's: first gives the editor the fewest decimals (three or more) with which the
    /// single-precision value survives being shown and read back.
    void setValue(double value);

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
};

} // namespace VyViewer
