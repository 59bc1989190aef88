#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

#include "samples/mocap_core/bvh/Clip.h"
#include "samples/mocap_core/bvh/Tokenizer.h"

namespace qvo::zmx::mocap {

/// Reads the HIERARCHY section: one or more trees of joints, each with its offset and channels before its
/// children. Nothing recurses. A joint name met again gets "_2", "_3", ... appended, since nodes are found
/// by their names later. Every function throws FileError.
class HierarchyReader {
  public:
    /// Deeper nesting is refused: no skeleton needs it, and hosts walk their node trees recursively.
    static constexpr std::size_t kMaxDepth = 512;

    /// `tokens` and `clip` must outlive the reader.
    HierarchyReader(Tokenizer& tokens, Clip& clip);

    /// Fills the clip's joints, end sites and channel count.
    void read();

  private:
    /// A joint whose '}' has not been met.
    struct OpenJoint {
        int index;
        bool hasOffset = false;
        bool hasChannels = false;
    };

    void readStatement();
    void openJoint();
    void closeJoint(const Token& brace);
    void readOffset(const Token& keyword);
    void readChannels(const Token& keyword);
    void readEndSite(const Token& keyword);
    void requireDefined(const Token& where) const;
    std::array<double, 3> readVector(const std::string& what);
    std::string uniqueName(const std::string& name);
    Joint& current() { return clip_.joints[static_cast<std::size_t>(open_.back().index)]; }
    std::string currentName() const;

    Tokenizer& tokens_;
    Clip& clip_;
    std::vector<OpenJoint> open_;
    std::unordered_map<std::string, int> nameUses_;
};

}  // namespace qvo::zmx::mocap
