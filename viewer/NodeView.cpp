#include "NodeView.h"

NodeView::NodeView(QWidget *parent) : QWidget(parent) {}
void NodeView::setDevice(GenicamDevice *) {}
void NodeView::refresh() {}
