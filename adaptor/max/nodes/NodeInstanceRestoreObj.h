#pragma once

#include "core/CUndo.h"

namespace qvo::zmx::adaptor::max {

class CMAXNode;

/// Undo record of a node wrapper that came into being or was deleted: takes the wrapper out of the adaptor's
/// list and puts it back, together with the host's own record for the node.
///
/// The record keeps its wrapper alive. Discarded while the wrapper is out of the scene, it destroys it,
/// unless the core has let go of the node and so has the wrapper to itself. A wrapper that is destroyed
/// otherwise withdraws itself from its records, which then do nothing.
class NodeInstanceRestoreObj : public CUndo {
  public:
    /// `present`: whether the wrapper counts as part of the scene at this moment. Neither the list nor the
    /// listener is touched.
    NodeInstanceRestoreObj(CMAXNode& wrapper, bool present);
    ~NodeInstanceRestoreObj() override;

    /// Both toggle: into the list and then restored() of the listener, or removed() of the listener and then
    /// out of the list. A wrapper whose node was let go of stays out of the list.
    void restore(bool isUndo) override;
    void redo() override { restore(true); }

    /// The wrapper is being destroyed.
    void withdraw() { wrapper_ = nullptr; }

  private:
    CMAXNode* wrapper_;
    bool present_;
};

}  // namespace qvo::zmx::adaptor::max
