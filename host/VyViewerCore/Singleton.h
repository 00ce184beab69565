#pragma once

namespace VyViewer {

/// The process-wide instance of T. The instance lives in the library that defines T: getInstance() is
/// declared here without a body and defined there once for every T, so that libraries built with hidden
/// visibility all see the same one. Callers fetch the instance at every use and do not keep it.
template <typename T>
class Singleton
{
public:
    static T *getInstance();
};

} // namespace VyViewer
