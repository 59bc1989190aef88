#pragma once

#include "adaptor/max/nodes/NodeRegistry.h"
#include "adaptor/max/services/GatherRecords.h"
#include "core/CoreObject.h"

namespace qvo::zmx::adaptor::max {

/// Gathers the product's nodes after a scene was opened, merged or imported: reads all tags, hands the states
/// that they hold to the core as one tree, reports the nodes that the core did not take back, and empties the
/// tags.
class Gathering {
  public:
    /// Runs one gathering; it always completes. Refused, with a warning, while another one runs.
    void run(core::CoreObject& core, const NodeRegistry& nodes);

    /// The records of the running gathering; empty outside one.
    const GatherRecords& records() const { return records_; }

    void dropRecords() { records_.clear(); }

  private:
    void reportUnclaimed(const NodeRegistry& nodes) const;
    void wipeTags() const;

    GatherRecords records_;
    bool running_ = false;
};

}  // namespace qvo::zmx::adaptor::max
