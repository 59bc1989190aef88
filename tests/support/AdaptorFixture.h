#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "adaptor/max/nodes/CMAXNode.h"
#include "adaptor/max/plugin/PluginClasses.h"
#include "adaptor/max/plugin/UtilityManager.h"
#include "adaptor/max/services/MaxAdaptorInterface.h"
#include "core/Owner.h"
#include "maxhost/HeadlessHost.h"
#include "util/Log.h"
#include "util/ReturnInto.h"
#include "util/SingletonCollector.h"

namespace qvo::zmx::adaptor::max {

/// An owner with a name and, if given, a state.
class TestOwner : public core::Owner {
  public:
    explicit TestOwner(std::string ownerName) : name(std::move(ownerName)) {}

    const std::string& getName() override { return name; }
    void writeState(util::xml::Element& masternodes) override {
        for (const util::xml::Element& masternode : state)
            masternodes.addChild(masternode);
    }

    std::string name;
    std::vector<util::xml::Element> state;
};

/// Remembers what it is told.
class TestListener : public NodeListener {
  public:
    void removed(core::CoreNode*) override { heard += "removed "; }
    void restored(core::CoreNode*) override { heard += "restored "; }

    std::string heard;
};

/// Notes what is done with it.
class TestRecord : public CUndo {
  public:
    explicit TestRecord(std::string& notes) : notes_(notes) {}
    ~TestRecord() override { notes_ += "released "; }

    void restore(bool isUndo) override { notes_ += isUndo ? "undone " : "cancelled "; }
    void redo() override { notes_ += "redone "; }

  private:
    std::string& notes_;
};

/// A fresh host with the plug-in's classes, and a fresh adaptor. Nothing may be left behind: a mistake
/// against the host's rules fails the test, and leaks are the sanitizer's to find.
class AdaptorFixture : public ::testing::Test {
  protected:
    AdaptorFixture() {
        for (int i = 0; i < numberOfClasses(); ++i)
            host.registerPluginClass(classDescriptor(i));
        UtilityManager::instance().options() = OptionStore();
    }

    ~AdaptorFixture() override {
        MaxAdaptorInterface::instance().letGoOfCore();
        host.exit();
        EXPECT_EQ(host.faults(), std::vector<std::string>());
        util::SingletonCollector::destroyAll();
    }

    static MaxAdaptorInterface& adaptor() { return MaxAdaptorInterface::instance(); }
    static Interface& ip() { return *GetCOREInterface(); }
    static std::string log() { return util::Log::contents(); }

    /// A moment within the frame, at 30 of them a second.
    static double secondsOf(int frame) { return frame / 30.0 + 1e-6; }

    /// Names of the selected nodes.
    static std::vector<std::string> selection() {
        std::vector<std::string> names;
        for (int i = 0; i < ip().GetSelNodeCount(); ++i)
            names.push_back(ip().GetSelNode(i)->GetName());
        return names;
    }

    /// A helper made through the adaptor, at the top level unless a parent is given.
    CMAXNode* makeHelper(const std::string& name, CMAXNode* parent = nullptr) {
        return static_cast<CMAXNode*>(adaptor().createHelperNode(&owner, name, parent, &listener));
    }

    std::vector<core::CoreNode*> createdNodes() {
        std::vector<core::CoreNode*> nodes;
        util::ReturnInto<std::vector<core::CoreNode*>> sink(nodes);
        adaptor().getCreatedNodes(sink);
        return nodes;
    }

    maxhost::HeadlessHost host;
    TestOwner owner{"tool"};
    TestListener listener;
    std::string fate;  ///< what became of the TestRecords
};

}  // namespace qvo::zmx::adaptor::max
