#pragma once

#include <max.h>

#include <functional>
#include <vector>

namespace maxhost::test {

/// A target with any number of references that notes what it is told.
class TestTarget : public ReferenceTarget {
  public:
    static int alive;

    explicit TestTarget(int references = 0) : refs_(static_cast<size_t>(references), nullptr) { ++alive; }

    void DeleteThis() override { delete this; }
    SClass_ID SuperClassID() override { return superClass; }
    int NumRefs() override { return static_cast<int>(refs_.size()); }
    RefTargetHandle GetReference(int i) override { return refs_[static_cast<size_t>(i)]; }
    void SetReference(int i, RefTargetHandle target) override { refs_[static_cast<size_t>(i)] = target; }
    BOOL IsRealDependency(ReferenceTarget*) override { return strong ? TRUE : FALSE; }
    RefResult NotifyRefChanged(Interval, RefTargetHandle hTarget, PartID& partID,
                               RefMessage message) override {
        heard.push_back({hTarget, partID, message});
        if (forgetsDeleted && message == REFMSG_TARGET_DELETED) {
            for (RefTargetHandle& ref : refs_)
                if (ref == hTarget) ref = nullptr;
        }
        if (onMessage) onMessage(message);
        partID |= partToAdd;
        return message == REFMSG_LOOPTEST ? REF_SUCCEED : answer;
    }
    RefTargetHandle Clone(RemapDir& remap) override {
        auto* const clone = new TestTarget(NumRefs());
        for (int i = 0; i < NumRefs(); ++i)
            clone->ReplaceReference(i, remap.CloneRef(GetReference(i)));
        BaseClone(this, clone, remap);
        return clone;
    }
    /// How often it has heard `message`.
    int count(RefMessage message) const {
        int times = 0;
        for (const Heard& h : heard)
            times += h.message == message ? 1 : 0;
        return times;
    }

    struct Heard {
        RefTargetHandle sender;
        PartID part;
        RefMessage message;
    };
    std::vector<Heard> heard;
    SClass_ID superClass = REF_TARGET_CLASS_ID;
    RefResult answer = REF_SUCCEED;
    PartID partToAdd = 0;
    bool strong = true;
    bool forgetsDeleted = false;
    std::function<void(RefMessage)> onMessage;

  protected:
    ~TestTarget() override { --alive; }

  private:
    std::vector<RefTargetHandle> refs_;
};

inline int TestTarget::alive = 0;

}  // namespace maxhost::test
