#pragma once

#include <string>
#include <utility>
#include <vector>

#include "adaptor/max/plugin/UtilityManager.h"
#include "tests/support/JournalCore.h"

namespace qvo::zmx::adaptor::max {

/// A core, attached for its lifetime, that keeps the states it is given; what it notes is up to the test.
class TestCoreObject final : public test::JournalCore {
  public:
    explicit TestCoreObject(Note note = nullptr)
        : JournalCore([this, note = std::move(note)](const std::string& line) {
              const std::string load = "loadState ";
              if (line.compare(0, load.size(), load) == 0) loaded.push_back(line.substr(load.size()));
              if (note) note(line);
          }) {
        UtilityManager::instance().core = this;
    }
    ~TestCoreObject() override { UtilityManager::instance().core = nullptr; }
    TestCoreObject(const TestCoreObject&) = delete;
    TestCoreObject& operator=(const TestCoreObject&) = delete;

    std::vector<std::string> loaded;  ///< the states as text
};

}  // namespace qvo::zmx::adaptor::max
