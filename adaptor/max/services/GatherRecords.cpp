#include "adaptor/max/services/GatherRecords.h"

#include <utility>

#include "adaptor/max/services/NodeTag.h"

namespace qvo::zmx::adaptor::max {
namespace {

/// Names may hold any byte, so the length of the first one tells them apart.
std::string keyOf(const std::string& ownerName, const std::string& objectName) {
    return std::to_string(ownerName.size()) + ' ' + ownerName + objectName;
}

}  // namespace

void GatherRecords::add(INode& node, util::xml::Element&& tag) {
    byName_[keyOf(ownerNameOf(tag), objectNameOf(tag))].push_back(records_.size());
    records_.push_back({node.GetHandle(), std::move(tag)});
}

void GatherRecords::clear() {
    while (!records_.empty())
        records_.pop_back();
    byName_.clear();
}

INode* GatherRecords::find(const std::string& ownerName, const std::string& objectName) const {
    const auto found = byName_.find(keyOf(ownerName, objectName));
    if (found == byName_.end()) return nullptr;
    const std::vector<std::size_t>& places = found->second;
    for (auto place = places.rbegin(); place != places.rend(); ++place)
        if (INode* const node = records_[*place].node()) return node;
    return nullptr;
}

}  // namespace qvo::zmx::adaptor::max
