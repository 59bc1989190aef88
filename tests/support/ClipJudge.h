#pragma once

#include <assimp/scene.h>

#include <algorithm>
#include <assimp/Importer.hpp>
#include <map>
#include <string>

/// An independent importer's evaluation of a motion-capture clip: a node tree with one position and one
/// rotation key per node and frame. End sites are nodes of their own to it.
class ClipJudge {
  public:
    using Matrix = aiMatrix4x4t<double>;

    explicit ClipJudge(const std::string& text) {
        scene_ = importer_.ReadFileFromMemory(text.data(), text.size(), 0, "bvh");
        if (scene_ == nullptr || scene_->mNumAnimations != 1) return;
        const aiAnimation& animation = *scene_->mAnimations[0];
        for (unsigned i = 0; i < animation.mNumChannels; ++i)
            channels_[animation.mChannels[i]->mNodeName.C_Str()] = animation.mChannels[i];
    }

    /// 0 when the importer does not accept the clip.
    std::size_t nodeCount() const { return channels_.size(); }

    /// World matrices by node name, column vectors, in the clip's units. There must be nodes.
    std::map<std::string, Matrix> worldAt(unsigned frame) const {
        std::map<std::string, Matrix> world;
        place(*scene_->mRootNode, Matrix(), frame, world);
        return world;
    }

  private:
    void place(const aiNode& node, const Matrix& parent, unsigned frame,
               std::map<std::string, Matrix>& world) const {
        const auto channel = channels_.find(node.mName.C_Str());
        const Matrix here = parent * (channel == channels_.end() ? widened(node.mTransformation)
                                                                 : keyed(*channel->second, frame));
        world[node.mName.C_Str()] = here;
        for (unsigned i = 0; i < node.mNumChildren; ++i)
            place(*node.mChildren[i], here, frame, world);
    }

    static Matrix widened(const aiMatrix4x4& m) {
        return {m.a1, m.a2, m.a3, m.a4, m.b1, m.b2, m.b3, m.b4,
                m.c1, m.c2, m.c3, m.c4, m.d1, m.d2, m.d3, m.d4};
    }

    static Matrix keyed(const aiNodeAnim& channel, unsigned frame) {
        const aiVector3D& p = channel.mPositionKeys[std::min(frame, channel.mNumPositionKeys - 1)].mValue;
        const aiQuaternion& q = channel.mRotationKeys[frame].mValue;
        Matrix m(aiQuaterniont<double>(q.w, q.x, q.y, q.z).GetMatrix());
        m.a4 = p.x;
        m.b4 = p.y;
        m.c4 = p.z;
        return m;
    }

    Assimp::Importer importer_;
    const aiScene* scene_ = nullptr;
    std::map<std::string, const aiNodeAnim*> channels_;
};
