#pragma once

#include "VyCommonGUIExport.h"

#include <QScrollArea>

namespace VyViewer {

/// The kit's scroll area.
class VYCOMMONGUI_EXPORT VyScrollArea : public QScrollArea
{
    Q_OBJECT
public:
    explicit VyScrollArea(QWidget *parent);
    ~VyScrollArea() override;
};

} // namespace VyViewer
