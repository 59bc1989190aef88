#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

namespace qvo::zmx {

/// Base of node wrappers and snapshots: operations that one side may offer beyond the fixed slots.
///
/// The slots are counted: 0 extension, 1 getExtensions, 2 supportsExtension. There is no destructor slot, so
/// the destructor is protected and not virtual; a derived class adds a virtual one after its own operations,
/// in the slot that tests/abi/slots.txt names.
class CExtendable {
  public:
    /// Runs extension `id`. The meaning of `argument` and of the pointer-sized result belongs to the id:
    /// those of nodes are core::CoreNode::NodeExtension, snapshots have none. An unknown id gives 0.
    virtual std::intptr_t extension(int id, void* argument);  // slot 0

    /// The ids that extension() makes known; a node knows one more.
    virtual std::vector<unsigned int> getExtensions();  // slot 1

    /// True when getExtensions() lists `id`.
    virtual bool supportsExtension(unsigned int id);  // slot 2

  protected:
    CExtendable() = default;
    CExtendable(const CExtendable&) = default;
    CExtendable& operator=(const CExtendable&) = default;
    ~CExtendable() = default;
};

inline std::intptr_t CExtendable::extension(int /*id*/, void* /*argument*/) {
    return 0;
}

inline std::vector<unsigned int> CExtendable::getExtensions() {
    return {};
}

inline bool CExtendable::supportsExtension(unsigned int id) {
    const std::vector<unsigned int> ids = getExtensions();
    return std::find(ids.begin(), ids.end(), id) != ids.end();
}

}  // namespace qvo::zmx
