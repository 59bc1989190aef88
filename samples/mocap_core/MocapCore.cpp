#include "samples/mocap_core/MocapCore.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "samples/mocap_core/ClipBake.h"
#include "samples/mocap_core/FileError.h"
#include "samples/mocap_core/FrameGrid.h"
#include "samples/mocap_core/Guarded.h"
#include "samples/mocap_core/UndoGroup.h"
#include "samples/mocap_core/bvh/BvhReader.h"
#include "util/ReturnInto.h"
#include "util/SingletonCollector.h"

namespace qvo::zmx::mocap {

namespace {

using util::Log;
using util::logLine;

constexpr char kStateName[] = "ZMK_Mocap";

/// Runs a step that concerns `path` as a whole: its failures get the path in front.
template <class Step>
auto concerning(const std::string& path, Step step) {
    try {
        return step();
    } catch (const FileError&) {
        throw;
    } catch (const std::runtime_error& error) {
        throw FileError(path, 0, error.what());
    }
}

void writeReport(const std::string& path, const std::string& line) {
    if (path.empty()) return;
    std::ofstream stream(path, std::ios::trunc);
    stream << line << '\n';
    stream.close();
    if (!stream) logLine(Log::kWarning, "The report cannot be written to ", path);
}

}  // namespace

/// A clip that has been read and found to fit the host, before the scene is touched.
struct MocapCore::PreparedClip {
    Clip clip;
    FrameGrid grid;
    ClipRecord record;
};

MocapCore* MocapCore::attach(core::AdaptorInterface* adaptor) noexcept {
    MocapCore* core = nullptr;
    guarded("attach", [&] {
        if (!adaptor) throw std::runtime_error("no adaptor");
        if (adaptor->getAdaptorVersion() != kVersion) throw std::runtime_error("adaptor of another version");
        core = new MocapCore(*adaptor);  // deleted by detach
    });
    return core;
}

void MocapCore::detach(core::CoreObject* core) noexcept {
    delete static_cast<MocapCore*>(core);
    guarded("detach", [] { util::SingletonCollector::destroyAll(); });
}

MocapCore::MocapCore(core::AdaptorInterface& adaptor) : adaptor_(adaptor), sceneGrid_(adaptor) {}

void MocapCore::start() {
    guarded("start", [this] {
        Settings settings;
        try {
            settings.readFile(configurationPath());
        } catch (const FileError& error) {
            // Not yet a fault: the settings are needed when the user presses the start button.
            logLine(Log::kNotice, error.what());
        }
        mirrorLog(settings.log);
        logLine(Log::kNotice, "Motion clip core started for ", adaptor_.getAdaptorName());
    });
}

void MocapCore::openStudio(void* /*mainWindow*/) {
    guarded("openStudio", [this] {
        Settings settings;
        std::string line;
        try {
            settings.readFile(configurationPath());
            mirrorLog(settings.log);
            line = "ok " + loadClips(settings);
            logLine(Log::kNotice, line);
        } catch (const std::exception& error) {
            line = std::string("error ") + error.what();
            logLine(Log::kError, error.what());
        }
        writeReport(settings.report, line);
    });
}

std::string MocapCore::loadClips(const Settings& settings) {
    const Log section("Loading motion clips", Log::kNotice);
    std::vector<PreparedClip> prepared;
    for (const std::string& path : settings.clips)
        prepared.push_back(prepare(path, settings.metresPerUnit));
    std::size_t joints = 0, frames = 0, keys = 0;
    UndoGroup group(adaptor_, prepared.size() == 1 ? "Load motion clip " + uniqueName(settings.clips.front())
                                                   : "Load motion clips");
    for (const PreparedClip& each : prepared) {
        keys += bake(each);
        joints += each.clip.joints.size();
        frames += each.clip.frameCount();
    }
    group.accept();
    adaptor_.redrawViews();
    return "joints=" + std::to_string(joints) + " frames=" + std::to_string(frames) +
           " keys=" + std::to_string(keys) +
           " multiplier=" + std::to_string(prepared.back().grid.multiplier());
}

MocapCore::PreparedClip MocapCore::prepare(const std::string& path, double metresPerUnit) {
    return concerning(path, [&] {
        Clip clip = BvhReader::readFile(path);
        if (clip.surplusFrame) logLine(Log::kWarning, path, ": one frame more than announced is left out");
        const double userRate = adaptor_.getFrameRate();
        const FrameGrid grid(userRate, clip.frameTime, clip.frameCount());
        if (!grid.isExact())
            logLine(Log::kWarning, path, ": frames are moved to the nearest of ", grid.rate(), " a second");
        ClipRecord record;
        record.path = path;
        record.frames = clip.frameCount();
        record.frameTime = clip.frameTime;
        record.metresPerUnit = metresPerUnit;
        record.multiplier = grid.multiplier();
        record.userRate = userRate;
        for (const Joint& joint : clip.joints)
            record.joints.push_back(joint.name);
        return PreparedClip{std::move(clip), grid, std::move(record)};
    });
}

std::size_t MocapCore::bake(const PreparedClip& prepared) {
    ClipRecord record = prepared.record;
    record.name = uniqueName(record.path);
    takes_.push_back(std::make_unique<Take>(std::move(record)));
    Take& take = *takes_.back();
    const Log section("Baking " + take.getName(), Log::kNotice);
    return concerning(prepared.record.path, [&] {
        return ClipBake(adaptor_, sceneGrid_, prepared.clip, prepared.grid, take).run(rangeWith(prepared));
    });
}

core::AdaptorInterface::TimeRange MocapCore::rangeWith(const PreparedClip& prepared) const {
    // A range of no length is none to a host: a clip of one frame gets the frame after it as well.
    const double end = std::max(prepared.grid.lastSecond(), 1.0 / prepared.grid.rate());
    if (!hasTakes()) return {0.0, end};
    const core::AdaptorInterface::TimeRange present = adaptor_.getAnimationRange();
    return {std::min(0.0, present.first), std::max(end, present.second)};
}

void MocapCore::saveState(util::xml::Element& state) {
    guarded("saveState", [&] {
        // The element lives in the adaptor: it is changed through its virtual operations only.
        state.setValue(kStateName);
        for (const ClipRecord& record : remembered_)
            state.addChild(record.toElement());
        for (const auto& take : takes_) {
            if (take->isInScene()) state.addChild(take->record().toElement());
        }
    });
}

void MocapCore::loadState(util::xml::Element& state) {
    guarded("loadState", [&] {
        if (state.value != kStateName) return;  // the root of gathered or converted states
        for (const util::xml::Element* child : state.children) {
            std::optional<ClipRecord> record = ClipRecord::fromElement(*child);
            if (!record) {
                logLine(Log::kWarning, "A clip's record in the scene cannot be read and is dropped");
                continue;
            }
            restoreGrid(*record);
            remembered_.push_back(std::move(*record));
        }
    });
}

void MocapCore::restoreGrid(const ClipRecord& record) {
    const double userRate = adaptor_.getFrameRate();
    // A host that keeps its frame rate in the scene is on the fine grid already.
    if (userRate != record.userRate) {
        logLine(Log::kNotice, "The host is at ", userRate, " frames per second, \"", record.name,
                "\" was made at ", record.userRate, ": the frame grid is left as it is");
        return;
    }
    sceneGrid_.setMultiplier(record.multiplier);
}

void MocapCore::sceneClosing() {
    guarded("sceneClosing", [this] {
        for (auto& take : takes_)
            retired_.push_back(std::move(take));
        takes_.clear();
        remembered_.clear();
        sceneGrid_.setMultiplier(1);
    });
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
    // Both options are the adaptor's business; the log keeps what the core was told.
    logLine(Log::kNotice, "Option ", id, ": ", value);
}

void MocapCore::optionChanged(unsigned int id, const void* value) {
    if (!value) return;
    setOption(id, *static_cast<const unsigned char*>(value));  // 0 or 1, whatever its width
}

std::string MocapCore::configurationPath() {
    std::string path;
    util::ReturnInto<std::string> sink(path);
    adaptor_.getConfigurationPath(sink);
    return path;
}

void MocapCore::mirrorLog(const std::string& path) {
    if (path.empty() || path == logPath_) return;  // setting the same file again would empty it
    Log::setFile(path);
    logPath_ = path;
}

std::string MocapCore::uniqueName(const std::string& path) const {
    const std::string stem = std::filesystem::path(path).stem().string();
    std::string name = stem;
    for (int number = 2; isNameTaken(name); ++number)
        name = stem + "-" + std::to_string(number);
    return name;
}

bool MocapCore::isNameTaken(const std::string& name) const {
    return std::any_of(remembered_.begin(), remembered_.end(),
                       [&](const ClipRecord& record) { return record.name == name; }) ||
           std::any_of(takes_.begin(), takes_.end(), [&](const std::unique_ptr<Take>& take) {
               return take->isInScene() && take->getName() == name;
           });
}

bool MocapCore::hasTakes() const {
    return !remembered_.empty() ||
           std::any_of(takes_.begin(), takes_.end(), [](const auto& take) { return take->isInScene(); });
}

}  // namespace qvo::zmx::mocap
