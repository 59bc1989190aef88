#pragma once

#include <max.h>

#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "maxhost/src/scene/Node.h"
#include "maxhost/src/scene/Selection.h"
#include "maxhost/src/scene/UtilityPart.h"

namespace maxhost {

/// Who wants to know of changes that are not sent as notices.
class SceneObserver {
  public:
    virtual ~SceneObserver() = default;
    /// After NOTIFY_SELECTIONSET_CHANGED.
    virtual void selectionChanged() = 0;
    /// A node's transform controller was replaced; the former one is still alive.
    virtual void controllerReplaced() = 0;
};

/// The nodes of one scene file: a root that is no node of the user's, and below it the hierarchy. Owns all
/// its nodes, those aside that only undo keeps alive. Finding by handle or name, creating and deleting cost
/// (amortised) constant or logarithmic time. The undo list must be emptied before a scene is destroyed.
class CoreExport Scene {
  public:
    Scene();
    ~Scene();
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    /// The host's own node behind an INode; null gives null. There is no other implementation.
    static Node* hostNode(INode* node) { return static_cast<Node*>(node); }

    Node& root() { return *root_; }
    const Node& root() const { return *root_; }
    Selection& selection() { return selection_; }
    /// Null for none. Must outlive its use here.
    void setObserver(SceneObserver* observer) { observer_ = observer; }
    SceneObserver* observer() const { return observer_; }
    size_t nodeCount() const { return byHandle_.size(); }
    /// Null when there is none.
    Node* findByHandle(ULONG handle) const;
    /// Of several nodes with the name the one with the lowest handle; null when there is none.
    Node* findByName(const std::string& name) const;
    /// `base` and the lowest number, of two digits or more, that was not given out yet and makes a name of no
    /// node.
    std::string uniqueName(const std::string& base);
    /// The base of a name that ends in a number.
    static std::string withoutNumber(const std::string& name);
    /// All nodes, depth first, parents before children, siblings in order; the root left out.
    std::vector<Node*> nodesInOrder() const;

    /// A new last child with a fresh handle and nothing else; recorded while holding.
    Node& createNode(const std::string& name, Node& parent);
    /// The same with the handle and the parent that a file states, never recorded. Null when the handle is 0
    /// or taken.
    Node* restoreNode(ULONG handle, const std::string& name, Node& parent);
    /// Takes the node out of the scene, its children become children of the root, with `keepChildTM` at the
    /// place where they were at `t`. Recorded while holding, else the node is destroyed. Sends the notices 68
    /// and 69.
    void deleteNode(Node& node, TimeValue t, bool keepChildTM);

    /// What utilities that do not run have stored in the file of this scene, for its next save.
    std::vector<UtilityPart> foreignParts;

  private:
    friend class Node;
    friend class ScenePlaceRestore;

    void enter(Node& node, const Node::Link& link);
    void leave(Node& node);
    void noteName(Node& node);
    void forgetName(Node& node);

    struct ByHandle {
        bool operator()(const Node* a, const Node* b) const;
    };

    ULONG nextHandle_ = 1;
    Node* root_ = nullptr;
    SceneObserver* observer_ = nullptr;
    Selection selection_{*this};
    std::unordered_map<ULONG, Node*> byHandle_;
    std::unordered_map<std::string, std::set<Node*, ByHandle>> byName_;
    std::unordered_map<std::string, int> lastNumber_;  ///< last number given out for a base name
};

}  // namespace maxhost
