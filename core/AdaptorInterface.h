#pragma once

#include <string>
#include <utility>
#include <vector>

#include "core/CUndo.h"
#include "core/CoreNode.h"
#include "core/NodeListener.h"
#include "core/Owner.h"
#include "core/OwnerList.h"
#include "util/CMesh.h"
#include "util/ReturnValue.h"
#include "util/xml/Element.h"

namespace qvo::zmx::core {

class OptionGroup;

/// Everything that the core may ask of the scene application. The core receives the instance at attach and
/// must not use it after detach.
///
/// Times are seconds. Results of variable size go through the caller's sink, which is called once. No
/// operation throws; where an operation can fail it says so by 1, null or an empty list. Strings returned by
/// reference live as long as the process.
///
/// The slot order is a contract and never changes.
class AdaptorInterface {
  public:
    /// Sink for a list of node wrappers.
    using NodeList = util::ReturnValue<std::vector<CoreNode*>>;

    /// Start and end, in seconds.
    using TimeRange = std::pair<double, double>;

    virtual unsigned int getAdaptorVersion() = 0;            // slot 0
    virtual const std::string& getAdaptorName() = 0;         // slot 1
    virtual const std::string& getAdaptorId() = 0;           // slot 2
    virtual const std::string& getApplicationName() = 0;     // slot 3
    virtual const std::string& getApplicationVersion() = 0;  // slot 4

    /// The names under which the application is known, the most specific first. None by default.
    virtual void getApplicationIds(util::ReturnValue<std::vector<std::string>>& ids) {
        ids.set({});
    }  // slot 5

    /// The host's main window handle.
    virtual void* getMainWindowHandle() = 0;  // slot 6

    /// Makes a helper node for `owner` under `parent` (null: top level). The registered wrapper, or null.
    /// `listener` may be null; owner and listener stay the core's.
    virtual CoreNode* createHelperNode(Owner* owner, const std::string& name, CoreNode* parent,
                                       NodeListener* listener) = 0;  // slot 7

    /// Makes a node that shows `mesh` (object-local, host axes, system units). The registered wrapper, or
    /// null.
    virtual CoreNode* createMeshNode(Owner* owner, const std::string& name, CoreNode* parent,
                                     const util::CMesh& mesh, NodeListener* listener) = 0;  // slot 8

    /// Always null.
    virtual void* emptyQuery() = 0;  // slot 9

    /// The first registered wrapper of `owner` whose scene node has exactly this name, or null.
    virtual CoreNode* findNode(Owner* owner, const std::string& name) = 0;  // slot 10

    /// Writes the owner's state and name into tags on its nodes.
    virtual void tagOwnedNodes(Owner* owner) = 0;  // slot 11

    /// Reads and empties all tags, and hands what they hold to the core through CoreObject::loadState.
    virtual void gatherNodes() = 0;  // slot 12

    /// All registered wrappers that are part of the scene, in order of creation.
    virtual void getCreatedNodes(NodeList& result) = 0;  // slot 13

    /// All registered wrappers of `owner`, in order of creation.
    virtual void getOwnedNodes(Owner* owner, NodeList& result) = 0;  // slot 14

    /// Finds nodes by description: one entry for each "node" child of `request`, null where nothing was
    /// found. The entries are views, given back through CNode::releaseNode.
    virtual void lookupNode(const std::string& ownerName, const util::xml::Element& request,
                            NodeList& result) = 0;  // slot 15

    /// Merges the models of another scene file; the sink gets views of the nodes that arrived, given back
    /// through CNode::releaseNode. A file that cannot be merged gives an empty list and a warning in the log.
    virtual void mergeFile(const std::string& path, NodeList& result) = 0;  // slot 16

    /// Opens a named undo group; groups nest, the outermost names the user's undo entry. Always 0.
    virtual int beginUndoGroup(const std::string& name) = 0;  // slot 17

    /// Hands a record to the host. 0, or 1 when nothing is being recorded; the record is the adaptor's either
    /// way.
    virtual int addUndoRecord(CUndo* record) = 0;  // slot 18

    /// Closes the innermost group. 0, or 1 when none is open.
    virtual int endUndoGroup() = 0;  // slot 19

    /// Marks the outermost group as cancelled and closes the innermost. As endUndoGroup.
    virtual int cancelUndoGroup() = 0;  // slot 20

    /// True while a group is open and the host is not itself undoing or redoing.
    virtual bool isUndoRecording() = 0;  // slot 21

    /// Has the host undo its last operation. Always true.
    virtual bool undoLastHostOperation() = 0;  // slot 22

    virtual double getTime() = 0;              // slot 23
    virtual void setTime(double seconds) = 0;  // slot 24

    /// Makes the host's frame grid `multiplier` times as fine as the user's. One that is below 1, or leaves
    /// less than a tick for a frame, is ignored with a warning in the log. Nothing by default.
    virtual void setFrameRateMultiplier(int multiplier) { static_cast<void>(multiplier); }  // slot 25

    virtual TimeRange getAnimationRange() = 0;            // slot 26
    virtual void setAnimationRange(TimeRange range) = 0;  // slot 27

    /// Frames per second as the user sees them, without the multiplier.
    virtual double getFrameRate() = 0;      // slot 28
    virtual double getFrameDuration() = 0;  // slot 29, seconds

    virtual void redrawViews() = 0;  // slot 30

    /// Switches the host's keyboard shortcuts off, so that keys reach a window of the core that has the
    /// focus, and on again. Each call of the first needs one of the second.
    virtual void disableAccelerators() = 0;  // slot 31
    virtual void enableAccelerators() = 0;   // slot 32

    /// As beginKeyBatch; then re-keys the driven nodes of the given owners at the current time.
    virtual void beginKeyBatchWith(OwnerList& owners) = 0;  // slot 33

    /// Begins writing keys: every transform set until endKeyBatch makes a key. Batches nest. Always 0.
    virtual int beginKeyBatch() = 0;  // slot 34

    /// Ends the innermost batch; without one nothing happens. Always 0.
    virtual int endKeyBatch() = 0;  // slot 35

    /// Clears the host's undo history. Always 0.
    virtual int flushHostUndo() = 0;  // slot 36

    /// The path of the adaptor's layout configuration. Always 0.
    virtual int getConfigurationPath(util::ReturnValue<std::string>& path) = 0;  // slot 37

    /// Connects the adaptor's option elements; null disconnects nothing and is ignored.
    virtual void bindAdaptorOptions(OptionGroup* options) = 0;  // slot 38

  protected:
    AdaptorInterface() = default;
    AdaptorInterface(const AdaptorInterface&) = default;
    AdaptorInterface& operator=(const AdaptorInterface&) = default;
    ~AdaptorInterface() = default;
};

}  // namespace qvo::zmx::core
