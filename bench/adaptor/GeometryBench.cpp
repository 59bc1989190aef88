#include <benchmark/benchmark.h>

#include <cstring>
#include <string>
#include <vector>

#include "adaptor/max/ClassIds.h"
#include "adaptor/max/nodes/MeshTransfer.h"
#include "adaptor/max/plugin/PluginClasses.h"
#include "adaptor/max/services/MaxAdaptorInterface.h"
#include "maxhost/HeadlessHost.h"

/// Meshes in and out beside a plain copy of the same bytes, scalar evaluation, and the playback of a large
/// scene.
namespace {

using namespace qvo::zmx::adaptor::max;
using qvo::util::CMesh;

/// A strip of triangles with texture coordinates.
CMesh strip(int vertices) {
    CMesh mesh;
    for (int i = 0; i < vertices; ++i) {
        mesh.vertices.push_back({0.1 * i, static_cast<double>(i % 2), 0});
        mesh.textureVertices.push_back({0.001 * i, static_cast<double>(i % 2), 0});
    }
    for (int i = 0; i + 2 < vertices; ++i)
        for (const int corner : {i, i + 1, i + 2})
            mesh.faces.push_back(corner);
    mesh.textureFaces = mesh.faces;
    return mesh;
}

std::size_t bytesOf(const CMesh& mesh) {
    return (mesh.vertices.size() + mesh.textureVertices.size()) * sizeof(qvo::util::Point3d) +
           (mesh.faces.size() + mesh.textureFaces.size()) * sizeof(int);
}

void reportBytes(benchmark::State& state, const CMesh& mesh) {
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytesOf(mesh)));
}

void BM_MeshIn(benchmark::State& state) {
    const CMesh mesh = strip(static_cast<int>(state.range(0)));
    Mesh host;
    for (auto _ : state)
        writeHostMesh(mesh, host);
    reportBytes(state, mesh);
}
BENCHMARK(BM_MeshIn)->Arg(1000)->Arg(100000);

void BM_MeshOut(benchmark::State& state) {
    const CMesh mesh = strip(static_cast<int>(state.range(0)));
    Mesh host;
    writeHostMesh(mesh, host);
    for (auto _ : state)
        benchmark::DoNotOptimize(meshFromHost(host));
    reportBytes(state, mesh);
}
BENCHMARK(BM_MeshOut)->Arg(1000)->Arg(100000);

/// The peer: the same bytes copied.
void BM_MeshBytesCopied(benchmark::State& state) {
    const CMesh mesh = strip(static_cast<int>(state.range(0)));
    const std::vector<char> from(bytesOf(mesh), 'x');
    std::vector<char> to(from.size());
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), from.size());
        benchmark::ClobberMemory();
    }
    reportBytes(state, mesh);
}
BENCHMARK(BM_MeshBytesCopied)->Arg(1000)->Arg(100000);

class Scene {
  public:
    Scene() {
        for (int i = 0; i < numberOfClasses(); ++i)
            host_.registerPluginClass(classDescriptor(i));
    }
    ~Scene() {
        MaxAdaptorInterface::instance().letGoOfCore();
        host_.exit();
    }
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

  private:
    maxhost::HeadlessHost host_;
};

/// One value of a scalar controller with a key on every frame, at the times of a playback between the keys.
void BM_ScalarEvaluation(benchmark::State& state) {
    const Scene scene;
    auto* const control =
        static_cast<Control*>(GetCOREInterface()->CreateInstance(CTRL_FLOAT_CLASS_ID, kScalarControlClassId));
    AnimateOn();
    constexpr int kKeys = 10000;
    for (int i = 0; i < kKeys; ++i) {
        float value = static_cast<float>(i % 100);
        control->SetValue(i * 160, &value, 1, CTRL_ABSOLUTE);
    }
    AnimateOff();
    TimeValue t = 0;
    for (auto _ : state) {
        float value = 0;
        Interval valid = FOREVER;
        control->GetValue(t, &value, valid, CTRL_ABSOLUTE);
        benchmark::DoNotOptimize(value);
        t = (t + 40) % (kKeys * 160);
    }
    control->DeleteThis();
}
BENCHMARK(BM_ScalarEvaluation);

/// A thousand nodes, keyed on every tenth frame, played back over a thousand frames.
void BM_Playback(benchmark::State& state) {
    const Scene scene;
    constexpr int kNodes = 1000;
    constexpr int kFrames = 1000;
    MaxAdaptorInterface& adaptor = MaxAdaptorInterface::instance();
    std::vector<INode*> nodes;
    qvo::zmx::core::CoreNode* parent = nullptr;
    for (int i = 0; i < kNodes; ++i) {
        const std::string name = "n" + std::to_string(i);
        parent = adaptor.createHelperNode(nullptr, name, i % 10 ? parent : nullptr, nullptr);
        nodes.push_back(GetCOREInterface()->GetINodeByName(("_" + name).c_str()));
    }
    AnimateOn();
    for (int frame = 0; frame <= kFrames; frame += 10)
        for (INode* const node : nodes) {
            Matrix3 place(1);
            place.PreRotateZ(0.01f * static_cast<float>(frame));
            place.SetTrans(Point3(static_cast<float>(frame), 0.0f, 0.0f));
            node->SetNodeTM(frame * 160, place);
        }
    AnimateOff();
    for (auto _ : state)
        for (int frame = 0; frame < kFrames; ++frame)
            for (INode* const node : nodes)
                benchmark::DoNotOptimize(node->GetNodeTM(frame * 160));
    state.counters["per_transform"] =
        benchmark::Counter(double{kNodes} * kFrames,
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_Playback)->Iterations(2)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
