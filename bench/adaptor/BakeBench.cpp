#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "adaptor/max/plugin/OptionStore.h"
#include "adaptor/max/plugin/PluginClasses.h"
#include "adaptor/max/plugin/UtilityManager.h"
#include "adaptor/max/services/MaxAdaptorInterface.h"
#include "maxhost/HeadlessHost.h"

/// What a bake costs: growth with joints and frames, and one key through the whole boundary beside the same
/// key into the host's own controller. Every key is recorded for undo, as in a real bake.
namespace {

using namespace qvo::zmx;
using adaptor::max::MaxAdaptorInterface;
using adaptor::max::UtilityManager;

class Scene {
  public:
    /// A chain of helpers, with our controllers or with the host's own.
    Scene(int joints, bool ownControllers) {
        for (int i = 0; i < adaptor::max::numberOfClasses(); ++i)
            host_.registerPluginClass(adaptor::max::classDescriptor(i));
        UtilityManager::instance().options().setValue(adaptor::max::kOptimizedControllerOption,
                                                      ownControllers);
        core::CoreNode* parent = nullptr;
        for (int i = 0; i < joints; ++i) {
            // Limbs of ten joints, as skeletons have them.
            parent = adaptor().createHelperNode(nullptr, "joint" + std::to_string(i),
                                                i % 10 ? parent : nullptr, nullptr);
            nodes.push_back(parent);
        }
        adaptor().setFrameRateMultiplier(4);
    }
    ~Scene() {
        adaptor().letGoOfCore();
        host_.exit();
    }
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    void bake(int frames) {
        adaptor().beginUndoGroup("bake");
        adaptor().beginKeyBatch();
        Matrix4 transform = kIdentityMatrix4;
        for (int frame = 0; frame < frames; ++frame) {
            transform.m[3][0] = frame * 0.01;
            const double seconds = (frame + 0.5 / 40) / 120.0;
            for (core::CoreNode* const node : nodes) {
                core::CoreNode::Snapshot* const snapshot = node->acquireSnapshot(seconds);
                snapshot->setWorldTransform(transform);
                node->releaseSnapshot(snapshot);
            }
        }
        adaptor().endKeyBatch();
        adaptor().endUndoGroup();
    }

    /// The same keys, given to the host directly.
    void setInHost(int frames) {
        theHold.Begin();
        AnimateOn();
        Matrix3 transform(1);
        for (int frame = 0; frame < frames; ++frame) {
            transform.SetTrans(Point3(static_cast<float>(frame) * 0.4f, 0.0f, 0.0f));
            for (int i = 0; i < GetCOREInterface()->GetRootNode()->NumberOfChildren(); ++i)
                GetCOREInterface()->GetRootNode()->GetChildNode(i)->SetNodeTM(frame * 40, transform);
        }
        AnimateOff();
        char name[] = "set";
        theHold.Accept(name);
    }

    std::vector<core::CoreNode*> nodes;

  private:
    static MaxAdaptorInterface& adaptor() { return MaxAdaptorInterface::instance(); }

    maxhost::HeadlessHost host_;
};

void reportPerKey(benchmark::State& state, std::int64_t keys) {
    state.SetItemsProcessed(state.iterations() * keys);
    state.counters["per_key"] =
        benchmark::Counter(static_cast<double>(keys),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// Joints by frames: the time per key stays level.
void BM_Bake(benchmark::State& state) {
    const int joints = static_cast<int>(state.range(0));
    const int frames = static_cast<int>(state.range(1));
    for (auto _ : state) {
        state.PauseTiming();
        {
            Scene scene(joints, true);
            state.ResumeTiming();
            scene.bake(frames);
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
    reportPerKey(state, static_cast<std::int64_t>(joints) * frames);
}
BENCHMARK(BM_Bake)
    ->Args({30, 100})
    ->Args({30, 1000})
    ->Args({300, 100})
    ->Args({300, 1000})
    ->Args({300, 10000})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

constexpr int kPeerFrames = 10000;

/// One key through the whole boundary: snapshot, host node, our controller.
void BM_KeyThroughBoundary(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        {
            Scene scene(1, state.range(0) != 0);
            state.ResumeTiming();
            scene.bake(kPeerFrames);
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
    reportPerKey(state, kPeerFrames);
}
BENCHMARK(BM_KeyThroughBoundary)->ArgName("own_controller")->Arg(1)->Arg(0)->Iterations(5);

/// The peer: the same key set on the node in the host, with its default controller.
void BM_KeyIntoHostPrs(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        {
            Scene scene(1, false);
            state.ResumeTiming();
            scene.setInHost(kPeerFrames);
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
    reportPerKey(state, kPeerFrames);
}
BENCHMARK(BM_KeyIntoHostPrs)->Iterations(5);

}  // namespace
