#pragma once

namespace qvo::util {

/// What the collector sees of a singleton: something it can destroy. The two virtual slots come first in
/// every singleton, so a singleton class's own operations start at slot 2.
class SingletonReference {
  public:
    /// Destroys the instance (not necessarily the object called) and forgets it.
    virtual void release() = 0;               // slot 0
    virtual ~SingletonReference() = default;  // slot 1

    SingletonReference(const SingletonReference&) = delete;
    SingletonReference& operator=(const SingletonReference&) = delete;

  protected:
    SingletonReference() = default;

    /// Hands `singleton` to the collector as its newest entry; makes the collector if there is none.
    static void enlist(SingletonReference& singleton);

    /// Takes `singleton` off the collector's list. Does nothing if it is not listed; never makes a collector.
    static void withdraw(SingletonReference& singleton) noexcept;
};

}  // namespace qvo::util
