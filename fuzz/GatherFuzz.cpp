// Properties: a scene of random tags becomes the tree that a slow, literal reading of the rules gives; a core
// that misuses every operation while it loads cannot stop the gathering, and every tag that was read is empty
// afterwards or its node is gone.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "adaptor/max/ClassIds.h"
#include "adaptor/max/nodes/CMAXNode.h"
#include "fuzz/FuzzHost.h"
#include "fuzz/FuzzInput.h"
#include "tests/support/TestCoreObject.h"
#include "util/Base64.h"
#include "util/BlockCompression.h"
#include "util/ReturnInto.h"

using namespace qvo;
using namespace qvo::zmx::adaptor::max;
using util::xml::Element;
using zmx::core::CoreNode;

namespace {

constexpr int kMaxNodes = 40;
constexpr int kMaxCopies = 3;

/// One saved component as the scene says it. Small ranges, so that names clash and parents are found.
struct Component {
    std::string name;
    std::string parent;
    int childIndex;
    bool lost;  ///< packed in a way that nothing can read
};

class FuzzOwner : public zmx::core::Owner {
  public:
    explicit FuzzOwner(const char* ownerName) : name(ownerName) {}
    const std::string& getName() override { return name; }
    void writeState(Element& masternodes) override {
        if (hasState) masternodes.addTag("masternode").addTag("ZMK_Plugin");
    }

    std::string name;
    bool hasState = true;
};

std::string packed(const std::string& state, bool damaged) {
    util::ByteBuffer block = util::BlockCompression::compress(util::ByteBuffer(state.begin(), state.end()));
    if (damaged) block.resize(20);
    return "<ZMK_Plugin compressed=\"1\">" + util::Base64::encode(block) + "</ZMK_Plugin>";
}

std::string masterNodeText(FuzzInput& input, std::vector<Component>& components) {
    const std::string names[] = {"", "a", "b", "c", "d", "e", "f"};
    Component component{names[input.below(7)], names[input.below(7)], input.below(3), false};
    std::string state = "<ZMK_Plugin><name>" + component.name + "</name></ZMK_Plugin>";
    const int packing = input.below(4);
    component.lost = packing == 3;
    if (packing >= 2) state = packed(state, component.lost);
    components.push_back(component);
    return "<masternode>" + state + "<parent>" + component.parent + "</parent><childindex>" +
           std::to_string(component.childIndex) + "</childindex></masternode>";
}

/// What the literal rules make of the list: duplicates out, links from last to first unless they close a
/// cycle, children by ascending index. Quadratic and worse.
std::string expectedOutline(std::vector<Component> list) {
    list.erase(std::remove_if(list.begin(), list.end(), [](const Component& each) { return each.lost; }),
               list.end());
    for (std::size_t i = 0; i < list.size(); ++i)
        for (std::size_t later = list.size(); later-- > i + 1;)
            if (list[later].name == list[i].name)
                list.erase(list.begin() + static_cast<std::ptrdiff_t>(later));

    const int count = static_cast<int>(list.size());
    std::vector<int> parents(list.size(), -1);
    std::vector<std::vector<int>> children(list.size());
    for (int i = count; i-- > 0;) {
        int parent = 0;
        while (parent < count && (list[parent].name.empty() || list[parent].name != list[i].parent))
            ++parent;
        if (parent == count) continue;
        int above = parent;
        while (above != -1 && above != i)
            above = parents[above];
        if (above == i) continue;
        parents[i] = parent;
        children[parent].push_back(i);
    }
    struct Outline {
        const std::vector<Component>& list;
        std::vector<std::vector<int>>& children;
        std::string of(int i) {
            std::vector<int>& below = children[i];
            std::stable_sort(below.begin(), below.end(),
                             [&](int a, int b) { return list[a].childIndex < list[b].childIndex; });
            std::string text = list[i].name + "(";
            for (const int child : below)
                text += of(child);
            return text + ")";
        }
    } outline{list, children};
    std::string text;
    for (int i = 0; i < count; ++i)
        if (parents[i] == -1) text += outline.of(i);
    return text;
}

std::string outlineOf(const Element& element) {
    std::string text;
    for (const Element* const child : element.children)
        if (child->value == "ZMK_Plugin") text += child->textOf("name") + "(" + outlineOf(*child) + ")";
    return text;
}

/// A scene of tagged nodes, and a core that does what the input says.
class FuzzScene {
  public:
    explicit FuzzScene(FuzzInput& input) : input_(input) {
        const int count = input_.below(kMaxNodes);
        for (int i = 0; i < count; ++i)
            addNode();
        collect(*host().GetRootNode());
        core_.onLoad = [this](Element& root) {
            require(outlineOf(root) == expectedOutline(components_), "the tree follows the rules");
            misbehave();
        };
    }

    ~FuzzScene() {
        for (CoreNode* const view : views_)
            view->destroy();
    }

    void gather() {
        adaptor().gatherNodes();
        require(core_.loaded.size() == 1, "the core hears of it once");
        for (const ULONG handle : tagged_)
            if (INode* const node = host().GetINodeByHandle(handle))
                require(tagOf(*node).empty(), "tags that were read are empty");
    }

  private:
    static MaxAdaptorInterface& adaptor() { return MaxAdaptorInterface::instance(); }
    static Interface& host() { return *GetCOREInterface(); }

    static std::string tagOf(INode& node) {
        TSTR text;
        node.GetUserPropString(TSTR("ZMK_tag"), text);
        return text.data();
    }

    void addNode() {
        auto* const object = static_cast<Object*>(host().CreateInstance(HELPER_CLASS_ID, kHelperClassId));
        INode* const node = host().CreateObjectNode(object, "node");
        if (!handles_.empty() && input_.flag()) anyNode()->AttachChild(node);
        handles_.push_back(node->GetHandle());
        if (input_.below(8) == 0) return;
        tagged_.push_back(node->GetHandle());

        std::string tag = "<ZMK_tag><name>" + owners_[input_.below(2)].name + "</name><objectname>" +
                          std::to_string(input_.below(4)) + "</objectname>";
        std::vector<Component> components;
        if (input_.flag()) {
            tag += "<masternodes>";
            for (int count = input_.below(4); count > 0; --count)
                tag += masterNodeText(input_, components);
            tag += "</masternodes>";
        }
        const bool damaged = input_.below(8) == 0;  // then no component of it counts
        tag += damaged ? "</wrong>" : "</ZMK_tag>";
        node->SetUserPropString(TSTR("ZMK_tag"), TSTR(tag.c_str()));
        if (!damaged) carried_.emplace(node, components);
    }

    /// Notes the components of `node` and its descendants in scene order.
    void collect(INode& node) {
        const std::vector<Component>& components = carried_[&node];
        components_.insert(components_.end(), components.begin(), components.end());
        for (int i = 0; i < node.NumberOfChildren(); ++i)
            collect(*node.GetChildNode(i));
    }

    INode* anyNode() {
        return host().GetINodeByHandle(handles_[static_cast<std::size_t>(input_.byte()) % handles_.size()]);
    }

    void misbehave() {
        for (int steps = 0; steps < 64 && !input_.empty(); ++steps)
            step(input_.below(14));
    }

    void step(int action) {
        FuzzOwner& owner = owners_[input_.below(2)];
        INode* const node = handles_.empty() ? nullptr : anyNode();
        CoreNode* const view =
            views_.empty() ? nullptr : views_[static_cast<std::size_t>(input_.byte()) % views_.size()];
        switch (action) {
            case 0:
                if (node) host().DeleteNode(node, FALSE, FALSE);
                break;
            case 1:
            case 2:
                lookUp(owner);
                break;
            case 3:
                if (view) view->claim(&owner, input_.text());
                break;
            case 4:
                adaptor().gatherNodes();
                break;
            case 5:
                owner.hasState = input_.flag();
                adaptor().tagOwnedNodes(&owner);  // the gathering empties those tags that it has read
                break;
            case 6:
                if (view) view->setName(input_.text());
                break;
            case 7:
                adaptor().beginUndoGroup("group");
                break;
            case 8:
                input_.flag() ? adaptor().endUndoGroup() : adaptor().cancelUndoGroup();
                break;
            case 9:
                if (CoreNode* const made = adaptor().createHelperNode(&owner, "x", nullptr, nullptr))
                    remember(static_cast<CMAXNode*>(made)->handle());
                break;
            case 10:
                deleteOne(owner);
                break;
            case 11:
                if (view && views_.size() > 1) view->setParent(views_.front());
                break;
            case 12:
                throw std::runtime_error("the core gives up");
            default:
                if (view) copyOf(*view);
                break;
        }
    }

    void remember(ULONG handle) { handles_.push_back(handle); }

    void lookUp(FuzzOwner& owner) {
        Element request("<request/>");
        for (int count = input_.below(4); count > 0; --count) {
            Element& entry = request.addTag("node");
            entry.attributes["name"] = std::to_string(input_.below(5));
            if (input_.flag()) entry.addTextTag("UID", std::to_string(input_.below(64)));
        }
        std::vector<CoreNode*> found;
        util::ReturnInto<std::vector<CoreNode*>> sink(found);
        adaptor().lookupNode(owner.name, request, sink);
        require(found.size() == request.children.size(), "one entry for each request");
        for (CoreNode* const view : found)
            if (view) views_.push_back(view);
    }

    void deleteOne(FuzzOwner& owner) {
        std::vector<CoreNode*> owned;
        util::ReturnInto<std::vector<CoreNode*>> sink(owned);
        adaptor().getOwnedNodes(&owner, sink);
        if (!owned.empty()) owned[static_cast<std::size_t>(input_.byte()) % owned.size()]->deleteNode(true);
    }

    void copyOf(CoreNode& view) {
        if (++copies_ > kMaxCopies) return;  // each can double the scene
        CoreNode* const copy = view.cloneNode(input_.flag());
        if (!copy) return;
        remember(static_cast<CMAXNode*>(copy)->handle());
        views_.push_back(copy);
    }

    FuzzInput& input_;
    TestCoreObject core_;
    FuzzOwner owners_[2] = {FuzzOwner("one"), FuzzOwner("two")};
    int copies_ = 0;
    std::vector<ULONG> handles_;  ///< all nodes
    std::vector<ULONG> tagged_;   ///< those that had a tag before
    std::map<INode*, std::vector<Component>> carried_;
    std::vector<Component> components_;  ///< in scene order
    std::vector<CoreNode*> views_;       ///< given back at the end
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    FuzzHost fuzzed;
    FuzzScene(input).gather();
    return 0;
}
