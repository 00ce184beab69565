#include "TrafficView.h"

TrafficView::TrafficView(QWidget *parent) : QWidget(parent) {}
void TrafficView::setModel(TrafficModel *) {}
