#pragma once

#include "adaptor/max/Host.h"
#include "core/AdaptorInterface.h"
#include "core/CoreObject.h"

namespace qvo::zmx::adaptor::max {

/// A loaded core library and its three exports, bound by name each time they are called. A view: loading and
/// freeing belong to whoever holds the handle. No call throws.
class CoreLibrary {
  public:
    explicit CoreLibrary(HMODULE module) : module_(module) {}

    /// Loads core.dll from the installation's core folder, which also serves the core's own dependencies.
    /// Null when it cannot be loaded.
    static HMODULE load();

    /// The core's version; 0, which no core has, when "getVersion" is missing.
    unsigned int version() const;

    /// Makes the core live. Null when it refuses, or when the library has no "attach".
    core::CoreObject* attach(core::AdaptorInterface& adaptor) const;

    /// Ends `core`, which is invalid afterwards. Does nothing when the library has no "detach".
    void detach(core::CoreObject* core) const;

  private:
    HMODULE module_;
};

}  // namespace qvo::zmx::adaptor::max
