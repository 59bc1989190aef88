#pragma once

#include <hold.h>

#include <utility>

#include "maxhost/src/references/RecordHold.h"
#include "maxhost/src/scene/Node.h"

namespace maxhost {

/// Undo record of one changed property of a node: puts the former or the later value through the node's
/// setter. Leaves a node alone that is not in its scene.
template <class Value>
class NodeRestore : public RestoreObj {
  public:
    using Setter = void (Node::*)(const Value&);

    NodeRestore(Node& node, Setter setter, Value before, Value after)
        : node_(node), hold_(&node), setter_(setter), before_(std::move(before)), after_(std::move(after)) {}

    void Restore(int /*isUndo*/) override { set(before_); }
    void Redo() override { set(after_); }
    int Size() override { return static_cast<int>(sizeof(*this)); }
    TSTR Description() override { return TSTR(_T("Node property")); }

  private:
    void set(const Value& value) {
        if (node_.inScene()) (node_.*setter_)(value);
    }

    Node& node_;
    RecordHold hold_;
    Setter setter_;
    Value before_;
    Value after_;
};

/// Records the change if the host is holding and the node is part of the scene.
template <class Value>
void recordNodeChange(Node& node, void (Node::*setter)(const Value&), const Value& before,
                      const Value& after) {
    if (node.inScene() && theHold.Holding()) theHold.Put(new NodeRestore<Value>(node, setter, before, after));
}

}  // namespace maxhost
