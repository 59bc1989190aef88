#include "samples/mocap_core/Take.h"

#include <algorithm>
#include <utility>

#include "samples/mocap_core/Guarded.h"
#include "util/ReturnInto.h"

namespace qvo::zmx::mocap {

void Take::writeState(util::xml::Element& masternodes) {
    guarded("writeState", [&] { state().writeTo(masternodes); });
}

TakeState Take::state() const {
    TakeState state{record_, {}};
    for (const std::string& name : record_.nodeNames()) {
        core::CoreNode* const present = node(name);
        const std::string object = present ? present->getName() : std::string();
        if (!object.empty()) state.objects[name] = object;
    }
    return state;
}

void Take::setRecord(TakeRecord record) {
    record.id = std::move(record_.id);
    record_ = std::move(record);
}

void Take::renewId() {
    record_.id = TakeRecord::freshId();
    saved_.clear();
}

void Take::removed(core::CoreNode* node) {
    const auto found = known_.find(node);
    if (found != known_.end()) found->second.present = false;
}

void Take::restored(core::CoreNode* node) {
    const auto found = known_.find(node);
    if (found != known_.end()) found->second.present = true;
}

void Take::addNode(const std::string& name, core::CoreNode& node) {
    node.listener = this;
    known_[&node] = {name, true};
    byName_.emplace(name, &node);
}

core::CoreNode* Take::node(const std::string& name) const {
    const auto range = byName_.equal_range(name);
    for (auto entry = range.first; entry != range.second; ++entry) {
        // The host may reuse a dead node's place for another name's.
        const auto found = known_.find(entry->second);
        if (found->second.present && found->second.name == name) return entry->second;
    }
    return nullptr;
}

bool Take::isInScene() const {
    return std::any_of(record_.joints.begin(), record_.joints.end(),
                       [this](const std::string& joint) { return node(joint) != nullptr; });
}

void Take::refresh(core::AdaptorInterface& adaptor) {
    std::vector<core::CoreNode*> owned;
    util::ReturnInto<std::vector<core::CoreNode*>> sink(owned);
    adaptor.getOwnedNodes(this, sink);
    for (auto& [node, known] : known_)
        known.present = false;
    for (core::CoreNode* const node : owned)
        restored(node);
}

void Take::tagNodes(core::AdaptorInterface& adaptor) {
    noteSaved(state());
    tagging_ = true;
    adaptor.tagOwnedNodes(this);
    tagging_ = false;
}

}  // namespace qvo::zmx::mocap
