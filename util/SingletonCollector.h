#pragma once

#include <vector>

#include "util/Singleton.h"

namespace qvo::util {

/// Knows every live singleton of this module in order of creation, itself first, so that all can be
/// destroyed at one point and in the reverse order.
class SingletonCollector : public Singleton<SingletonCollector> {
  public:
    /// Destroys all singletons, newest first, the collector last. A singleton that is asked for meanwhile is
    /// made afresh and destroyed as the newest; one asked for afterwards starts a fresh collector.
    /// Does nothing when no singleton was ever made.
    static void destroyAll();

  private:
    friend class Singleton<SingletonCollector>;
    friend class SingletonReference;

    SingletonCollector() = default;
    ~SingletonCollector() override = default;

    std::vector<SingletonReference*> entries_;  ///< oldest first; not owned
};

}  // namespace qvo::util
