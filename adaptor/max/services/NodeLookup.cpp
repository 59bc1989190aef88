#include "adaptor/max/services/NodeLookup.h"

#include <algorithm>
#include <charconv>
#include <unordered_map>

#include "adaptor/max/nodes/CMAXNode.h"
#include "adaptor/max/services/NodeTag.h"
#include "adaptor/max/services/SceneWalk.h"

namespace qvo::zmx::adaptor::max {

using util::xml::Element;

namespace {

/// What is wanted, and the host node found for it.
struct Entry {
    const Element* description;
    INode* node = nullptr;
};

std::string nameOf(const Entry& entry) {
    return entry.description->attribute("name");
}

std::vector<Entry> entriesOf(const Element& request) {
    std::vector<Entry> entries;
    for (const Element* const child : request.children)
        if (child->kind == Element::kTag && child->value == "node") entries.push_back({child});
    return entries;
}

bool allFound(const std::vector<Entry>& entries) {
    return std::all_of(entries.begin(), entries.end(), [](const Entry& entry) { return entry.node; });
}

/// Last hit in scene order, as the records have it.
void findByTags(const std::string& ownerName, std::vector<Entry>& entries) {
    std::unordered_multimap<std::string, Entry*> byName;
    for (Entry& entry : entries)
        byName.emplace(nameOf(entry), &entry);
    forEachSceneNode([&](INode& node) {
        const auto text = readTagText(node);
        if (!text) return;
        const Element tag(*text);
        if (ownerNameOf(tag) != ownerName) return;
        const auto wanted = byName.equal_range(objectNameOf(tag));
        for (auto entry = wanted.first; entry != wanted.second; ++entry)
            entry->second->node = &node;
    });
}

/// The node whose handle is written in the "UID" child as a decimal number; never the root.
INode* findByHandle(const Element& description) {
    const Element* const uid = description.findTag("UID");
    if (!uid || uid->children.empty() || uid->children.front()->kind != Element::kText) return nullptr;
    const std::string& text = uid->children.front()->value;
    ULONG handle = 0;
    const char* const end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data(), end, handle);
    if (parsed.ec != std::errc() || parsed.ptr != end) return nullptr;
    INode* const node = GetCOREInterface()->GetINodeByHandle(handle);
    return node && !node->IsRootNode() ? node : nullptr;
}

}  // namespace

std::vector<std::unique_ptr<CMAXNode>> lookUpNodes(const std::string& ownerName, const Element& request,
                                                   const GatherRecords& records) {
    std::vector<Entry> entries = entriesOf(request);
    for (Entry& entry : entries)
        entry.node = records.find(ownerName, nameOf(entry));
    if (!allFound(entries)) findByTags(ownerName, entries);

    std::vector<std::unique_ptr<CMAXNode>> found;
    found.reserve(entries.size());
    for (const Entry& entry : entries) {
        INode* const node = entry.node ? entry.node : findByHandle(*entry.description);
        found.push_back(node ? std::make_unique<CMAXNode>(nullptr, node) : nullptr);
    }
    return found;
}

}  // namespace qvo::zmx::adaptor::max
