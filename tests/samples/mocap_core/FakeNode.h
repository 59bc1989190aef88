#pragma once

#include <functional>
#include <string>
#include <utility>

#include "core/CoreNode.h"

namespace qvo::zmx::mocap {

/// A node that only takes world transforms, a shape and a name. Each transform goes to `onKey` with its time
/// and is refused when that answers 0.
class FakeNode : public core::CoreNode {
  public:
    using OnKey = std::function<int(FakeNode&, double seconds, const Matrix4&)>;

    FakeNode(core::Owner* nodeOwner, const std::string& nodeName, NodeListener* nodeListener, OnKey onKey)
        : hostName(nodeOwner->getName() + "_" + nodeName), snapshot_(*this), onKey_(std::move(onKey)) {
        name = nodeName;
        owner = nodeOwner;
        listener = nodeListener;
    }

    std::string hostName;
    bool listed = true;  ///< among the adaptor's nodes
    std::size_t shownFaces = 0;
    int borrowed = 0;  ///< snapshots not given back; counts up for good in `acquired`
    int acquired = 0;

    Snapshot* acquireSnapshot(double seconds) override {
        ++borrowed;
        ++acquired;
        snapshot_.seconds = seconds;
        return &snapshot_;
    }
    void releaseSnapshot(Snapshot*) override { --borrowed; }

    void show() override {}
    void hide() override {}
    bool isVisible() override { return true; }
    void select() override {}
    bool isRemoved() override { return false; }
    CoreNode* getParent() override { return nullptr; }
    int numberOfChildren() override { return 0; }
    CoreNode* getChild(int) override { return nullptr; }
    void releaseNode(CoreNode*) override {}
    void destroy() override {}
    CoreNode* claim(core::Owner*, std::string) override { return nullptr; }
    void markRemoved() override {}
    Snapshot_Helper* acquireHelperSnapshot() override {
        ++borrowed;
        return &look_;
    }
    Snapshot_Mesh* acquireMeshSnapshot(double) override { return nullptr; }
    Snapshot_Lens* acquireLensSnapshot(double) override { return nullptr; }
    Snapshot_Shape* acquireShapeSnapshot(double) override { return nullptr; }
    void releaseHelperSnapshot(Snapshot_Helper*) override { --borrowed; }
    void releaseMeshSnapshot(Snapshot_Mesh*) override {}
    void releaseLensSnapshot(Snapshot_Lens*) override {}
    void releaseShapeSnapshot(Snapshot_Shape*) override {}
    bool isSameNode(CoreNode* other) override { return other == this; }
    int setParent(CoreNode*) override { return 0; }
    void clearAnimationFrom(double seconds) override { onKey_(*this, seconds, Matrix4{}); }
    void setName(std::string newName) override { hostName = newName; }
    std::string getName() override { return hostName; }
    void deleteNode(bool) override {}
    CoreNode* cloneNode(bool) override { return nullptr; }

  private:
    struct FakeSnapshot : Snapshot {
        explicit FakeSnapshot(FakeNode& ownNode) : node(ownNode) {}
        int setLocalTransform(const Matrix4&) override { return 0; }
        Matrix4 getLocalTransform() override { return kIdentityMatrix4; }
        Matrix4 getWorldTransform() override { return kIdentityMatrix4; }
        int setWorldTransform(const Matrix4& world) override { return node.onKey_(node, seconds, world); }
        double getTime() override { return seconds; }
        FakeNode& node;
        double seconds = 0.0;
    };

    struct FakeLook : Snapshot_Helper {
        explicit FakeLook(FakeNode& ownNode) : node(ownNode) {}
        void setMesh(const util::CMesh& mesh) override { node.shownFaces = mesh.faces.size() / 3; }
        void setColor(float, float, float) override {}
        void setWireframe(bool) override {}
        void setBackfaceCulling(bool) override {}
        FakeNode& node;
    };

    FakeSnapshot snapshot_;
    FakeLook look_{*this};
    OnKey onKey_;
};

}  // namespace qvo::zmx::mocap
