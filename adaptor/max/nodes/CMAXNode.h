#pragma once

#include <string>
#include <vector>

#include "adaptor/max/Host.h"
#include "adaptor/max/nodes/HostNodeRef.h"
#include "adaptor/max/nodes/SnapshotPool.h"
#include "core/CoreNode.h"

namespace qvo::zmx::adaptor::max {

class NodeInstanceRestoreObj;

/// The core's handle on one host node.
///
/// A registered wrapper is listed in the adaptor's NodeRegistry; a transient one (isRemoved) is a view that
/// the core owns and gives back. The host node may die at any time: the wrapper remembers its handle and asks
/// the host before each use; a dead or null host node gives empty, null, false, 0 or no action.
///
/// The wrapper owns its snapshots, but for those still lent when it dies: they know the host node by
/// themselves and stay good. It never deletes the host node by itself.
class CMAXNode : public core::CoreNode {
  public:
    class CMAXSnapshot;
    class CMAXSnapshot_Helper;
    class CMAXSnapshot_Lens;
    class CMAXSnapshot_Mesh;
    class CMAXSnapshot_Shape;

    /// A registered wrapper; it adds itself to the registry. With both `parent` and `hostNode`, the node is
    /// first attached under the parent's, keeping its world placement.
    CMAXNode(core::Owner* nodeOwner, std::string nodeName, CMAXNode* parent, INode* hostNode);

    /// A transient wrapper of an existing node, obtained through `from` (may be null). Takes name and owner
    /// over from the node's registered wrapper, if there is one.
    CMAXNode(CMAXNode* from, INode* hostNode);

    ~CMAXNode() override;

    CMAXNode(const CMAXNode&) = delete;
    CMAXNode& operator=(const CMAXNode&) = delete;

    /// The wrapper behind a node that crossed the boundary, null for null: every node the core holds came
    /// from this adaptor.
    static CMAXNode* of(core::CoreNode* node) { return static_cast<CMAXNode*>(node); }

    /// The host node, or null when there is none or the host does not know it any more.
    INode* hostNode() const { return node_.get(); }

    /// The host node's handle, 0 without a host node.
    ULONG handle() const { return node_.handle(); }

    /// Takes the wrapper out of the registry and, while changes are recorded and it has an owner, hands it to
    /// an undo record that can bring it back; destroys it otherwise.
    void retireOrDestroy();

    /// The scene loses the wrapper's node by another way than the wrapper's own deleteNode(): tells the
    /// listener, which may end the wrapper, and takes out what is then still registered.
    static void takeOut(CMAXNode& wrapper);

    /// The core is going: drops owner and listener, and destroys the wrapper unless an undo record holds it.
    void abandon();
    bool isAbandoned() const { return abandoned_; }
    void destroyIfAbandoned();

    /// An undo record begins or ends to keep the wrapper alive.
    void holdBy(NodeInstanceRestoreObj& record);
    void letGoBy(NodeInstanceRestoreObj& record);

    // CExtendable
    std::intptr_t extension(int id, void* argument) override;
    std::vector<unsigned int> getExtensions() override;

    // CNode
    void show() override;
    void hide() override;
    bool isVisible() override;
    void select() override;
    bool isRemoved() override { return removed_; }
    core::CoreNode* getParent() override;
    int numberOfChildren() override;
    core::CoreNode* getChild(int index) override;
    void releaseNode(core::CoreNode* node) override;

    // CoreNode
    void addAnnotation(const std::string& text) override;
    void getAnnotations(util::ReturnValue<std::vector<std::string>>& result) override;
    void destroy() override { delete this; }
    core::CoreNode* claim(core::Owner* newOwner, std::string newName) override;
    void markRemoved() override;
    Snapshot* acquireSnapshot(double seconds) override;
    Snapshot_Helper* acquireHelperSnapshot() override;
    Snapshot_Mesh* acquireMeshSnapshot(double seconds) override;
    Snapshot_Lens* acquireLensSnapshot(double seconds) override;
    Snapshot_Shape* acquireShapeSnapshot(double seconds) override;
    void releaseHelperSnapshot(Snapshot_Helper* snapshot) override;
    void releaseMeshSnapshot(Snapshot_Mesh* snapshot) override;
    void releaseLensSnapshot(Snapshot_Lens* snapshot) override;
    void releaseShapeSnapshot(Snapshot_Shape* snapshot) override;
    void releaseSnapshot(Snapshot* snapshot) override;
    bool isSameNode(core::CoreNode* other) override;
    int setParent(core::CoreNode* newParent) override;
    void clearAnimationFrom(double seconds) override;
    void setName(std::string newName) override;
    std::string getName() override;
    void deleteNode(bool deleteHostNode) override;
    core::CoreNode* cloneNode(bool expandHierarchy) override;

  private:
    /// A clone of the host node with its descendants or without them, or null.
    INode* cloneHostNode(bool expandHierarchy);

    // The work of the extensions.
    void convertHostController();
    void renameUndoable(const std::string& newName);
    core::CoreNode* cloneUnder(core::CoreNode* parent);

    /// Lends a snapshot of the node's object at `seconds`, or null when the object is of another super class.
    template <class Kind>
    Kind* acquireOfClass(SClass_ID superClass, SnapshotPool<Kind>& pool, double seconds);

    /// The host's part of a deletion: the node itself, or only its hold by our controllers. True when the
    /// node was deleted.
    bool deleteHostSide(bool deleteHostNode);

    bool removed_;
    bool abandoned_ = false;
    core::Owner* originOwner_ = nullptr;  ///< of `origin`, which may be gone by the time it counts
    HostNodeRef node_;

    SnapshotPool<CMAXSnapshot> snapshots_;
    SnapshotPool<CMAXSnapshot_Helper> helperSnapshots_;
    SnapshotPool<CMAXSnapshot_Lens> lensSnapshots_;
    SnapshotPool<CMAXSnapshot_Mesh> meshSnapshots_;
    SnapshotPool<CMAXSnapshot_Shape> shapeSnapshots_;

    std::vector<NodeInstanceRestoreObj*> records_;  ///< the undo records that hold this wrapper
};

/// Longest node name handed to the host, in characters.
inline constexpr std::size_t kMaxNodeName = 1024;

/// Gives the host node a name, cut to kMaxNodeName characters.
void renameHostNode(INode& node, const std::string& name);

}  // namespace qvo::zmx::adaptor::max
