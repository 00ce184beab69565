#pragma once

#include "VyCommonGUIExport.h"

#include <QLineEdit>

namespace VyViewer {

/// The kit's line edit.
class VYCOMMONGUI_EXPORT VyLineEdit : public QLineEdit
{
    Q_OBJECT
public:
    explicit VyLineEdit(QWidget *parent);
    ~VyLineEdit() override;
};

} // namespace VyViewer
