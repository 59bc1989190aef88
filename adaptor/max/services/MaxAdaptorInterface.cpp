#include "adaptor/max/services/MaxAdaptorInterface.h"

#include <algorithm>
#include <memory>

#include "adaptor/max/Boundary.h"
#include "adaptor/max/nodes/CMAXNode.h"
#include "adaptor/max/nodes/HostTime.h"
#include "adaptor/max/plugin/UtilityManager.h"
#include "adaptor/max/services/CSetTimeRestoreObj.h"
#include "adaptor/max/services/NodeCreation.h"
#include "util/Log.h"

namespace qvo::zmx::adaptor::max {

using core::CoreNode;
using util::Log;
using util::logLine;

namespace {

// Made when the library is loaded: asked for, they cannot fail any more.
const std::string kAdaptorName = "3ds max 2010 Adaptor";
const std::string kAdaptorId = "adaptor_3dsmax2010";
const std::string kApplicationName = "3dsmax";
const std::string kApplicationVersion = "2010";

struct Releaser {
    void operator()(CUndo* record) const {
        guarded("CUndo::release", [&] { record->release(); });
    }
};

/// An undo record on its way into the host's hold: released when it does not get there.
using PendingRecord = std::unique_ptr<CUndo, Releaser>;

}  // namespace

MaxAdaptorInterface::MaxAdaptorInterface() {
    setName("MaxAdaptorInterface");
}

MaxAdaptorInterface::~MaxAdaptorInterface() {
    guarded("~MaxAdaptorInterface", [&] { letGoOfCore(); });
}

// Who we are

const std::string& MaxAdaptorInterface::getAdaptorName() {
    return kAdaptorName;
}

const std::string& MaxAdaptorInterface::getAdaptorId() {
    return kAdaptorId;
}

const std::string& MaxAdaptorInterface::getApplicationName() {
    return kApplicationName;
}

const std::string& MaxAdaptorInterface::getApplicationVersion() {
    return kApplicationVersion;
}

void MaxAdaptorInterface::getApplicationIds(util::ReturnValue<std::vector<std::string>>& ids) {
    guarded("getApplicationIds", [&] {
        ids.set({getApplicationName() + "_" + getApplicationVersion(), getApplicationName()});
    });
}

void* MaxAdaptorInterface::getMainWindowHandle() {
    return GetCOREInterface()->GetMAXHWnd();
}

int MaxAdaptorInterface::getConfigurationPath(util::ReturnValue<std::string>& path) {
    guarded("getConfigurationPath",
            [&] { path.set(UtilityManager::installPath("data") + "/core/layout/zmx_maxconfig.xml"); });
    return 0;
}

// Nodes

CoreNode* MaxAdaptorInterface::createHelperNode(core::Owner* owner, const std::string& name, CoreNode* parent,
                                                NodeListener* listener) {
    return guarded<CoreNode*>("createHelperNode", nullptr, [&] {
        return createHelper({owner, name, CMAXNode::of(parent), listener});
    });
}

CoreNode* MaxAdaptorInterface::findNode(core::Owner* owner, const std::string& name) {
    return guarded<CoreNode*>("findNode", nullptr, [&]() -> CoreNode* {
        const auto& all = nodes_.inOrder();
        const auto found = std::find_if(all.begin(), all.end(), [&](CMAXNode* wrapper) {
            return wrapper->owner == owner && wrapper->getName() == name;
        });
        return found == all.end() ? nullptr : *found;
    });
}

void MaxAdaptorInterface::getCreatedNodes(NodeList& result) {
    guarded("getCreatedNodes", [&] {
        std::vector<CoreNode*> created;
        for (CMAXNode* const wrapper : nodes_.inOrder())
            if (!wrapper->isRemoved()) created.push_back(wrapper);
        result.set(created);
    });
}

void MaxAdaptorInterface::getOwnedNodes(core::Owner* owner, NodeList& result) {
    guarded("getOwnedNodes", [&] {
        std::vector<CoreNode*> owned;
        for (CMAXNode* const wrapper : nodes_.inOrder())
            if (wrapper->owner == owner) owned.push_back(wrapper);
        result.set(owned);
    });
}

// Undo

int MaxAdaptorInterface::beginUndoGroup(const std::string& name) {
    guarded("beginUndoGroup", [&] { undoGroups_.begin(name); });
    return 0;
}

int MaxAdaptorInterface::endUndoGroup() {
    return guarded("endUndoGroup", 1, [&] { return undoGroups_.end() ? 0 : 1; });
}

int MaxAdaptorInterface::cancelUndoGroup() {
    undoGroups_.requestCancel();
    return endUndoGroup();
}

bool MaxAdaptorInterface::isUndoRecording() {
    return undoGroups_.isRecording();
}

int MaxAdaptorInterface::addUndoRecord(CUndo* record) {
    return addUndoRecord(record, CUndoWrapper::Origin::core);
}

int MaxAdaptorInterface::addOwnUndoRecord(CUndo* record) {
    return addUndoRecord(record, CUndoWrapper::Origin::adaptor);
}

int MaxAdaptorInterface::addUndoRecord(CUndo* record, CUndoWrapper::Origin origin) {
    PendingRecord pending(record);
    return guarded("addUndoRecord", 1, [&] {
        // A group can be open while the host has ended its hold: then there is nothing to put the record
        // into.
        if (!pending || !isUndoRecording() || !theHold.Holding()) return 1;
        UndoGroups::put(pending.get(), origin);
        static_cast<void>(pending.release());  // the host's from here on
        return 0;
    });
}

bool MaxAdaptorInterface::undoLastHostOperation() {
    guarded("undoLastHostOperation", [] {
        char command[] = "max undo";
        UtilityManager::instance().ExecuteStringScript(command);
    });
    return true;
}

int MaxAdaptorInterface::flushHostUndo() {
    guarded("flushHostUndo", [] {
        logLine(Log::kNotice, "Flushing 3ds max undo buffer");
        GetCOREInterface()->FlushUndoBuffer();
    });
    return 0;
}

// Time

double MaxAdaptorInterface::getTime() {
    return secondsFromTicks(GetCOREInterface()->GetTime());
}

void MaxAdaptorInterface::setTime(double seconds) {
    guarded("setTime", [&] { GetCOREInterface()->SetTime(ticksFromSeconds(seconds), TRUE); });
}

void MaxAdaptorInterface::setFrameRateMultiplier(int multiplier) {
    guarded("setFrameRateMultiplier", [&] { frameGrid_.setMultiplier(multiplier); });
}

core::AdaptorInterface::TimeRange MaxAdaptorInterface::getAnimationRange() {
    const Interval range = GetCOREInterface()->GetAnimRange();
    return {secondsFromTicks(range.Start()), secondsFromTicks(range.End())};
}

void MaxAdaptorInterface::setAnimationRange(TimeRange range) {
    guarded("setAnimationRange", [&] {
        GetCOREInterface()->SetAnimRange(
            Interval(ticksFromSeconds(range.first), ticksFromSeconds(range.second)));
    });
}

double MaxAdaptorInterface::getFrameRate() {
    return frameGrid_.userFrameRate();
}

double MaxAdaptorInterface::getFrameDuration() {
    return 1.0 / frameGrid_.userFrameRate();
}

// Views and keyboard

void MaxAdaptorInterface::redrawViews() {
    guarded("redrawViews", [] { GetCOREInterface()->ForceCompleteRedraw(FALSE); });
}

void MaxAdaptorInterface::disableAccelerators() {
    guarded("disableAccelerators", [] { DisableAccelerators(); });
}

void MaxAdaptorInterface::enableAccelerators() {
    guarded("enableAccelerators", [] { EnableAccelerators(); });
}

// Key batches

int MaxAdaptorInterface::beginKeyBatch() {
    guarded("beginKeyBatch", [&] {
        keyBatch_.begin();
        addOwnUndoRecord(new CSetTimeRestoreObj(getTime()));
        convertedObjects_.clear();
    });
    return 0;
}

int MaxAdaptorInterface::endKeyBatch() {
    guarded("endKeyBatch", [&] {
        keyBatch_.end();
        convertedObjects_.clear();
    });
    return 0;
}

void MaxAdaptorInterface::beginKeyBatchWith(core::OwnerList& owners) {
    beginKeyBatch();
    guarded("beginKeyBatchWith", [&] { rekeyDrivenNodes(owners); });
}

void MaxAdaptorInterface::rekeyDrivenNodes(core::OwnerList& owners) {
    const std::vector<core::Owner*>& wanted = owners.getOwners();
    const double seconds = getTime();
    for (CMAXNode* const wrapper : nodes_.copy()) {
        if (!wrapper->driven || std::find(wanted.begin(), wanted.end(), wrapper->owner) == wanted.end())
            continue;
        CoreNode::Snapshot* const snapshot = wrapper->acquireSnapshot(seconds);
        if (!snapshot) continue;
        snapshot->setWorldTransform(snapshot->getWorldTransform());
        wrapper->releaseSnapshot(snapshot);
    }
}

}  // namespace qvo::zmx::adaptor::max
