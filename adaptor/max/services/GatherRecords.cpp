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

void GatherRecords::add(INode& node, const util::xml::Element& tag) {
    const std::size_t place = records_.size();
    std::size_t& last =
        lastByName_.try_emplace(keyOf(ownerNameOf(tag), objectNameOf(tag)), kNone).first->second;
    records_.push_back({node.GetHandle(), std::exchange(last, place)});
}

void GatherRecords::clear() {
    records_.clear();
    lastByName_.clear();
}

INode* GatherRecords::find(const std::string& ownerName, const std::string& objectName) const {
    const auto found = lastByName_.find(keyOf(ownerName, objectName));
    std::size_t place = found == lastByName_.end() ? kNone : found->second;
    for (; place != kNone; place = records_[place].namesake)
        if (INode* const node = records_[place].node()) return node;
    return nullptr;
}

}  // namespace qvo::zmx::adaptor::max
