#pragma once

#include <gtest/gtest.h>

#include <max.h>

#include "maxhost/src/controllers/AnimateMode.h"
#include "maxhost/src/undo/Faults.h"
#include "maxhost/src/undo/UndoRecorder.h"

namespace maxhost::test {

/// Process-wide state as at host start, before and after each test; no caller's mistake may be left unasked
/// for.
class HostFixture : public ::testing::Test {
  protected:
    void SetUp() override { reset(); }
    void TearDown() override {
        undo.reset();
        for (const std::string& fault : Faults::instance().all())
            ADD_FAILURE() << "fault: " << fault;
        reset();
    }

    /// The faults so far, which are then forgotten.
    static std::vector<std::string> takeFaults() {
        const std::vector<std::string> faults = Faults::instance().all();
        Faults::instance().clear();
        return faults;
    }
    static void accept(const std::string& name = "step") {
        std::string buffer = name;
        theHold.Accept(buffer.data());
    }

    UndoRecorder& undo = UndoRecorder::instance();

  private:
    void reset() {
        undo.reset();
        AnimateMode::instance().reset();
        Faults::instance().clear();
    }
};

}  // namespace maxhost::test
