#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "adaptor/max/plugin/UtilityManager.h"
#include "core/ReservedSlots.h"

namespace qvo::zmx::adaptor::max {

/// A core, attached for its lifetime, that notes what it is told about states and options. What it does with
/// a state is up to the test.
class TestCoreObject final : public core::ReservedSlots {
  public:
    TestCoreObject() { UtilityManager::instance().core = this; }
    ~TestCoreObject() { UtilityManager::instance().core = nullptr; }
    TestCoreObject(const TestCoreObject&) = delete;
    TestCoreObject& operator=(const TestCoreObject&) = delete;

    std::function<void(util::xml::Element&)> onLoad;  ///< may be empty
    std::vector<std::string> loaded;                  ///< the states as text
    std::string options;                              ///< "1027=0 1030=1 "

    void saveState(util::xml::Element& /*state*/) override {}
    void loadState(util::xml::Element& state) override {
        loaded.push_back(state.toString());
        if (onLoad) onLoad(state);
    }
    void sceneClosing() override {}
    void openStudio(void* /*mainWindow*/) override {}
    void timeChanged(double /*seconds*/) override {}
    bool queryEvent(const void* /*notification*/) override { return false; }
    void handleEvent() override {}
    void start() override {}
    void setOption(unsigned int /*id*/, unsigned int /*value*/) override {}
    void optionChanged(unsigned int id, const void* value) override {
        const auto number = *static_cast<const std::int32_t*>(value);
        options += std::to_string(id) + "=" + std::to_string(number) + " ";
    }
};

}  // namespace qvo::zmx::adaptor::max
