#pragma once

#include <list>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {

class CMAXNode;

/// The registered node wrappers that are part of the scene, in order of creation. Adding, removing and
/// finding by host handle cost constant time, so that a scene of many nodes is built and cleared in linear
/// time.
///
/// It also knows every wrapper that was listed and still lives: those that a closed scene has left behind,
/// which the core may still hold and give back, and those that wait in an undo record. None of them may refer
/// to a core that is gone.
class NodeRegistry {
  public:
    using List = std::list<CMAXNode*>;

    /// Appends `wrapper` unless it is listed already.
    void add(CMAXNode& wrapper);

    /// Takes `wrapper` out, the others keep their order. Does nothing when it is not listed.
    void remove(CMAXNode& wrapper);

    bool contains(const CMAXNode& wrapper) const;

    /// The first listed wrapper of the host node with this handle, or null.
    CMAXNode* findByHandle(ULONG handle) const;

    /// Listed wrappers, in order. Copy it before doing anything that may add or remove.
    const List& inOrder() const { return wrappers_; }
    std::vector<CMAXNode*> copy() const { return {wrappers_.begin(), wrappers_.end()}; }

    /// The scene is closing: marks all listed wrappers removed, which takes them out.
    void markAllRemoved();

    /// The core is going: abandons every wrapper that is known. Those that no undo record holds are
    /// destroyed, the others die with their last record.
    void abandonAll();

    /// The wrapper is being destroyed.
    void forget(CMAXNode& wrapper);

  private:
    List wrappers_;
    std::unordered_map<const CMAXNode*, List::iterator> places_;
    std::unordered_multimap<ULONG, CMAXNode*> byHandle_;
    std::unordered_set<CMAXNode*> known_;
};

}  // namespace qvo::zmx::adaptor::max
