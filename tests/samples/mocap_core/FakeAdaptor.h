#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/AdaptorInterface.h"
#include "core/OptionGroup.h"
#include "tests/samples/mocap_core/FakeNode.h"

namespace qvo::zmx::mocap {

/// Writes down what the core asks for, keeps time as the adaptor does, and can undo, redo and fail.
class FakeAdaptor : public core::AdaptorInterface {
  public:
    std::string calls;         ///< the calls that change something, "; " between them
    std::string settingsPath;  ///< what getConfigurationPath answers
    std::string failAt;        ///< the call, as it would be written down, that fails
    unsigned int version = 9201;
    int hostRate = 30;
    int multiplier = 1;
    int rangeEnd = 19680;  ///< ticks; the range starts at 0
    Matrix4 lastKey{};
    std::vector<std::unique_ptr<FakeNode>> nodes;
    util::xml::Element masternodes;  ///< as the latest tagged owner filled them
    core::OptionGroup* options = nullptr;

    ~FakeAdaptor() {
        for (CUndo* record : records_)
            record->release();
    }

    /// As the host does: the latest record first, then the nodes leave.
    void undo() { takeBack(true, 0, 0); }
    void redo() {
        for (auto& node : nodes) {
            node->listed = true;
            node->listener->restored(node.get());
        }
        for (CUndo* record : records_)
            record->redo();
    }

    unsigned int getAdaptorVersion() override { return version; }
    const std::string& getAdaptorName() override { return text_; }
    core::CoreNode* createHelperNode(core::Owner* owner, const std::string& name, core::CoreNode* parent,
                                     NodeListener* listener) override {
        if (!note("create " + owner->getName() + "_" + name + " under " + (parent ? parent->name : "scene")))
            return nullptr;
        nodes.push_back(std::make_unique<FakeNode>(
            owner, name, listener, [this](FakeNode& node, double seconds, const Matrix4& world) {
                lastKey = world;
                const std::string what = seconds < 0 ? "clear " : "key ";
                return note(what + node.name + " " + std::to_string(ticks(seconds))) ? 1 : 0;
            }));
        return nodes.back().get();
    }
    int beginUndoGroup(const std::string& name) override {
        recordsBefore_ = records_.size();
        nodesBefore_ = nodes.size();
        return note("begin " + name), 0;
    }
    int addUndoRecord(CUndo* record) override {
        if (!note("record")) return record->release(), 1;
        records_.push_back(record);
        return 0;
    }
    int endUndoGroup() override { return note("end") ? 0 : 1; }
    int cancelUndoGroup() override {
        note("cancel");
        takeBack(false, recordsBefore_, nodesBefore_);
        for (; records_.size() > recordsBefore_; records_.pop_back())
            records_.back()->release();
        return 0;
    }
    void setFrameRateMultiplier(int value) override {
        hostRate = hostRate / multiplier * value;
        multiplier = value;
        note("multiplier " + std::to_string(value));
    }
    TimeRange getAnimationRange() override {
        return {0.0, rangeEnd / static_cast<double>(hostRate * perFrame())};
    }
    void setAnimationRange(TimeRange range) override {
        rangeEnd = ticks(range.second);
        note("range " + std::to_string(ticks(range.first)) + " " + std::to_string(rangeEnd));
    }
    double getFrameRate() override { return hostRate / multiplier; }
    void redrawViews() override { note("redraw"); }
    int beginKeyBatch() override { return note("keys on"), 0; }
    int endKeyBatch() override { return note("keys off"), 0; }
    int getConfigurationPath(util::ReturnValue<std::string>& path) override {
        return path.set(settingsPath), 0;
    }

    const std::string& getAdaptorId() override { return text_; }
    const std::string& getApplicationName() override { return text_; }
    const std::string& getApplicationVersion() override { return text_; }
    void* getMainWindowHandle() override { return nullptr; }
    core::CoreNode* createMeshNode(core::Owner*, const std::string&, core::CoreNode*, const util::CMesh&,
                                   NodeListener*) override {
        return nullptr;
    }
    void* emptyQuery() override { return nullptr; }
    core::CoreNode* findNode(core::Owner*, const std::string&) override { return nullptr; }
    void tagOwnedNodes(core::Owner* owner) override {
        masternodes.clear();
        owner->writeState(masternodes);
    }
    void gatherNodes() override {}
    void getCreatedNodes(NodeList&) override {}
    void getOwnedNodes(core::Owner* owner, NodeList& result) override {
        std::vector<core::CoreNode*> owned;
        for (auto& node : nodes)
            if (node->listed && node->owner == owner) owned.push_back(node.get());
        result.set(owned);
    }
    void lookupNode(const std::string&, const util::xml::Element&, NodeList&) override {}
    void mergeFile(const std::string&, NodeList&) override {}
    bool isUndoRecording() override { return true; }
    bool undoLastHostOperation() override { return true; }
    double getTime() override { return 0.0; }
    void setTime(double) override {}
    double getFrameDuration() override { return 1.0 / getFrameRate(); }
    void disableAccelerators() override {}
    void enableAccelerators() override {}
    void beginKeyBatchWith(core::OwnerList&) override {}
    int flushHostUndo() override { return 0; }
    void bindAdaptorOptions(core::OptionGroup* group) override { options = group; }

  private:
    int perFrame() const { return 4800 / hostRate; }
    int ticks(double seconds) const { return static_cast<int>(hostRate * seconds * perFrame()); }

    void takeBack(bool isUndo, std::size_t firstRecord, std::size_t firstNode) {
        for (std::size_t i = records_.size(); i-- > firstRecord;)
            records_[i]->restore(isUndo);
        for (std::size_t i = nodes.size(); i-- > firstNode;) {
            nodes[i]->listed = false;
            nodes[i]->listener->removed(nodes[i].get());
        }
    }

    /// False when this is the call that fails.
    bool note(const std::string& call) {
        calls += (calls.empty() ? "" : "; ") + call;
        return call != failAt;
    }

    std::string text_ = "fake";
    std::vector<CUndo*> records_;
    std::size_t recordsBefore_ = 0;  // when the undo group began
    std::size_t nodesBefore_ = 0;
};

}  // namespace qvo::zmx::mocap
