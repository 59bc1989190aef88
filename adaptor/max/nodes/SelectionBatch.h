#pragma once

namespace qvo::zmx::adaptor::max {

/// The process-wide selection batch: while it is open, selecting a node adds to the selection without an undo
/// record. Opening it empties the selection.
class SelectionBatch {
  public:
    /// False when a batch is open already.
    static bool open();
    /// False when no batch is open.
    static bool close();
    static bool isOpen();
};

}  // namespace qvo::zmx::adaptor::max
