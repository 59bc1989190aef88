#include "samples/mocap_core/MocapCore.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "tests/samples/mocap_core/FakeAdaptor.h"
#include "tests/samples/mocap_core/SmallClip.h"
#include "util/Log.h"
#include "util/xml/Tag.h"

namespace qvo::zmx::mocap {
namespace {

constexpr char kBake[] =
    "begin Load motion clip walk; create walk_Hips under scene; create walk_Leg under Hips; record; "
    "multiplier 4; range 0 40; keys on; key Hips 0; key Leg 0; key Hips 40; key Leg 40; keys off; end; "
    "redraw";

class MocapCoreTest : public ::testing::Test {
  protected:
    MocapCoreTest() : folder_(::testing::TempDir()) {
        adaptor.settingsPath = folder_ + "mocap_settings.xml";
        write("walk.bvh", kSmallClip);
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
    util::xml::Element savedState() const {
        util::xml::Tag state("");
        core->saveState(state);
        return state;
    }
    /// The names of the takes that the scene's state lists, a blank after each.
    std::string namesInScene() const {
        std::string names;
        for (const util::xml::Element* take : savedState().children)
            names += take->textOf("name") + " ";
        return names;
    }
    /// What the latest take writes into the scene.
    std::string tags() const {
        savedState();
        return adaptor.masternodes.toString();
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
        EXPECT_EQ(node->shownFaces, 8u);
    }
}

TEST_F(MocapCoreTest, UndoAndRedoCarryGridAndRange) {
    startAndReport();
    adaptor.undo();
    EXPECT_EQ(adaptor.hostRate, 30);
    EXPECT_EQ(adaptor.rangeEnd, 19680);
    EXPECT_EQ(savedState().toString(), "<ZMK_Mocap/>");
    adaptor.redo();
    EXPECT_EQ(adaptor.hostRate, 120);
    EXPECT_EQ(adaptor.rangeEnd, 40);
    EXPECT_EQ(namesInScene(), "walk ");
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
        EXPECT_EQ(savedState().toString(), "<ZMK_Mocap/>");
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

TEST_F(MocapCoreTest, TakesAreEditedInOneUndoGroup) {
    startAndReport();
    writeSettings(
        "<edit take='walk'><extend>walk.bvh</extend><rename>run</rename><rename>run</rename></edit><edit "
        "take='run'><bake/></edit>");
    adaptor.nodes[1]->hostName = "knee";
    adaptor.calls.clear();
    EXPECT_EQ(startAndReport(), "ok joints=6 frames=6 keys=12 multiplier=4\n");
    const std::string first =
        "record; multiplier 4; range 0 120; keys on; key Hips 0; key Leg 0; key Hips 40; "
        "key Leg 40; keys off; ";
    const std::string second =
        "record; multiplier 4; range 0 120; keys on; key Hips 80; key Leg 80; "
        "key Hips 120; key Leg 120; keys off; ";
    EXPECT_EQ(adaptor.calls, "begin Edit motion takes; record; " + second +
                                 "record; record; clear Hips -4800; clear Leg -4800; " + first + second +
                                 "end; redraw");
    EXPECT_EQ(adaptor.nodes[0]->hostName, "run_Hips");
    EXPECT_EQ(adaptor.nodes[1]->hostName, "knee") << "the user's own name stays";
    EXPECT_EQ(namesInScene(), "run ");
}

TEST_F(MocapCoreTest, UndoneEditsLeaveTheTakeAsItWas) {
    startAndReport();
    const std::string before = tags();
    writeSettings("<edit take='walk'><rename>run</rename><extend>walk.bvh</extend></edit>");
    adaptor.failAt = "key Hips 120";
    EXPECT_NE(startAndReport().find("the host refused frame 2"), std::string::npos);
    EXPECT_EQ(tags(), before);
}

TEST_F(MocapCoreTest, EditsThatCannotBeMadeAreRefused) {
    write("other.bvh", std::string(kSmallClip).replace(std::string(kSmallClip).find("Leg"), 3, "Arm"));
    startAndReport();
    const struct {
        const char* settings;
        const char* report;
    } cases[] = {
        {"<edit take='run'><bake/></edit>", "error mocap_settings.xml:0: the scene has no take \"run\"\n"},
        {"<edit take='walk'><extend>other.bvh</extend></edit>",
         "error other.bvh:0: the clip's joints are not those of take \"walk\"\n"},
        {"<edit take='walk'><grow/></edit>",
         "error mocap_settings.xml:0: a take cannot be changed by \"grow\"\n"},
        {"<edit take='walk'><rename/></edit>",
         "error mocap_settings.xml:0: rename of take \"walk\" says nothing\n"},
        {"<merge>models.zms</merge>", "error models.zms:0: the host merged nothing from this scene\n"},
        {"<camera>Camera01</camera>",
         "error mocap_settings.xml:0: no merged scene has brought a camera \"Camera01\"\n"},
        {"<option id='1027' value='1'/>",
         "error mocap_settings.xml:0: the value \"1\" of option 1027 is neither on nor off\n"},
        {"<option id='x' value='on'/>", "error mocap_settings.xml:0: option id \"x\" is not a number\n"},
        {"<convertAll/>", "error mocap_settings.xml:0: the adaptor has no button 1028\n"},
    };
    for (const auto& row : cases) {
        writeSettings(row.settings);
        EXPECT_EQ(startAndReport(), row.report);
        EXPECT_EQ(namesInScene(), "walk ") << row.settings;
    }
}

TEST_F(MocapCoreTest, StatesThatDoNotComeBackAreNamed) {
    const struct {
        const char* state;
        const char* named;  // by the next lines of the log; empty for none
    } cases[] = {
        {"<ZMK/>", ""},
        {"<ZMK_Mocap><take id='1'><name>gone</name></take>text<clip/></ZMK_Mocap>", ""},
        {"<ZMK/>", ""},  // of older data
        {"<ZMK/>", "Take \"gone\" is named by the scene and has not come back"},
        {"<ZMK/>", ""},
        {"<Other/>", "a state that this core does not know: Other"},
        {"<ZMK>text<ZMK_Plugin version='2.5'><type>x</type></ZMK_Plugin></ZMK>",
         "does not know: <ZMK_Plugin"},
        {"<ZMK><ZMK_Plugin type='mocap clip'/></ZMK>", "does not know: <ZMK_Plugin"},
        {"<ZMK><ZMK_Plugin type='mocap take'><name>1</name></ZMK_Plugin></ZMK>", "cannot be read"},
        {"<ZMK><ZMK_Plugin type='mocap take' multiplier='1' userRate='30'><name>1</name><joint><name>Hips"
         "</name><object>a</object></joint></ZMK_Plugin></ZMK>",
         "Take \"take\" is dropped: none of its nodes is left"},
    };
    for (const auto& row : cases) {
        const std::size_t logged = util::Log::contents().size();
        util::xml::Element state(row.state);
        core->loadState(state);
        const std::string lines = util::Log::contents().substr(logged);
        EXPECT_EQ(lines.empty(), *row.named == '\0') << lines;
        EXPECT_NE(lines.find(row.named), std::string::npos) << row.state;
        EXPECT_EQ(namesInScene(), "");
    }
}

TEST_F(MocapCoreTest, OtherAdaptorsAreRefused) {
    EXPECT_EQ(MocapCore::attach(nullptr), nullptr);
    adaptor.version = 9200;
    EXPECT_EQ(MocapCore::attach(&adaptor), nullptr);
    MocapCore::detach(nullptr);
}

}  // namespace
}  // namespace qvo::zmx::mocap
