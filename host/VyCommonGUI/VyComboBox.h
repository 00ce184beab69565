#pragma once

#include "VyCommonGUIExport.h"

#include <QComboBox>

class QAbstractItemView;

namespace VyViewer {

/// A combo box that the wheel never changes while its list is closed.
class VYCOMMONGUI_EXPORT VyComboBox : public QComboBox
{
    Q_OBJECT
public:
    explicit VyComboBox(QWidget *parent);
    ~VyComboBox() override;

protected:
    void showPopup() override;
    void hidePopup() override;

private:
    friend class ComboBoxAccessible;
    class ClosedBox;
    void paintClosed();
    QAbstractItemView *openList() const;
    void chooseSelected();
    bool tellCutEntry(const QPoint &place);
    QString shownEntry(const QStyleOptionComboBox &option) const;
};

} // namespace VyViewer
