#include <deque>
#include <map>
#include <random>
#include <set>

#include "adaptor/max/controllers/Conversion.h"
#include "tests/support/AdaptorFixture.h"

namespace qvo::zmx::adaptor::max {
namespace {

/// What the model knows of a node.
struct ModelNode {
    std::string name;
    ULONG parent = 0;  ///< 0: top level
    std::set<TimeValue> keys;
    bool converted = false;  ///< to the host's controller, whose keys the model does not follow

    bool operator==(const ModelNode& other) const {
        return name == other.name && parent == other.parent && keys == other.keys &&
               converted == other.converted;
    }
};

using Model = std::map<ULONG, ModelNode>;  ///< by handle

void PrintTo(const Model& model, std::ostream* out) {
    for (const auto& [handle, node] : model)
        *out << "\n  " << handle << " " << node.name << " below " << node.parent << ", " << node.keys.size()
             << (node.converted ? " keys, converted" : " keys");
}

/// Walks at random through edits, undos and redos, and expects of the scene what a plain model says.
class RandomEdits : public AdaptorFixture {
  protected:
    static constexpr int kMostNodes = 10;
    static constexpr std::size_t kUndoLimit = 20;

    int roll(int sides) { return std::uniform_int_distribution<int>(0, sides - 1)(random); }

    /// A node of the model, by chance.
    ULONG any() {
        auto entry = model.begin();
        std::advance(entry, roll(static_cast<int>(model.size())));
        return entry->first;
    }

    CMAXNode& wrapper(ULONG handle) { return *adaptor().nodes().findByHandle(handle); }

    bool isBelow(ULONG handle, ULONG ancestor) const {
        for (; handle; handle = model.at(handle).parent)
            if (handle == ancestor) return true;
        return false;
    }

    /// One edit in scene and model alike; false when there is nothing to do.
    bool edit() {
        if (model.empty()) return create();
        switch (roll(7)) {
            case 0:
                return model.size() < kMostNodes && create();
            case 1:
                return remove(any());
            case 2:
                return rename(any());
            case 3:
                return reparent(any(), roll(3) ? any() : 0);
            case 4:
                return clearFrom(any(), roll(40));
            case 5:
                return roll(4) == 0 && convert(any());
            default:
                return setKey(any(), roll(40));
        }
    }

    bool create() {
        const std::string name = "n" + std::to_string(counter++);
        const ULONG parent = model.empty() || roll(2) ? 0 : any();
        const CMAXNode* const made = makeHelper(name, parent ? &wrapper(parent) : nullptr);
        model[made->handle()] = {"tool_" + name, parent, {}, false};
        return true;
    }

    bool remove(ULONG handle) {
        wrapper(handle).deleteNode(true);
        model.erase(handle);
        for (auto& [child, node] : model)
            if (node.parent == handle) node.parent = 0;
        return true;
    }

    bool rename(ULONG handle) {
        std::string name = "r" + std::to_string(counter++);
        wrapper(handle).extension(CMAXNode::kRenameUndoable, &name);
        model[handle].name = name;
        return true;
    }

    bool reparent(ULONG handle, ULONG parent) {
        if (parent && isBelow(parent, handle)) return false;
        wrapper(handle).setParent(parent ? &wrapper(parent) : nullptr);
        model[handle].parent = parent;
        return true;
    }

    bool clearFrom(ULONG handle, int frame) {
        ModelNode& node = model[handle];
        wrapper(handle).clearAnimationFrom(secondsOf(frame));
        node.keys.erase(node.keys.upper_bound(frame * 160), node.keys.end());
        return true;
    }

    bool convert(ULONG handle) {
        wrapper(handle).extension(CMAXNode::kConvertController, nullptr);
        model[handle].converted = true;
        model[handle].keys.clear();
        return true;
    }

    bool setKey(ULONG handle, int frame) {
        adaptor().beginKeyBatch();
        CoreSnapshot* const snapshot = wrapper(handle).acquireSnapshot(secondsOf(frame));
        Matrix4 transform = kIdentityMatrix4;
        transform.m[3][0] = roll(100);
        snapshot->setWorldTransform(transform);
        wrapper(handle).releaseSnapshot(snapshot);
        adaptor().endKeyBatch();
        if (!model[handle].converted) model[handle].keys.insert(frame * 160);
        return true;
    }

    /// What the scene holds.
    Model scene() {
        Model seen;
        for (core::CoreNode* const created : createdNodes()) {
            INode* const node = static_cast<CMAXNode*>(created)->hostNode();
            if (!node) continue;
            ModelNode& entry = seen[node->GetHandle()];
            entry.name = node->GetName();
            INode* const parent = node->GetParentNode();
            entry.parent = parent->IsRootNode() ? 0 : parent->GetHandle();
            Control* const control = node->GetTMController();
            entry.converted = !isTransformControl(control);
            for (int i = 0; !entry.converted && i < control->NumKeys(); ++i)
                entry.keys.insert(control->GetKeyTime(i));
        }
        return seen;
    }

    using CoreSnapshot = core::CoreNode::Snapshot;

    Model model;
    std::deque<Model> undoable, redoable;
    std::mt19937 random{20090307};
    int counter = 0;
};

TEST_F(RandomEdits, HundredThousandStepsEndWhereTheModelDoes) {
    for (int step = 0; step < 100000; ++step) {
        const int chance = roll(10);
        if (chance < 2 && !undoable.empty()) {
            ASSERT_TRUE(host.undo());
            redoable.push_back(model);
            model = undoable.back();
            undoable.pop_back();
        } else if (chance < 4 && !redoable.empty()) {
            ASSERT_TRUE(host.redo());
            undoable.push_back(model);
            model = redoable.back();
            redoable.pop_back();
        } else {
            const Model before = model;
            const std::string name = "step " + std::to_string(step);
            adaptor().beginUndoGroup(name);
            edit();
            adaptor().endUndoGroup();
            const std::vector<std::string> entries = host.undoNames();
            const bool recorded = !entries.empty() && entries.front() == name;
            if (recorded) {
                undoable.push_back(before);
                if (undoable.size() > kUndoLimit) undoable.pop_front();
                redoable.clear();
            } else {
                ASSERT_EQ(before, model) << "nothing was recorded at step " << step;
            }
        }
        ASSERT_EQ(scene(), model) << "after step " << step;
    }
}

}  // namespace
}  // namespace qvo::zmx::adaptor::max
