#include "Device.h"

// Here, so that the class's type information exists once, in this library.
Device::~Device() = default;
