// A core library for the lifecycle tests. What it does is written in "settings.txt" of the folder that it is
// built for, one "word value" a line; every call it gets, and its unloading, goes into "journal.txt" there.

#include <fstream>
#include <memory>
#include <string>

#include "core/AdaptorInterface.h"
#include "core/CUndo.h"
#include "tests/support/JournalCore.h"

namespace {

using qvo::zmx::CUndo;
using qvo::zmx::core::AdaptorInterface;
using qvo::zmx::core::CoreObject;
using qvo::zmx::test::JournalCore;

void note(const std::string& line) {
    std::ofstream(TEST_CORE_FOLDER "/journal.txt", std::ios::app) << line << '\n';
}

std::string setting(const std::string& wanted, const std::string& fallback) {
    std::ifstream file(TEST_CORE_FOLDER "/settings.txt");
    std::string word, value;
    while (file >> word >> value)
        if (word == wanted) return value;
    return fallback;
}

/// Notes the line; throws when the settings name its first word.
void act(const std::string& line) {
    note(line);
    if (line.substr(0, line.find(' ')) == setting("throw", "")) throw line;
}

/// Its code is the core's, so it must be gone before the library is.
class Record : public CUndo {
  public:
    ~Record() override { note("record released"); }
    void restore(bool /*isUndo*/) override { note("record restored"); }
    void redo() override { note("record redone"); }
};

/// Ends with the library, together with a core that nobody ended.
struct Library {
    std::unique_ptr<JournalCore> core;

    ~Library() { note("unloaded"); }
} library;

}  // namespace

extern "C" {

unsigned int getVersion() {
    act("getVersion");
    return static_cast<unsigned int>(std::stoul(setting("version", "9201")));
}

CoreObject* attach(AdaptorInterface* adaptor) {
    act("attach");
    if (setting("attach", "accept") == "refuse") return nullptr;
    if (setting("record", "no") == "yes") {
        adaptor->beginUndoGroup("core group");
        adaptor->addUndoRecord(new Record);
        adaptor->endUndoGroup();
    }
    library.core = std::make_unique<JournalCore>(act);
    return library.core.get();
}

void detach(CoreObject* core) {
    note(core == library.core.get() ? "detach" : "detach of a stranger");
    library.core.reset();
}
}
