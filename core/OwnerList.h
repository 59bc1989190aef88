#pragma once

#include <vector>

namespace qvo::zmx::core {

class Owner;

/// A set of owners that a caller of the adaptor selects nodes by.
class OwnerList {
  public:
    /// The owners; the list stays the callee's and is read before the adaptor returns.
    virtual const std::vector<Owner*>& getOwners() = 0;  // slot 0

  protected:
    OwnerList() = default;
    OwnerList(const OwnerList&) = default;
    OwnerList& operator=(const OwnerList&) = default;
    ~OwnerList() = default;
};

}  // namespace qvo::zmx::core
