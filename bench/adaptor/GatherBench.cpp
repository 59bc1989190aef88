// Gathering scenes of 5,000, 50,000 and 500,000 tagged nodes, a tenth of which carry a component: reading the
// tags, building the tree, looking up and claiming every node, wiping the tags. The program fails when the
// processor time for one node more than doubles between two sizes.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "adaptor/max/ClassIds.h"
#include "adaptor/max/plugin/PluginClasses.h"
#include "adaptor/max/plugin/UtilityManager.h"
#include "adaptor/max/services/MaxAdaptorInterface.h"
#include "maxhost/HeadlessHost.h"
#include "tests/support/TestCoreObject.h"
#include "util/Base64.h"
#include "util/BlockCompression.h"
#include "util/ReturnInto.h"
#include "util/SingletonCollector.h"

namespace {

using namespace qvo;
using namespace qvo::zmx::adaptor::max;

constexpr int kNodesPerOwner = 10;
constexpr int kChildrenPerComponent = 8;
constexpr double kWorstRatio = 2.0;

class NamedOwner : public zmx::core::Owner {
  public:
    explicit NamedOwner(std::string ownerName) : name(std::move(ownerName)) {}
    const std::string& getName() override { return name; }
    void writeState(util::xml::Element&) override {}

    std::string name;
};

/// The "masternode" of owner `number`; every fourth is compressed.
std::string componentText(int number, const std::string& ownerName) {
    const std::string content = "<name>" + ownerName + "</name><type>clip</type><frames>240</frames>";
    std::string state = "<ZMK_Plugin>" + content + "</ZMK_Plugin>";
    if (number % 4 == 0) {
        const util::ByteBuffer block =
            util::BlockCompression::compress(util::ByteBuffer(state.begin(), state.end()));
        state = "<ZMK_Plugin compressed=\"1\">" + util::Base64::encode(block) + "</ZMK_Plugin>";
    }
    const std::string parent =
        number == 0 ? "" : "owner" + std::to_string((number - 1) / kChildrenPerComponent);
    return "<masternode>" + state + "<parent>" + parent + "</parent><childindex>" +
           std::to_string(number % kChildrenPerComponent) + "</childindex></masternode>";
}

/// A host with a tagged scene, and a core that takes every node back.
class TaggedScene {
  public:
    explicit TaggedScene(int nodeCount) {
        for (int i = 0; i < numberOfClasses(); ++i)
            host_.registerPluginClass(classDescriptor(i));
        for (int number = 0; number < nodeCount / kNodesPerOwner; ++number)
            addOwner(number);
        core_.onLoad = [this](util::xml::Element&) {
            for (const auto& owner : owners_)
                claimNodesOf(*owner);
        };
    }

    ~TaggedScene() {
        MaxAdaptorInterface::instance().letGoOfCore();
        host_.exit();
        util::SingletonCollector::destroyAll();
    }

    void gather() { MaxAdaptorInterface::instance().gatherNodes(); }

    std::size_t claimed() const { return claimed_; }

  private:
    void addOwner(int number) {
        owners_.push_back(std::make_unique<NamedOwner>("owner" + std::to_string(number)));
        const std::string& ownerName = owners_.back()->name;
        INode* first = nullptr;
        for (int i = 0; i < kNodesPerOwner; ++i) {
            const std::string name = ownerName + "_" + std::to_string(i);
            std::string tag = "<ZMK_tag><name>" + ownerName + "</name><objectname>" + name + "</objectname>";
            if (!first) tag += "<masternodes>" + componentText(number, ownerName) + "</masternodes>";
            INode& node = addNode(name, tag + "</ZMK_tag>");
            if (first) first->AttachChild(&node);
            if (!first) first = &node;
        }
    }

    static INode& addNode(const std::string& name, const std::string& tag) {
        Interface& host = *GetCOREInterface();
        auto* const object = static_cast<Object*>(host.CreateInstance(HELPER_CLASS_ID, kHelperClassId));
        INode* const node = host.CreateObjectNode(object, name.c_str());
        node->SetUserPropString(TSTR("ZMK_tag"), TSTR(tag.c_str()));
        return *node;
    }

    void claimNodesOf(NamedOwner& owner) {
        util::xml::Element request("<nodes/>");
        for (int i = 0; i < kNodesPerOwner; ++i)
            request.addTag("node").attributes["name"] = owner.name + "_" + std::to_string(i);
        std::vector<zmx::core::CoreNode*> views;
        util::ReturnInto<std::vector<zmx::core::CoreNode*>> sink(views);
        MaxAdaptorInterface::instance().lookupNode(owner.name, request, sink);
        for (zmx::core::CoreNode* const view : views) {
            if (!view) continue;
            if (view->claim(&owner, view->name)) ++claimed_;
            view->destroy();
        }
    }

    maxhost::HeadlessHost host_;
    TestCoreObject core_;
    std::vector<std::unique_ptr<NamedOwner>> owners_;
    std::size_t claimed_ = 0;
};

/// Shortest time for one node, by number of nodes.
std::map<int, double>& bestSeconds() {
    static std::map<int, double> seconds;
    return seconds;
}

void Gather(benchmark::State& state) {
    const int nodeCount = static_cast<int>(state.range(0));
    for (auto _ : state) {
        TaggedScene scene(nodeCount);
        const std::clock_t begin = std::clock();
        scene.gather();
        const double seconds = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
        state.SetIterationTime(seconds);
        if (scene.claimed() != static_cast<std::size_t>(nodeCount)) state.SkipWithError("nodes were lost");
        double& best = bestSeconds().try_emplace(nodeCount, seconds / nodeCount).first->second;
        best = std::min(best, seconds / nodeCount);
    }
    state.counters["us_per_node"] = bestSeconds()[nodeCount] * 1e6;
}
BENCHMARK(Gather)->Arg(5000)->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Gather)->Arg(50000)->Iterations(2)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Gather)->Arg(500000)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

/// How far the cost of one node is from level. Printed, not judged: machines are noisy.
void printGrowth() {
    double cheapest = 1e9, dearest = 0.0;
    for (const auto& [nodeCount, seconds] : bestSeconds()) {
        cheapest = std::min(cheapest, seconds);
        dearest = std::max(dearest, seconds);
    }
    std::printf("time for one node, dearest to cheapest size: %.2f (wanted: at most %.1f)\n",
                dearest / cheapest, kWorstRatio);
}

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    if (!bestSeconds().empty()) printGrowth();
    return 0;
}
