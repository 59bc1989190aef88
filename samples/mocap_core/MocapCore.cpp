#include "samples/mocap_core/MocapCore.h"

#include <fstream>
#include <memory>
#include <stdexcept>

#include "samples/mocap_core/FileError.h"
#include "samples/mocap_core/Guarded.h"
#include "samples/mocap_core/StartRun.h"
#include "samples/mocap_core/TakeRestorer.h"
#include "util/ReturnInto.h"
#include "util/SingletonCollector.h"

namespace qvo::zmx::mocap {

namespace {

using util::Log;
using util::logLine;

/// The element that holds gathered or converted tools.
constexpr char kToolsElement[] = "ZMK";

void writeReport(const std::string& path, const std::string& line) {
    if (path.empty()) return;
    std::ofstream stream(path, std::ios::trunc);
    stream << line << '\n';
    stream.close();
    if (!stream) logLine(Log::kWarning, "The report cannot be written to ", path);
}

}  // namespace

MocapCore* MocapCore::attach(core::AdaptorInterface* adaptor) noexcept {
    MocapCore* core = nullptr;
    guarded("attach", [&] {
        if (!adaptor) throw std::runtime_error("no adaptor");
        if (adaptor->getAdaptorVersion() != kVersion) throw std::runtime_error("adaptor of another version");
        core = std::make_unique<MocapCore>(*adaptor).release();  // deleted by detach
    });
    return core;
}

void MocapCore::detach(core::CoreObject* core) noexcept {
    auto* const mocap = static_cast<MocapCore*>(core);
    // The scene stays; a core that is attached to it later takes its takes up again.
    if (mocap) guarded("detach", [mocap] { mocap->takes_.tagNodes(mocap->adaptor_); });
    delete mocap;
    guarded("detach", [] { util::SingletonCollector::destroyAll(); });
}

MocapCore::MocapCore(core::AdaptorInterface& adaptor) : adaptor_(adaptor), grid_(adaptor) {}

void MocapCore::start() {
    guarded("start", [this] {
        Settings settings;
        try {
            readSettings(settings);
        } catch (const FileError& error) {
            // Not yet a fault: the settings are needed when the user presses the start button.
            logLine(Log::kNotice, error.what());
        }
        mirrorLog(settings.log);
        logLine(Log::kNotice, "Motion clip core started for ", adaptor_.getAdaptorName());
        options_.open(adaptor_);
    });
}

void MocapCore::openStudio(void* /*mainWindow*/) {
    guarded("openStudio", [this] {
        Settings settings;
        std::string line;
        try {
            readSettings(settings);
            mirrorLog(settings.log);
            settle();
            line = "ok " + StartRun(adaptor_, takes_, grid_, options_, settings).run();
            logLine(Log::kNotice, line);
        } catch (const std::exception& error) {
            line = std::string("error ") + error.what();
            logLine(Log::kError, error.what());
        }
        writeReport(settings.report, line);
    });
}

void MocapCore::saveState(util::xml::Element& state) {
    guarded("saveState", [&] {
        settle();
        // The host asks for the state before it writes the nodes, so the tags go into the same file.
        takes_.tagNodes(adaptor_);
        TakeList::write(takes_, state);
    });
}

void MocapCore::loadState(util::xml::Element& state) {
    guarded("loadState", [&] {
        settle();
        if (state.value == TakeList::kElement) {
            takeList_.expect(state);
        } else if (state.value == kToolsElement) {
            TakeRestorer(adaptor_, takes_, grid_).restore(state);
            takeList_.rootArrived(takes_);
        } else {
            logLine(Log::kWarning, "The scene holds a state that this core does not know: ",
                    FileError::printable(state.value));
        }
    });
}

void MocapCore::sceneClosing() {
    guarded("sceneClosing", [this] {
        settle();
        takeList_.clear();
        grid_.suspend();
        sceneWasClosing_ = true;
    });
}

/// The call before an import, and before a file that is then refused, is the call before a scene is closed.
/// Only afterwards it shows whether the nodes went: the adaptor keeps those of a scene that stayed.
void MocapCore::settle() {
    if (!sceneWasClosing_) return;
    sceneWasClosing_ = false;
    takes_.refresh(adaptor_);
    if (takes_.latest()) grid_.resume();
}

void MocapCore::timeChanged(double /*seconds*/) {
    // The motion is in the keys, which the host evaluates by itself.
}

bool MocapCore::queryEvent(const void* /*notification*/) {
    // The user may delete any node (the takes learn of it as listeners), and keys are never hidden.
    return false;
}

void MocapCore::handleEvent() {
    // Never asked for: queryEvent answers false.
}

void MocapCore::setOption(unsigned int id, unsigned int value) {
    guarded("setOption", [&] {
        logLine(Log::kNotice, "Option ", id, ": ", value);
        options_.noteValue(id, value != 0);
    });
}

void MocapCore::optionChanged(unsigned int id, const void* value) {
    if (!value) return;
    setOption(id, *static_cast<const unsigned char*>(value));  // 0 or 1, whatever its width
}

void MocapCore::readSettings(Settings& settings) {
    std::string path;
    util::ReturnInto<std::string> sink(path);
    adaptor_.getConfigurationPath(sink);
    settings.readFile(path);
}

void MocapCore::mirrorLog(const std::string& path) {
    if (path.empty() || path == logPath_) return;  // setting the same file again would empty it
    Log::setFile(path);
    logPath_ = path;
}

}  // namespace qvo::zmx::mocap
