#pragma once

#include <string>
#include <vector>

#include "core/CNode.h"
#include "core/CSnapshot.h"
#include "core/CSnapshot_Helper.h"
#include "core/CSnapshot_Lens.h"
#include "core/CSnapshot_Mesh.h"
#include "core/CSnapshot_Shape.h"
#include "core/Owner.h"
#include "util/ReturnValue.h"

namespace qvo::zmx::core {

/// The core's handle on one scene node.
///
/// A registered wrapper is made together with its node, or by claim(); it has an owner and is the adaptor's.
/// It leaves the scene by deleteNode(), by the user's deletion and by undo, and then ends: at once or, where
/// undo or redo may bring it back, with the last undo record that could. The closing of its scene and
/// markRemoved() do not end it: they leave it to the core, removed, until releaseNode() or detach. A
/// transient wrapper is a short-lived view, which the core gives back through releaseNode().
///
/// Times are seconds. No operation throws; a wrapper whose node is gone answers null, false, 0 or does
/// nothing.
///
/// The slot order is a contract and never changes.
class CoreNode : public CNode {
  public:
    /// What extension() offers: each id with its argument, which is not kept, and its result. getExtensions()
    /// lists all but kConvertController. On a node that is gone all answer 0, but for the selection batch,
    /// which belongs to no node. Any other id gives 0 and a warning in the log.
    enum NodeExtension : int {
        /// Opens the selection batch, one for all nodes, with nothing selected: until it is closed select()
        /// adds to the selection and makes no undo entry. No argument. 1, or 0 when it is open already.
        kOpenSelectionBatch = 10,

        /// Closes the batch, as a scene that closes does. No argument. 1, or 0 when none is open.
        kCloseSelectionBatch = 11,

        /// Sets `driven` to false, then as kConvertController. No argument, 0.
        kStopDriving = 17,

        /// isSameNode() with the argument, a CoreNode*. 1 or 0.
        kIsSameNode = 31,

        /// setName() as one undo step. The argument is a std::string*; null does nothing. 0.
        kRenameUndoable = 32,

        /// Copies the node with its descendants. The argument is the CoreNode* to attach the copy to, by its
        /// local values and not by its placement, or null. The result is a CoreNode*: a view of the copy,
        /// given back through releaseNode(), or null.
        kCloneUnder = 37,

        /// Gives a node that the adaptor's controllers hold back to the host's own. No argument, 0.
        kConvertController = 57,
    };

    class Snapshot : public CSnapshot {};
    class Snapshot_Helper : public CSnapshot_Helper {};
    class Snapshot_Lens : public CSnapshot_Lens {};
    class Snapshot_Shape : public CSnapshot_Shape {};

    /// Stands between CSnapshot_Mesh and the implementations so that the second getMesh follows the
    /// destructor.
    class Snapshot_Mesh : public CSnapshot_Mesh {
      public:
        using CSnapshot_Mesh::getMesh;

        /// Hands the node's mesh to `sink`; false, and the sink untouched, when there is none.
        virtual bool getMesh(util::ReturnValue<util::CMesh>& sink) = 0;  // slot 7
    };

    virtual void addAnnotation(const std::string& text) { annotations.push_back(text); }  // slot 13

    virtual void getAnnotations(util::ReturnValue<std::vector<std::string>>& result) {  // slot 14
        result.set(annotations);
    }

    /// Deletes this wrapper; the scene node stays.
    virtual void destroy() = 0;  // slot 15

    /// Turns a view into a registered wrapper of the same node for `newOwner`. Null for a registered wrapper,
    /// and when the node is wrapped already. The view itself is unchanged.
    virtual CoreNode* claim(Owner* newOwner, std::string newName) = 0;  // slot 16

    /// Lets go of the node: the wrapper leaves the adaptor's list, has no owner any more, and is the core's
    /// to give back through releaseNode(). Does nothing to a view.
    virtual void markRemoved() = 0;  // slot 17

    // Snapshots are lent until the release operation of the same kind, for which null does nothing. All are
    // to be back when the wrapper ends: one that is still out then stays good but is never freed.

    virtual Snapshot* acquireSnapshot(double seconds) = 0;  // slot 18

    /// Of any node but a camera, for which it is null.
    virtual Snapshot_Helper* acquireHelperSnapshot() = 0;  // slot 19

    /// As the helper's, also for a node that shows no mesh.
    virtual Snapshot_Mesh* acquireMeshSnapshot(double seconds) = 0;  // slot 20

    /// Of a camera only; null for anything else.
    virtual Snapshot_Lens* acquireLensSnapshot(double seconds) = 0;  // slot 21

    /// Of a shape object only; null for anything else.
    virtual Snapshot_Shape* acquireShapeSnapshot(double seconds) = 0;  // slot 22

    virtual void releaseHelperSnapshot(Snapshot_Helper* snapshot) = 0;  // slot 23
    virtual void releaseMeshSnapshot(Snapshot_Mesh* snapshot) = 0;      // slot 24
    virtual void releaseLensSnapshot(Snapshot_Lens* snapshot) = 0;      // slot 25
    virtual void releaseShapeSnapshot(Snapshot_Shape* snapshot) = 0;    // slot 26
    virtual void releaseSnapshot(Snapshot* snapshot) = 0;               // slot 27

    /// True when both stand for one node of the scene; false for null.
    virtual bool isSameNode(CoreNode* other) = 0;  // slot 28

    /// Moves the node under `newParent`, or to the top level for null; its world placement is kept. Nothing
    /// happens when the parent's node is gone. Always 0.
    virtual int setParent(CoreNode* newParent) = 0;  // slot 29

    /// Deletes all keys after `seconds` from the node and its object. Nothing happens unless it is `driven`.
    virtual void clearAnimationFrom(double seconds) = 0;  // slot 30

    /// Renames the scene node; the text is cut at 1,024 characters.
    virtual void setName(std::string newName) = 0;  // slot 31

    /// The scene node's present name.
    virtual std::string getName() = 0;  // slot 32

    /// Ends the wrapper, and with `deleteHostNode` the scene node too; otherwise the node is only handed back
    /// to the host's own controllers. A view does nothing to a node that has an owner, unless it was obtained
    /// through a wrapper of the same owner.
    virtual void deleteNode(bool deleteHostNode) = 0;  // slot 33

    /// Copies the node, with `expandHierarchy` its descendants too. A view of the copy, given back through
    /// releaseNode(), or null.
    virtual CoreNode* cloneNode(bool expandHierarchy) = 0;  // slot 34

    /// On whose behalf the node exists; compared by identity; null when nobody owns it.
    Owner* owner = nullptr;

    /// The wrapper through which a view was obtained; null for registered wrappers. Known by identity only:
    /// it may be gone.
    CoreNode* origin = nullptr;

    /// True while the core moves the node.
    bool driven = true;

    std::vector<std::string> annotations;

  protected:
    CoreNode() = default;
    CoreNode(const CoreNode&) = default;
    CoreNode& operator=(const CoreNode&) = default;
};

}  // namespace qvo::zmx::core
