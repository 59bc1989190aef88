#include "adaptor/max/services/GatherRecords.h"

#include <utility>

#include "adaptor/max/services/NodeTag.h"

namespace qvo::zmx::adaptor::max {
namespace {

/// Tag texts hold no zero byte, so it can stand between the two names.
std::string keyOf(const std::string& ownerName, const std::string& objectName) {
    return ownerName + '\0' + objectName;
}

}  // namespace

void GatherRecords::add(INode& node, util::xml::Element&& tag) {
    byName_[keyOf(ownerNameOf(tag), objectNameOf(tag))] = records_.size();
    records_.push_back({node.GetHandle(), std::move(tag)});
}

void GatherRecords::clear() {
    while (!records_.empty())
        records_.pop_back();
    byName_.clear();
}

INode* GatherRecords::find(const std::string& ownerName, const std::string& objectName) const {
    const auto found = byName_.find(keyOf(ownerName, objectName));
    return found == byName_.end() ? nullptr : records_[found->second].node();
}

}  // namespace qvo::zmx::adaptor::max
