#include <cmath>
#include <functional>
#include <limits>

#include "tests/adaptor/controllers/ControllerTest.h"
#include "tests/support/ChunkBuffer.h"

namespace qvo::zmx::test {
namespace {

class KeyChunk : public ControllerTest {
  protected:
    template <typename Controller>
    static std::string saved(Used<Controller>& control) {
        ChunkSaver saver;
        EXPECT_EQ(control->Save(&saver), IO_OK);
        EXPECT_EQ(saver.chunks.size(), 1u);
        EXPECT_EQ(saver.chunks[0].id, 1);
        EXPECT_TRUE(saver.balanced());
        return saver.chunks[0].bytes;
    }

    template <typename Controller>
    static void load(Used<Controller>& control, const std::string& bytes, USHORT id = 1) {
        ChunkLoader loader({{id, bytes}});
        EXPECT_EQ(control->Load(&loader), IO_OK);
        EXPECT_TRUE(loader.finished());
    }
};

std::string fromHex(const std::string& hex) {
    std::string bytes;
    for (std::size_t i = 0; i + 1 < hex.size(); i += 2)
        bytes += static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16));
    return bytes;
}

std::string raw(const void* data, std::size_t size) {
    return std::string(static_cast<const char*>(data), size);
}

// Written down by hand from the layout: version 100, key size 12, count, (flags, time, value) per key,
// current key.
const char kHeader[] = "640000000c000000";
const char kTwoKeys[] =
    "02000000"
    "0000000060ffffff0000c03f"                       // -160: 1.5
    "01000000a0000000000020c1";                      // 160, selected: -10
const char kCurrent[] = "00000000500000000000003f";  // at 80: 0.5

TEST_F(KeyChunk, GoldenBytes) {
    Used<ScalarControl> control;
    control->setKey({0, -160, 1.5f});
    control->setKey({1, 160, -10.0f});
    setValue(*control, 80, 0.5f);
    const std::string golden = fromHex(std::string(kHeader) + kTwoKeys + kCurrent);
    EXPECT_EQ(saved(control), golden);

    Used<ScalarControl> other;
    load(other, golden);
    EXPECT_EQ(described(*other), "-160=1.5 160*=-10");
    EXPECT_EQ(valueAt(*other, 80), -7.125f) << "from the table, not the stored current key";
}

TEST_F(KeyChunk, AllBytesOfATransformKeySurvive) {
    ZorvaKey<Matrix3> keys[3] = {
        {0, 0, Matrix3(1)}, {0xABCDEF01, 7, pose(0.5f, 2, Point3(1, 2, 3))}, {1, 9, Matrix3(1)}};
    keys[0].value.SetIdentFlags(MAT_IDENT);
    keys[1].value.SetIdentFlags(0xFFFFFFF8);  // hints that no present host knows
    keys[2].value.SetRow(1, Point3(std::numeric_limits<float>::quiet_NaN(), 1.0f, 0.0f));
    const std::uint32_t header[] = {100, 60, 3};
    const std::string bytes = raw(header, sizeof(header)) + raw(keys, sizeof(keys));
    Used<TransformControl> control;
    load(control, bytes + raw(&keys[0], sizeof(keys[0])));
    EXPECT_EQ(saved(control).substr(0, bytes.size()), bytes);
    EXPECT_EQ(worldAt(*control, 9), Matrix3(1)) << "a value that is not finite is never handed out";
}

/// What the plug-in itself writes does not depend on how a matrix came about.
TEST_F(KeyChunk, EqualBakesGiveEqualBytes) {
    Matrix3 hinted(1);
    Matrix3 plain(1);
    plain.SetIdentFlags(0);
    Used<TransformControl> one;
    Used<TransformControl> other;
    one->setKey({0, 10, hinted});
    other->setKey({0, 10, plain});
    EXPECT_EQ(saved(one), saved(other));
}

/// A value that was set without a key is no part of the scene once the table has changed.
TEST_F(KeyChunk, OpenedAndSavedAgainGivesTheSameBytes) {
    const std::function<void(ScalarControl&)> edits[] = {
        [](ScalarControl& c) {
            c.setKey({0, 200, 1});
        },
        [this](ScalarControl& c) {
            hold([&] { c.setKey({0, 200, 1}); });
            setValue(c, 50, 7);
            host.undo();
        },
        [](ScalarControl& c) {
            c.DeleteKeys(TRACK_DOALL);
            c.takeValue(3);
            c.setKey({0, 100, 5});
        },
        [](ScalarControl& c) { setValue(c, -1, 7); },
    };
    for (const auto& edit : edits) {
        Used<ScalarControl> control;
        bake(*control, {1, 100});
        setValue(*control, 50, 7);
        edit(*control);
        const std::string first = saved(control);
        Used<ScalarControl> reopened;
        load(reopened, first);
        EXPECT_EQ(saved(reopened), first) << &edit - edits;
        GetCOREInterface()->FlushUndoBuffer();
    }
}

TEST_F(KeyChunk, DamagedChunks) {
    const std::string header = kHeader;
    const std::string two = kTwoKeys;
    const std::string keys = two.substr(8);
    const std::string first = keys.substr(0, 24);
    const struct {
        const char* name;
        std::string hex;
        const char* keys;
        USHORT id = 1;
    } cases[] = {
        {"Whole", header + two + kCurrent, "-160=1.5 160*=-10"},
        {"AnotherChunk", header + two + kCurrent, "", 2},
        {"NoBytes", "", ""},
        {"VersionOnly", "64000000", ""},
        {"CutInTheSize", "640000000c", ""},
        {"NoCount", header, ""},
        {"OtherVersion", "650000000c000000" + two + kCurrent, ""},
        {"OtherKeySize", "640000003c000000" + two + kCurrent, ""},
        {"NoKeys", header + "00000000" + kCurrent, ""},
        {"NoCurrentKey", header + two, "-160=1.5 160*=-10"},
        {"CutInASecondKey", header + two.substr(0, 8 + 40), "-160=1.5"},
        {"CutInTheFirstKey", header + two.substr(0, 8 + 10), ""},
        {"HugeCount", header + "ffffffff" + keys, "-160=1.5 160*=-10"},
        {"TimesFall", header + "02000000" + keys.substr(24) + first + kCurrent, "160*=-10"},
        {"SameTimeTwice", header + "03000000" + first + keys + kCurrent, "-160=1.5 160*=-10"},
        {"MoreBytesThanKeys", header + two + kCurrent + "0011223344", "-160=1.5 160*=-10"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Used<ScalarControl> control;
        control->setKey({0, 5, 5});
        load(control, fromHex(c.hex), c.id);
        EXPECT_EQ(described(*control), c.keys);
        EXPECT_TRUE(std::isfinite(valueAt(*control, 0)));
    }
    Used<ScalarControl> none;
    ChunkLoader empty({});
    EXPECT_EQ(none->Load(&empty), IO_OK);
}

TEST_F(KeyChunk, AFullDiskIsReported) {
    Used<ScalarControl> control;
    control->setKey({0, 5, 5});
    for (int writes = 0; writes < 5; ++writes) {
        ChunkSaver saver;
        saver.failAfter = writes;
        EXPECT_EQ(control->Save(&saver), IO_ERROR);
        EXPECT_TRUE(saver.balanced());
    }
}

}  // namespace
}  // namespace qvo::zmx::test
