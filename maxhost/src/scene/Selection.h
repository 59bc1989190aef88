#pragma once

#include <vector>

#include "maxhost/src/scene/Node.h"

namespace maxhost {

/// The selected nodes of a scene, in order of selecting. Every operation that changes something is recorded
/// while holding and sends NOTIFY_SELECTIONSET_CHANGED once; so do its undo and redo. The root and nodes
/// outside the scene are never selected. Adding costs constant time for each node.
class Selection {
  public:
    explicit Selection(Scene& scene) : scene_(scene) {}

    const std::vector<Node*>& nodes() const { return nodes_; }
    void add(const std::vector<Node*>& nodes) { replace({}, nodes); }
    void remove(const std::vector<Node*>& nodes) { replace(nodes, {}); }
    void clear() { replace(nodes_, {}); }
    /// Afterwards exactly these nodes are selected.
    void set(const std::vector<Node*>& nodes) { replace(nodes_, nodes); }
    /// Empties the list for a scene that is going away: nothing is recorded or sent.
    void drop();

  private:
    friend class SelectionRestore;
    struct Removed {
        size_t index;
        Node* node;
    };

    void replace(const std::vector<Node*>& leaving, const std::vector<Node*>& coming);
    /// Takes the selected ones of `leaving` out and says where they were, first place first.
    std::vector<Removed> takeOut(const std::vector<Node*>& leaving);
    /// Selects those of `coming` that can be and are not yet, and returns them.
    std::vector<Node*> append(const std::vector<Node*>& coming);
    void putBack(const std::vector<Removed>& removed);
    void tell();
    bool canSelect(const Node* node) const;

    Scene& scene_;
    std::vector<Node*> nodes_;
};

}  // namespace maxhost
