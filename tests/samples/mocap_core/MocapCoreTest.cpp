#include "samples/mocap_core/MocapCore.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "tests/samples/mocap_core/FakeAdaptor.h"
#include "util/xml/Tag.h"

namespace qvo::zmx::mocap {
namespace {

constexpr char kWalk[] =
    "HIERARCHY\nROOT Hips\n{\nOFFSET 0 0 0\nCHANNELS 1 Yposition\n"
    "JOINT Leg\n{\nOFFSET 0 -10 0\nCHANNELS 0\n}\n}\n"
    "MOTION\nFrames: 2\nFrame Time: .0083333\n100\n101\n";

constexpr char kBake[] =
    "begin Load motion clip walk; create walk_Hips under scene; create walk_Leg under Hips; record; "
    "multiplier 4; range 0 40; keys on; key Hips 0; key Leg 0; key Hips 40; key Leg 40; keys off; end; "
    "redraw";

class MocapCoreTest : public ::testing::Test {
  protected:
    MocapCoreTest() : folder_(::testing::TempDir()) {
        adaptor.settingsPath = folder_ + "mocap_settings.xml";
        write("walk.bvh", kWalk);
        writeSettings("<clip>walk.bvh</clip>");
        core = MocapCore::attach(&adaptor);
    }
    ~MocapCoreTest() override { MocapCore::detach(core); }

    void write(const std::string& name, const std::string& text) const {
        std::ofstream(folder_ + name, std::ios::binary) << text;
    }
    void writeSettings(const std::string& elements) const {
        write("mocap_settings.xml", "<?xml version=\"1.0\"?>\n<zmx_config>\n\t<report>report.txt</report>\n" +
                                        elements + "</zmx_config>");
    }
    /// Presses the start button; the report's line with the test folder taken out.
    std::string startAndReport() {
        core->openStudio(nullptr);
        std::ifstream stream(folder_ + "report.txt");
        std::stringstream text;
        text << stream.rdbuf();
        std::string line = text.str();
        for (std::size_t at; (at = line.find(folder_)) != std::string::npos;)
            line.erase(at, folder_.size());
        return line;
    }
    std::string savedState() const {
        util::xml::Tag state("");
        core->saveState(state);
        return state.toString();
    }

    FakeAdaptor adaptor;
    MocapCore* core = nullptr;

  private:
    std::string folder_;
};

TEST_F(MocapCoreTest, BakesParentsFirstInOneUndoGroup) {
    EXPECT_EQ(startAndReport(), "ok joints=2 frames=2 keys=4 multiplier=4\n");
    EXPECT_EQ(adaptor.calls, kBake);
    EXPECT_DOUBLE_EQ(adaptor.lastKey.m[3][1], 0.91);  // the leg of the last frame, in meters
    for (const auto& node : adaptor.nodes) {
        EXPECT_EQ(node->acquired, 2);
        EXPECT_EQ(node->borrowed, 0);
    }
}

TEST_F(MocapCoreTest, UndoAndRedoCarryGridAndRange) {
    startAndReport();
    adaptor.takeBack(true);
    EXPECT_EQ(adaptor.hostRate, 30);
    EXPECT_EQ(adaptor.rangeEnd, 19680);
    EXPECT_EQ(savedState(), "<ZMK_Mocap/>");
    adaptor.redo();
    EXPECT_EQ(adaptor.hostRate, 120);
    EXPECT_EQ(adaptor.rangeEnd, 40);
    EXPECT_NE(savedState(), "<ZMK_Mocap/>");
}

TEST_F(MocapCoreTest, FailureCancelsEverything) {
    const struct {
        const char* failAt;
        const char* report;
    } cases[] = {
        {"create walk_Leg under Hips", "error walk.bvh:0: the host made no node for joint \"Leg\"\n"},
        {"record", "error walk.bvh:0: the host does not record undo\n"},
        {"key Leg 40", "error walk.bvh:0: the host refused frame 2 of joint \"Leg\"\n"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.failAt);
        adaptor.failAt = row.failAt;
        adaptor.calls.clear();
        EXPECT_EQ(startAndReport(), row.report);
        EXPECT_NE(adaptor.calls.find("cancel"), std::string::npos);
        EXPECT_EQ(adaptor.calls.find("keys on") != std::string::npos,
                  adaptor.calls.find("keys off; cancel") != std::string::npos);
        EXPECT_EQ(adaptor.multiplier, 1);
        EXPECT_EQ(adaptor.rangeEnd, 19680);
        EXPECT_EQ(savedState(), "<ZMK_Mocap/>");
    }
}

TEST_F(MocapCoreTest, WhatCannotBeReadLeavesTheSceneAlone) {
    write("bad.bvh", "HIERARCHY\nROOT a\n{\nOFFSET 0 x 0\n");
    const struct {
        const char* settings;
        const char* report;
    } cases[] = {
        {"<clip>bad.bvh</clip>", "error bad.bvh:4: \"x\" is not a number for the offset of joint \"a\"\n"},
        {"<clip>walk.bvh</clip><clip>none.bvh</clip>", "error none.bvh:0: the clip cannot be opened\n"},
        {"<clip> </clip>", "error mocap_settings.xml:0: the settings name no clip\n"},
        {"<clip>a</clip><metresPerUnit>-1</metresPerUnit>",
         "error mocap_settings.xml:0: metresPerUnit \"-1\" is not a number above 0\n"},
        {"<clip>a</clip><metresPerUnit>1cm</metresPerUnit>",
         "error mocap_settings.xml:0: metresPerUnit \"1cm\" is not a number above 0\n"},
    };
    for (const auto& row : cases) {
        writeSettings(row.settings);
        EXPECT_EQ(startAndReport(), row.report);
        EXPECT_EQ(adaptor.calls, "");
    }
}

TEST_F(MocapCoreTest, FurtherTakesStandBesideTheFirst) {
    startAndReport();
    writeSettings("<clip>\n  walk.bvh </clip><clip>walk.bvh</clip><metresPerUnit>1e-1</metresPerUnit>");
    adaptor.rangeEnd = 4800;
    EXPECT_EQ(startAndReport(), "ok joints=4 frames=4 keys=8 multiplier=4\n");
    EXPECT_NE(adaptor.calls.find("begin Load motion clips; create walk-2_Hips"), std::string::npos);
    EXPECT_NE(adaptor.calls.find("create walk-3_Hips"), std::string::npos);
    EXPECT_EQ(adaptor.rangeEnd, 4800);
    EXPECT_DOUBLE_EQ(adaptor.lastKey.m[3][1], 9.1);
}

TEST_F(MocapCoreTest, StateComesBackFromTheScene) {
    startAndReport();
    const std::string saved = savedState();
    core->sceneClosing();
    EXPECT_EQ(adaptor.multiplier, 1);
    EXPECT_EQ(savedState(), "<ZMK_Mocap/>");

    util::xml::Element state(saved);
    core->loadState(state);
    EXPECT_EQ(adaptor.multiplier, 4);
    EXPECT_EQ(savedState(), saved);

    core->sceneClosing();
    adaptor.hostRate = 120;  // a host that keeps its frame rate in the scene
    core->loadState(state);
    EXPECT_EQ(adaptor.hostRate, 120);
    EXPECT_EQ(savedState(), saved);
}

TEST_F(MocapCoreTest, DamagedStateIsDroppedRecordByRecord) {
    util::xml::Element state(
        "<ZMK_Mocap>text<clip/><clip frameTime='0.1' frames='2' metresPerUnit='1' multiplier='0' "
        "userRate='30'/>"
        "<clip frameTime='inf' frames='2' metresPerUnit='1' multiplier='1' userRate='30'/>"
        "<clip frameTime='0.1' frames='2' metresPerUnit='1' multiplier='1' "
        "userRate='30'><name>a</name></clip>"
        "</ZMK_Mocap>");
    core->loadState(state);
    util::xml::Element saved(savedState());
    ASSERT_EQ(saved.children.size(), 1u);
    EXPECT_EQ(saved.children[0]->textOf("name"), "a");
}

TEST_F(MocapCoreTest, OtherAdaptorsAreRefused) {
    EXPECT_EQ(MocapCore::attach(nullptr), nullptr);
    adaptor.version = 9200;
    EXPECT_EQ(MocapCore::attach(&adaptor), nullptr);
    MocapCore::detach(nullptr);
}

}  // namespace
}  // namespace qvo::zmx::mocap
