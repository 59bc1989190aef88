#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "tests/samples/mocap_core/SmallClip.h"
#include "tests/support/AdaptorFixture.h"
#include "tests/support/MessageBoxes.h"
#include "tests/support/Registry.h"
#include "util/xml/Tag.h"

namespace qvo::zmx::mocap {

/// The host with the plug-in and the sample core's library, which it finds in an installation of its own. No
/// message box may be left unseen.
class StudioFixture : public adaptor::max::AdaptorFixture {
  protected:
    StudioFixture() {
        namespace fs = std::filesystem;
        fs::remove_all(root());
        fs::create_directories(layout());
        fs::create_directories(data() / "win" / "x64");
        fs::copy_file(TEST_CORE_LIBRARY, data() / "win" / "x64" / "core.dll");
        registry_.set("path", root().string());
        write("walk.bvh", kSmallClip);
        writeSettings("<clip>walk.bvh</clip>");
        EXPECT_TRUE(host.start()) << host.lastMessage();
        EXPECT_NE(manager().core, nullptr);
    }

    ~StudioFixture() override {
        EXPECT_EQ(boxes.take(), std::vector<std::string>());
        manager().detachCore();
    }

    static adaptor::max::UtilityManager& manager() { return adaptor::max::UtilityManager::instance(); }

    /// A file beside the settings.
    static std::string file(const std::string& name) { return (layout() / name).string(); }
    static void write(const std::string& name, const std::string& text) {
        std::ofstream(layout() / name, std::ios::binary) << text;
    }
    static std::string read(const std::string& name) {
        std::ifstream stream(layout() / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    /// Presses the start button with these settings; the first word of the report, or the whole of an error.
    static std::string start(const std::string& elements) {
        writeSettings(elements);
        manager().core->openStudio(nullptr);
        const std::string report = read("report.txt");
        return report.compare(0, 3, "ok ") == 0 ? "ok" : report;
    }

    /// The takes that the core would write into the scene, a blank after each.
    static std::string takes() {
        util::xml::Tag state("");
        manager().core->saveState(state);
        std::string names;
        for (const util::xml::Element* take : state.children)
            names += take->textOf("name") + " ";
        return names;
    }

    /// Names of the registered nodes, a blank after each.
    std::string claimedNodes() {
        std::string names;
        for (core::CoreNode* node : createdNodes())
            names += node->getName() + " ";
        return names;
    }

    /// The first node of this name.
    static INode& node(const std::string& name) { return *ip().GetINodeByName(name.c_str()); }

    /// The registered node of this name.
    core::CoreNode* claimed(const std::string& name) {
        for (core::CoreNode* each : createdNodes())
            if (each->getName() == name) return each;
        ADD_FAILURE() << name;
        return nullptr;
    }

    Matrix4 worldOf(const std::string& name, double seconds) {
        core::CoreNode* const found = claimed(name);
        core::CoreNode::Snapshot* const snapshot = found->acquireSnapshot(seconds);
        const Matrix4 world = snapshot->getWorldTransform();
        found->releaseSnapshot(snapshot);
        return world;
    }

    /// Height above the ground in core space, meters.
    double heightAt(const std::string& name, double seconds) { return worldOf(name, seconds).m[3][1]; }

    static std::string coreLog() { return read("core.log"); }

    test::MessageBoxes boxes;

  private:
    static std::filesystem::path root() {
        return std::filesystem::path(::testing::TempDir()) / "studio_installation";
    }
    static std::filesystem::path data() { return root() / "kestrelstudio" / "data" / "core"; }
    static std::filesystem::path layout() { return data() / "layout"; }
    static void writeSettings(const std::string& elements) {
        write("zmx_maxconfig.xml",
              "<zmx_config><report>report.txt</report><log>core.log</log>" + elements + "</zmx_config>");
    }

    test::ProductRegistry registry_;
};

}  // namespace qvo::zmx::mocap
