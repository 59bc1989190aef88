#include <assimp/postprocess.h>
#include <assimp/scene.h>

#include <assimp/Importer.hpp>
#include <filesystem>

#include "tests/support/AdaptorFixture.h"

namespace qvo::zmx::adaptor::max {
namespace {

/// All triangles of a model as one mesh; empty when the file is no readable model.
util::CMesh modelFrom(const std::filesystem::path& path) {
    Assimp::Importer importer;
    const aiScene* const scene = importer.ReadFile(path.string(), aiProcess_Triangulate);
    util::CMesh model;
    for (unsigned m = 0; scene && m < scene->mNumMeshes; ++m) {
        const aiMesh& part = *scene->mMeshes[m];
        const int first = static_cast<int>(model.vertices.size());
        for (unsigned i = 0; i < part.mNumVertices; ++i)
            model.vertices.push_back({part.mVertices[i].x, part.mVertices[i].y, part.mVertices[i].z});
        for (unsigned i = 0; i < part.mNumFaces; ++i)
            for (unsigned corner = 0; part.mFaces[i].mNumIndices == 3 && corner < 3; ++corner)
                model.faces.push_back(first + static_cast<int>(part.mFaces[i].mIndices[corner]));
    }
    return model;
}

using ModelRoundTrip = AdaptorFixture;

TEST_F(ModelRoundTrip, EveryModelOfThePackageComesBackAsItWasWritten) {
    int models = 0;
    for (const auto& file : std::filesystem::directory_iterator(ZK_OBJ_MODELS)) {
        if (file.path().extension() != ".obj") continue;
        const util::CMesh written = modelFrom(file.path());
        if (written.faces.empty()) continue;
        ++models;
        core::CoreNode* const node = adaptor().createMeshNode(&owner, "model", nullptr, written, nullptr);
        core::CoreNode::Snapshot_Mesh* const snapshot = node->acquireMeshSnapshot(0);
        const util::CMesh read = snapshot->getMesh();
        node->releaseMeshSnapshot(snapshot);
        EXPECT_EQ(read.faces, written.faces) << file.path();
        ASSERT_EQ(read.vertices.size(), written.vertices.size()) << file.path();
        for (std::size_t i = 0; i < read.vertices.size(); ++i) {
            EXPECT_EQ(read.vertices[i].x, written.vertices[i].x) << file.path();
            EXPECT_EQ(read.vertices[i].y, written.vertices[i].y) << file.path();
            EXPECT_EQ(read.vertices[i].z, written.vertices[i].z) << file.path();
        }
    }
    EXPECT_GT(models, 5);
}

}  // namespace
}  // namespace qvo::zmx::adaptor::max
