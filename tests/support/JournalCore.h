#pragma once

#include <functional>
#include <sstream>
#include <string>
#include <utility>

#include "core/ReservedSlots.h"
#include "util/xml/Tag.h"

namespace qvo::zmx::test {

/// A core that notes every call it gets, one line each. A note that throws makes the core throw.
class JournalCore : public core::ReservedSlots {
  public:
    using Note = std::function<void(const std::string&)>;

    explicit JournalCore(Note note) : note_(std::move(note)) {}
    virtual ~JournalCore() = default;

    std::function<void(util::xml::Element&)> onLoad;  ///< what it does with a state; may be empty
    std::string stateChild;    ///< name of the tag that saveState adds; empty for a core with nothing to say
    bool wantsEvents = false;  ///< what queryEvent answers

    void saveState(util::xml::Element& state) override {
        note_("saveState");
        if (!stateChild.empty()) state.addChild(util::xml::Tag(stateChild));
    }
    void loadState(util::xml::Element& state) override {
        note_("loadState " + state.toString());
        if (onLoad) onLoad(state);
    }
    void sceneClosing() override { note_("sceneClosing"); }
    void openStudio(void* mainWindow) override { note_(mainWindow ? "openStudio window" : "openStudio"); }
    void timeChanged(double seconds) override { note("timeChanged", seconds); }
    bool queryEvent(const void* information) override {
        note_(information ? "queryEvent information" : "queryEvent");
        return wantsEvents;
    }
    void handleEvent() override { note_("handleEvent"); }
    void start() override { note_("start"); }
    void setOption(unsigned int id, unsigned int value) override { note("setOption", id, value); }
    void optionChanged(unsigned int id, const void* value) override {
        note("optionChanged", id, *static_cast<const int*>(value));
    }

  private:
    template <class... Values>
    void note(const char* what, const Values&... values) {
        std::ostringstream text;
        text << what;
        ((text << ' ' << values), ...);
        note_(text.str());
    }

    Note note_;
};

}  // namespace qvo::zmx::test
