// States of older scenes, written here as those versions wrote them and damaged in every place.

#include "adaptor/max/plugin/OlderSceneState.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "adaptor/max/ClassIds.h"
#include "adaptor/max/plugin/UtilityManager.h"
#include "maxhost/src/files/ChunkReader.h"
#include "maxhost/src/files/ChunkWriter.h"
#include "maxhost/src/files/SceneFormat.h"
#include "tests/support/TestCoreObject.h"
#include "util/Log.h"

namespace {

using namespace qvo::zmx::adaptor::max;
using namespace qvo::zmx::test;
using maxhost::Bytes;
using maxhost::ChunkWriter;

using Body = std::function<void(ChunkWriter&)>;

void write(ChunkWriter& out, USHORT id, const Body& body) {
    out.BeginChunk(id);
    body(out);
    out.EndChunk();
}

Body text(const char* characters) {
    return [=](ChunkWriter& out) { out.WriteCString(characters); };
}

Body data(const std::string& bytes) {
    return [=](ChunkWriter& out) { out.Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr); };
}

Body pair(const Body& label, const Body& identity) {
    return [=](ChunkWriter& out) {
        write(out, older_state::kLabel, label);
        write(out, older_state::kIdentity, identity);
    };
}

Bytes sceneWith(const Body& olderState) {
    ChunkWriter out;
    write(out, kOlderStateChunk, olderState);
    EXPECT_FALSE(out.failed());
    return out.take();
}

/// Has everything, not in the order of the result.
void wholeState(ChunkWriter& out) {
    write(out, older_state::kInputProfile, text("tablet"));
    write(out, older_state::kNode, pair(text("hips"), data({'\x04', '\x03', '\x02', '\x81'})));
    write(out, 560, data("of no concern"));
    write(out, older_state::kSaveData, data(std::string("a\0\xff", 3)));
    write(out, older_state::kNode, pair(text("a<b"), data(std::string(4, '\0'))));
    write(out, older_state::kComponent, pair(text("clip"), text("walk")));
}

constexpr char kWhole[] =
    "<ZMK><ZMK_Plugin version=\"2.5\"><type>clip</type><name>walk</name><savedata>YQD/</savedata><nodeinfo>"
    "<node name=\"hips\" platform=\"adaptor_3dsmax2010\"><UID>2164392708</UID></node>"
    "<node name=\"a&#60;b\" platform=\"adaptor_3dsmax2010\"><UID>0</UID></node></nodeinfo>"
    "<inputprofile>tablet</inputprofile></ZMK_Plugin></ZMK>";

class OlderSceneState : public ::testing::Test {
  protected:
    /// What the core gets from a scene file with these chunks.
    std::string load(const Bytes& scene) {
        journal_.clear();
        maxhost::ChunkReader reader({scene.data(), scene.size()}, nullptr);
        EXPECT_EQ(UtilityManager::instance().Load(&reader), IO_OK);
        return journal_;
    }

    std::string journal_;
    TestCoreObject core_{[this](const std::string& line) { journal_ += line; }};
};

TEST_F(OlderSceneState, BecomesElementsUnderOneRoot) {
    EXPECT_EQ(load(sceneWith(wholeState)), std::string("loadState ") + kWhole);

    Bytes twoStates = sceneWith(wholeState);
    const Bytes second = sceneWith([](ChunkWriter& out) { write(out, older_state::kSaveData, data("")); });
    twoStates.insert(twoStates.end(), second.begin(), second.end());
    const std::string both = load(twoStates);
    EXPECT_NE(both.find("</ZMK_Plugin><ZMK_Plugin version=\"2.5\"><savedata>"), std::string::npos) << both;
}

struct DamageCase {
    const char* name;
    Body state;
    const char* content;  ///< of the "ZMK_Plugin" element
    const char* logged;
};

const DamageCase kDamageCases[] = {
    {"Nothing", data("rubbish"), "", "a chunk holds no chunks"},
    {"TextsInPlaceOfChunks", [](ChunkWriter& out) { write(out, older_state::kComponent, text("clip")); }, "",
     "a chunk holds no chunks"},
    {"ChunksInPlaceOfText",
     [](ChunkWriter& out) {
         write(out, older_state::kInputProfile, pair(text("a"), text("b")));
         write(out, older_state::kSaveData, data("x"));
     },
     "<savedata>eA==</savedata>", "a text cannot be read"},
    {"HandleOfAnotherSize",
     [](ChunkWriter& out) { write(out, older_state::kNode, pair(text("hips"), data("12345"))); },
     "<nodeinfo><node name=\"hips\" platform=\"adaptor_3dsmax2010\"/></nodeinfo>",
     "a node's handle has the wrong size"},
    {"TheFirstOneCounts",
     [](ChunkWriter& out) {
         write(out, older_state::kComponent, pair(text("clip"), text("walk")));
         write(out, older_state::kComponent, pair(text("take"), text("run")));
     },
     "<type>clip</type><name>walk</name>", ""},
};

class OlderSceneStateDamage : public OlderSceneState, public ::testing::WithParamInterface<DamageCase> {};

TEST_P(OlderSceneStateDamage, KeepsWhatIsWhole) {
    const std::size_t before = qvo::util::Log::contents().size();
    const std::string content = GetParam().content;
    EXPECT_EQ(load(sceneWith(GetParam().state)),
              content.empty()
                  ? "loadState <ZMK><ZMK_Plugin version=\"2.5\"/></ZMK>"
                  : "loadState <ZMK><ZMK_Plugin version=\"2.5\">" + content + "</ZMK_Plugin></ZMK>");
    EXPECT_NE(qvo::util::Log::contents().find(GetParam().logged, before), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Damage, OlderSceneStateDamage, ::testing::ValuesIn(kDamageCases),
                         [](const auto& row) { return std::string(row.param.name); });

// Cut anywhere, or with any byte another, the state is read as far as it makes sense.
TEST_F(OlderSceneState, SurvivesEveryCutAndEveryWrongByte) {
    const Bytes whole = sceneWith(wholeState);
    constexpr std::size_t header = maxhost::format::kChunkHeaderSize;
    for (std::size_t size = header; size < whole.size(); ++size) {
        Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
        const std::size_t length = size - header;
        cut[2] = static_cast<unsigned char>(length);
        cut[3] = static_cast<unsigned char>(length >> 8);
        const std::string loaded = load(cut);
        EXPECT_EQ(loaded.find("loadState <ZMK><ZMK_Plugin version=\"2.5\""), 0u) << size;
        EXPECT_EQ(loaded.find("YQD/") != std::string::npos, loaded.find("<savedata>") != std::string::npos);
    }
    for (std::size_t i = header; i < whole.size(); ++i)
        for (const int change : {0x01, 0x80, 0xff}) {
            Bytes wrong = whole;
            wrong[i] = static_cast<unsigned char>(wrong[i] ^ change);
            EXPECT_EQ(load(wrong).find("loadState <ZMK><ZMK_Plugin"), 0u) << i;
        }
}

/// States that every chunk is as long as can be.
class BoastfulReader : public maxhost::ChunkReader {
  public:
    using ChunkReader::ChunkReader;
    ULONG CurChunkLength() override { return 0xffffffff; }
};

TEST_F(OlderSceneState, AStatedLengthIsNotBelieved) {
    const Bytes scene = sceneWith(wholeState);
    BoastfulReader reader({scene.data(), scene.size()}, nullptr);
    EXPECT_EQ(UtilityManager::instance().Load(&reader), IO_OK);
    EXPECT_EQ(journal_.find("savedata"), std::string::npos) << "not whole";
    EXPECT_NE(journal_.find("<name>walk</name>"), std::string::npos);
}

}  // namespace
