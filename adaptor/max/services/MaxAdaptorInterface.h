#pragma once

#include <string>

#include "adaptor/max/Host.h"
#include "adaptor/max/nodes/ConvertedObjects.h"
#include "adaptor/max/nodes/DeletionTable.h"
#include "adaptor/max/nodes/NodeRegistry.h"
#include "adaptor/max/services/FrameGrid.h"
#include "adaptor/max/services/Gathering.h"
#include "adaptor/max/services/KeyBatch.h"
#include "adaptor/max/services/UndoGroups.h"
#include "core/AdaptorInterface.h"
#include "util/MessageNode.h"
#include "util/Singleton.h"

namespace qvo::zmx::adaptor::max {

/// The core's view of the host: the one object that is handed to the core at attach. Its operations only
/// check, guard and delegate; the work is in the classes of this folder and of nodes/.
class MaxAdaptorInterface : public core::AdaptorInterface,
                            public util::Singleton<MaxAdaptorInterface>,
                            public util::MessageNode {
  public:
    ~MaxAdaptorInterface() override;

    // AdaptorInterface, in slot order.
    unsigned int getAdaptorVersion() override { return kAdaptorVersion; }
    const std::string& getAdaptorName() override;
    const std::string& getAdaptorId() override;
    const std::string& getApplicationName() override;
    const std::string& getApplicationVersion() override;
    void getApplicationIds(util::ReturnValue<std::vector<std::string>>& ids) override;
    void* getMainWindowHandle() override;
    core::CoreNode* createHelperNode(core::Owner* owner, const std::string& name, core::CoreNode* parent,
                                     NodeListener* listener) override;
    core::CoreNode* createMeshNode(core::Owner* owner, const std::string& name, core::CoreNode* parent,
                                   const util::CMesh& mesh, NodeListener* listener) override;
    void* emptyQuery() override { return nullptr; }
    core::CoreNode* findNode(core::Owner* owner, const std::string& name) override;
    void tagOwnedNodes(core::Owner* owner) override;
    void gatherNodes() override;
    void getCreatedNodes(NodeList& result) override;
    void getOwnedNodes(core::Owner* owner, NodeList& result) override;
    void lookupNode(const std::string& ownerName, const util::xml::Element& request,
                    NodeList& result) override;
    void mergeFile(const std::string& path, NodeList& result) override;
    int beginUndoGroup(const std::string& name) override;
    int addUndoRecord(CUndo* record) override;
    int endUndoGroup() override;
    int cancelUndoGroup() override;
    bool isUndoRecording() override;
    bool undoLastHostOperation() override;
    double getTime() override;
    void setTime(double seconds) override;
    void setFrameRateMultiplier(int multiplier) override;
    TimeRange getAnimationRange() override;
    void setAnimationRange(TimeRange range) override;
    double getFrameRate() override;
    double getFrameDuration() override;
    void redrawViews() override;
    void disableAccelerators() override;
    void enableAccelerators() override;
    void beginKeyBatchWith(core::OwnerList& owners) override;
    int beginKeyBatch() override;
    int endKeyBatch() override;
    int flushHostUndo() override;
    int getConfigurationPath(util::ReturnValue<std::string>& path) override;
    void bindAdaptorOptions(core::OptionGroup* options) override;

    /// Messages of the option elements.
    void receive(util::Message& message, bool broadcast) override;

    // For the adaptor's other folders.

    /// The registered node wrappers.
    NodeRegistry& nodes() { return nodes_; }

    /// The host nodes that the host is about to delete, until their wrappers are out.
    const DeletionTable& nodesBeingDeleted() const { return nodesBeingDeleted_; }

    /// Triangle objects made from other objects, for the length of a key batch.
    ConvertedObjects& convertedObjects() { return convertedObjects_; }

    /// As addUndoRecord, for the adaptor's own records: they stay when the core goes.
    int addOwnUndoRecord(CUndo* record);

    // For UtilityManager, which owns the connection to the core.

    /// Lets go of everything that points into the core; called between its "detach" and the freeing of its
    /// library.
    void letGoOfCore();

    /// The core has been told that the scene closes: its wrappers leave with the scene.
    void sceneClosed();

    /// The host is about to read another scene, or a file that is none. It may refuse the file and keep the
    /// scene it has, so the wrappers stay until another scene is there.
    void expectScene(bool expected) { sceneExpected_ = expected; }

    /// Another scene is there, if one is expected: the old one has closed. Otherwise nothing happens.
    void sceneArrived();

    /// The host has given up reading. The wrappers stay unless it had emptied the scene by then.
    void sceneRefused();

    /// The host is about to delete these nodes (borrowed; null counts as none).
    void nodesAboutToBeDeleted(const Tab<INode*>* nodes);

    /// The core has been told of that deletion: takes the nodes' wrappers out and tells their listeners.
    /// While the host holds, the user's undo brings wrapper and node back together.
    void nodesDeleted();

  private:
    friend class util::Singleton<MaxAdaptorInterface>;

    static constexpr unsigned int kAdaptorVersion = 9201;

    MaxAdaptorInterface();

    int addUndoRecord(CUndo* record, CUndoWrapper::Origin origin);
    void rekeyDrivenNodes(core::OwnerList& owners);

    NodeRegistry nodes_;
    DeletionTable nodesBeingDeleted_;
    ConvertedObjects convertedObjects_;
    UndoGroups undoGroups_;
    KeyBatch keyBatch_;
    FrameGrid frameGrid_;
    Gathering gathering_;
    bool sceneExpected_ = false;
};

}  // namespace qvo::zmx::adaptor::max
