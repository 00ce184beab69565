#pragma once

/// The kind of value behind a device node.
/// The underlying type is fixed so that a device may answer any int without undefined behaviour.
enum RuvoNodeType : int {
    RuvoNodeUnknown = 0,
    RuvoNodeBoolean = 1,
    RuvoNodeInteger = 2,
    RuvoNodeFloat = 3,
    RuvoNodeEnumeration = 4,
    RuvoNodeCommand = 5,
    RuvoNodeString = 6
};

/// What can be done with a device node at this moment. The numbering is that of the access modes
/// (EAccessMode) of the GenICam standard's GenApi.
enum RuvoNodeAccessMode : int {
    RuvoNodeNotImplemented = 0,
    RuvoNodeNotAvailable = 1,
    RuvoNodeWriteOnly = 2,
    RuvoNodeReadOnly = 3,
    RuvoNodeReadWrite = 4
};
