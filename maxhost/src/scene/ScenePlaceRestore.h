#pragma once

#include <hold.h>

#include "maxhost/src/references/RecordHold.h"
#include "maxhost/src/scene/Node.h"

namespace maxhost {

/// Undo record of a node that joined or left its scene. A node that is outside the scene when its record of
/// creation is thrown away dies with it.
class ScenePlaceRestore : public RestoreObj {
  public:
    static RestoreObj* ofCreation(Node& node, const Node::Link& link);
    static RestoreObj* ofDeletion(Node& node, const Node::Link& link);
    ~ScenePlaceRestore() override;

    void Restore(int isUndo) override;
    void Redo() override;
    int Size() override { return static_cast<int>(sizeof(*this)); }
    TSTR Description() override { return TSTR(created_ ? _T("Create node") : _T("Delete node")); }

  private:
    ScenePlaceRestore(Node& node, const Node::Link& link, bool created);
    void putIn();
    void takeOut();

    Node& node_;
    RecordHold holdNode_;
    RecordHold holdParent_;
    Node::Link link_;
    const bool created_;
};

}  // namespace maxhost
