#include "samples/mocap_core/FilePath.h"

#include <gtest/gtest.h>

namespace qvo::zmx::mocap {
namespace {

/// The bytes of a code page that is not UTF-8.
const std::string kFolder = "C:\\B\xFCro 1\xE9";

TEST(FilePath, KeepsEveryByte) {
    const struct {
        std::string path, stem, besideSettings;
    } cases[] = {
        {"m\xE9re.bvh", "m\xE9re", kFolder + "\\m\xE9re.bvh"},
        {"clips/walk.1.bvh", "walk.1", kFolder + "\\clips/walk.1.bvh"},
        {"..\\.bvh", ".bvh", kFolder + "\\..\\.bvh"},
        {"/a.b/walk", "walk", "/a.b/walk"},
        {"\\\\disk\\walk.bvh", "walk", "\\\\disk\\walk.bvh"},
        {"d:/walk.bvh", "walk", "d:/walk.bvh"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(path::stem(row.path), row.stem);
        EXPECT_EQ(path::beside(kFolder + "\\settings.xml", row.path), row.besideSettings);
        EXPECT_EQ(path::beside("settings.xml", row.path), row.path);
    }
}

}  // namespace
}  // namespace qvo::zmx::mocap
