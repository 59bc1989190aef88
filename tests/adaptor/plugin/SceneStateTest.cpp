// What the manager keeps in a scene file for its core.

#include <gtest/gtest.h>

#include <stdexcept>

#include "adaptor/max/ClassIds.h"
#include "adaptor/max/plugin/UtilityManager.h"
#include "tests/support/ChunkBuffer.h"
#include "tests/support/TestCoreObject.h"
#include "util/Log.h"

namespace {

using namespace qvo::zmx::adaptor::max;
using namespace qvo::zmx::test;

class SceneState : public ::testing::Test {
  protected:
    IOResult load(const ChunkList& chunks) {
        ChunkLoader loader(chunks);
        const IOResult result = manager_.Load(&loader);
        EXPECT_TRUE(result != IO_OK || loader.finished());
        return result;
    }
    static bool logged(const std::string& text) {
        return qvo::util::Log::contents().find(text) != std::string::npos;
    }
    static std::string text(const std::string& characters) { return characters + '\0'; }

    std::string journal_;
    TestCoreObject core_{[this](const std::string& line) { journal_ += line + ';'; }};
    UtilityManager& manager_ = UtilityManager::instance();
};

TEST_F(SceneState, StateIsOneChunkOfXmlLines) {
    core_.stateChild = "take";
    ChunkSaver saver;
    EXPECT_EQ(manager_.Save(&saver), IO_OK);
    ASSERT_EQ(saver.chunks.size(), 1u);
    EXPECT_EQ(saver.chunks[0].id, 1032);
    EXPECT_EQ(saver.chunks[0].bytes, text("<ZMK>\n<take/>\n</ZMK>"));
    EXPECT_TRUE(saver.balanced());

    EXPECT_EQ(load(saver.chunks), IO_OK);
    EXPECT_EQ(journal_, "saveState;loadState <ZMK><take/></ZMK>;loadState <ZMK/>;");

    ChunkSaver fullDisk;
    fullDisk.failAfter = 0;
    EXPECT_EQ(manager_.Save(&fullDisk), IO_ERROR);
    EXPECT_TRUE(fullDisk.balanced());
}

TEST_F(SceneState, NothingToSayWritesNoChunk) {
    ChunkSaver saver;
    EXPECT_EQ(manager_.Save(&saver), IO_OK);
    JournalCore throwing([](const std::string&) { throw std::runtime_error("no state"); });
    manager_.core = &throwing;
    EXPECT_EQ(manager_.Save(&saver), IO_OK);
    EXPECT_TRUE(logged("saveState: no state"));
    manager_.core = nullptr;
    EXPECT_EQ(manager_.Save(&saver), IO_OK);
    EXPECT_TRUE(saver.chunks.empty());
    EXPECT_EQ(manager_.Load(nullptr), IO_OK);
}

TEST_F(SceneState, EachStoredStateArrivesAtOnceAndTheOlderOnesLast) {
    EXPECT_EQ(load({{1032, text("<a/>")}, {1024, "older"}, {7, "other"}, {1032, text("<b>1</b>")}}), IO_OK);
    EXPECT_EQ(journal_,
              "loadState <a/>;loadState <b>1</b>;loadState <ZMK><ZMK_Plugin version=\"2.5\"/></ZMK>;");
    EXPECT_TRUE(logged("older version"));

    journal_.clear();
    EXPECT_EQ(load({}), IO_OK);
    EXPECT_EQ(journal_, "loadState <ZMK/>;");
}

TEST_F(SceneState, DamageIsReported) {
    EXPECT_EQ(load({{1032, text("<a><b/>")}}), IO_OK);
    EXPECT_EQ(journal_, "loadState <a><b/></a>;loadState <ZMK/>;");
    EXPECT_TRUE(logged("damaged, parse result 3"));

    journal_.clear();
    EXPECT_EQ(load({{1032, "no final zero"}, {1032, text("<a/>")}}), IO_ERROR);
    EXPECT_EQ(journal_, "");
}

}  // namespace
