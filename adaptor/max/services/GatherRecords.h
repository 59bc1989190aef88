#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

#include "adaptor/max/Host.h"
#include "util/xml/Element.h"

namespace qvo::zmx::adaptor::max {

/// A tagged node that the running gathering has met. The core may delete nodes meanwhile, so the node is
/// asked for again by its handle.
struct GatherRecord {
    ULONG handle;
    std::size_t namesake;  ///< place of the record before this one whose tag has the same names, or none

    /// Null when the host does not know the node any more.
    INode* node() const { return GetCOREInterface()->GetINodeByHandle(handle); }
};

/// The records of the running gathering, in scene order; empty outside one. Of the tags it keeps the names
/// only, once for each pair of them.
class GatherRecords {
  public:
    void add(INode& node, const util::xml::Element& tag);
    void clear();

    const std::vector<GatherRecord>& inOrder() const { return records_; }

    /// The node of the last record whose tag names this owner and this object and whose node the host still
    /// knows, or null.
    INode* find(const std::string& ownerName, const std::string& objectName) const;

  private:
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    std::vector<GatherRecord> records_;
    std::unordered_map<std::string, std::size_t> lastByName_;
};

}  // namespace qvo::zmx::adaptor::max
