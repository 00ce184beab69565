#include "VyLineEdit.h"

namespace VyViewer {

VyLineEdit::VyLineEdit(QWidget *parent)
    : QLineEdit(parent)
{}

VyLineEdit::~VyLineEdit() = default;

} // namespace VyViewer
