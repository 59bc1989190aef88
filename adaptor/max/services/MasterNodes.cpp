#include "adaptor/max/services/MasterNodes.h"

#include <algorithm>
#include <charconv>
#include <deque>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "adaptor/max/services/StateBuilder.h"
#include "util/Base64.h"
#include "util/BlockCompression.h"
#include "util/Log.h"
#include "util/xml/Tag.h"

namespace qvo::zmx::adaptor::max {

using util::xml::Element;

namespace {

/// A block of one symbol can claim any length; no core writes a state of this size.
constexpr std::int32_t kMaxPayload = 256 << 20;

constexpr char kStateTag[] = "ZMK_Plugin";

const std::string& uniqueNameOf(const Element& state) {
    return state.textOf("name");
}

/// The decimal number that `text` starts with, 0 when there is none.
int childIndexFrom(const std::string& text) {
    const std::size_t start = std::min(text.find_first_not_of(" \t"), text.size());
    int index = 0;
    std::from_chars(text.data() + start, text.data() + text.size(), index);
    return index;
}

bool isCompressed(const Element& state) {
    return state.attribute("compressed") == "1" && state.children.size() == 1 &&
           state.children.front()->kind == Element::kText;
}

bool isState(const Element& element) {
    return element.kind == Element::kTag && element.value == kStateTag;
}

/// The state that a compressed one holds, and what is wrong with it: a damaged one can be there in part.
struct Unpacked {
    std::optional<Element> state;
    const char* fault = nullptr;
};

Unpacked unpacked(const Element& compressed) {
    const util::ByteBuffer block = util::Base64::decode(compressed.children.front()->value);
    if (block.empty()) return {std::nullopt, "is not Base64"};
    if (util::BlockCompression::storedLength(block) > kMaxPayload) return {std::nullopt, "is too large"};
    const util::ByteBuffer bytes = util::BlockCompression::decompress(block);
    if (bytes.empty()) return {std::nullopt, "does not decompress"};
    Element state;
    const bool whole = state.parse(std::string(bytes.begin(), bytes.end())) == Element::kParsed;
    if (!isState(state)) return {std::nullopt, whole ? "is no component's" : "is not XML"};
    return {std::move(state), whole ? nullptr : "ends early"};
}

}  // namespace

void MasterNodes::takeFrom(Element& tag, const std::string& nodeName) {
    for (Element* const group : tag.children) {
        if (group->kind != Element::kTag || group->value != "masternodes") continue;
        for (Element* const masternode : group->children) {
            if (masternode->kind != Element::kTag || masternode->value != "masternode") continue;
            Element* const state = masternode->findTag(kStateTag);
            if (state)
                masterNodes_.push_back({std::move(*state), masternode->textOf("parent"),
                                        childIndexFrom(masternode->textOf("childindex")), nodeName});
            else
                util::logLine(util::Log::kWarning, "Dropped a component without state of node ", nodeName);
        }
    }
}

void MasterNodes::unpackAll() {
    std::vector<MasterNode> kept;
    for (MasterNode& masterNode : masterNodes_) {
        if (isCompressed(masterNode.state)) {
            Unpacked result = unpacked(masterNode.state);
            if (result.fault)
                util::logLine(util::Log::kWarning, result.state ? "Kept a part of" : "Dropped",
                              " a component of node ", masterNode.nodeName, ": its compressed state ",
                              result.fault);
            if (!result.state) continue;
            masterNode.state = std::move(*result.state);
        }
        kept.push_back(std::move(masterNode));
    }
    masterNodes_ = std::move(kept);
}

void MasterNodes::dropDuplicates() {
    std::unordered_set<std::string> met;
    std::vector<MasterNode> kept;
    for (MasterNode& masterNode : masterNodes_) {
        const std::string& name = uniqueNameOf(masterNode.state);
        if (name.empty())
            util::logLine(util::Log::kWarning, "A component of node ", masterNode.nodeName, " has no name");
        if (met.insert(name).second)
            kept.push_back(std::move(masterNode));
        else
            util::logLine(util::Log::kWarning, "Dropped a second component ", name, " of node ",
                          masterNode.nodeName);
    }
    masterNodes_ = std::move(kept);
}

Element MasterNodes::link() {
    std::deque<StateBuilder> builders;  // a deque: builders point at each other
    std::unordered_map<std::string, StateBuilder*> byName;
    for (MasterNode& masterNode : masterNodes_) {
        const std::string name = uniqueNameOf(masterNode.state);
        StateBuilder& builder = builders.emplace_back(std::move(masterNode.state));
        byName.emplace(name, &builder);
    }
    for (std::size_t i = masterNodes_.size(); i-- > 0;) {
        const MasterNode& masterNode = masterNodes_[i];
        const auto parent = byName.find(masterNode.parent);
        if (masterNode.parent.empty() || parent == byName.end()) continue;
        parent->second->addChild(&builders[i]);
        if (builders[i].getParent() == parent->second)
            builders[i].childIndex = masterNode.childIndex;
        else
            util::logLine(util::Log::kWarning, "A component of node ", masterNode.nodeName,
                          " would be its own ancestor and stays at the top level");
    }
    Element root = util::xml::Tag("ZMK");
    for (StateBuilder& builder : builders)
        if (!builder.getParent()) root.adoptChild(builder.renderAndEmpty());
    return root;
}

Element MasterNodes::buildTree() {
    unpackAll();
    dropDuplicates();
    Element root = link();
    masterNodes_.clear();
    return root;
}

}  // namespace qvo::zmx::adaptor::max
