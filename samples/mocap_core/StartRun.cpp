#include "samples/mocap_core/StartRun.h"

#include <stdexcept>

#include "samples/mocap_core/CameraFollow.h"
#include "samples/mocap_core/FileError.h"
#include "samples/mocap_core/FilePath.h"
#include "samples/mocap_core/UndoGroup.h"
#include "samples/mocap_core/model/ObjReader.h"
#include "util/Log.h"
#include "util/ReturnInto.h"

namespace qvo::zmx::mocap {

namespace {

constexpr unsigned int kConvertAllButton = 1028;

}  // namespace

StartRun::StartRun(core::AdaptorInterface& adaptor, TakeSet& takes, SceneGrid& grid, OptionPanel& options,
                   const Settings& settings)
    : adaptor_(adaptor),
      takes_(takes),
      grid_(grid),
      options_(options),
      settings_(settings),
      builder_(adaptor, takes, grid, settings.meshes.empty() ? Bones::solid : Bones::edges) {}

std::string StartRun::run() {
    const util::Log section("Loading motion clips", util::Log::kNotice);
    readFiles();
    FileError::concerning(settings_.path, [this] {
        setOptions();
        mergeScenes();
        changeScene();
        if (settings_.convertAll) options_.press(kConvertAllButton);
    });
    adaptor_.redrawViews();
    const TakeBuilder::Counts& counts = builder_.counts();
    return "joints=" + std::to_string(counts.joints) + " frames=" + std::to_string(counts.frames) +
           " keys=" + std::to_string(counts.keys) + " multiplier=" + std::to_string(grid_.multiplier());
}

void StartRun::readFiles() {
    const double userRate = adaptor_.getFrameRate();
    const double metresPerUnit = settings_.metresPerUnit;
    for (const std::string& path : settings_.clips)
        clips_.push_back(PreparedClip::read(path, metresPerUnit, userRate));
    for (const Settings::Edit& each : settings_.edits)
        for (const Settings::EditStep& step : each.steps)
            if (step.kind == Settings::EditStep::Kind::extend)
                extensions_.push_back(PreparedClip::read(step.value, metresPerUnit, userRate));
    for (const Settings::Mesh& mesh : settings_.meshes)
        props_.push_back({mesh.path, mesh.joint, mesh.metresPerUnit, ObjReader::readFile(mesh.path)});
}

void StartRun::setOptions() {
    for (const Settings::Option& option : settings_.options)
        options_.choose(option.id, option.value);
}

void StartRun::mergeScenes() {
    for (const std::string& path : settings_.merges) {
        std::vector<core::CoreNode*> views;
        util::ReturnInto<std::vector<core::CoreNode*>> sink(views);
        adaptor_.mergeFile(path, sink);
        merged_.add(views);
        if (views.empty()) throw FileError(path, 0, "the host merged nothing from this scene");
        util::logLine(util::Log::kNotice, "Merged ", views.size(), " nodes from ", path);
    }
    if (!settings_.camera.empty()) mergedCamera();  // missing it shall not undo what follows
}

void StartRun::changeScene() {
    if (!changesScene()) return;
    UndoGroup group(adaptor_, groupName());
    for (const Settings::Edit& each : settings_.edits)
        edit(each);
    for (const PreparedClip& clip : clips_)
        builder_.load(clip);
    for (const PreparedProp& prop : props_)
        addProp(adaptor_, latestTake(), prop);
    if (!settings_.camera.empty()) CameraFollow(adaptor_, grid_, latestTake()).follow(mergedCamera());
    group.accept();
}

void StartRun::edit(const Settings::Edit& edit) {
    Take* const take = takes_.findByName(edit.take);
    if (!take) throw std::runtime_error("the scene has no take \"" + FileError::printable(edit.take) + "\"");
    for (const Settings::EditStep& step : edit.steps) {
        switch (step.kind) {
            case Settings::EditStep::Kind::rename:
                builder_.rename(*take, step.value);
                break;
            case Settings::EditStep::Kind::extend:
                builder_.extend(*take, extensions_[nextExtension_++]);
                break;
            case Settings::EditStep::Kind::bake:
                builder_.bakeAgain(*take);
                break;
        }
    }
}

core::CoreNode& StartRun::mergedCamera() const {
    for (core::CoreNode* const view : merged_.all())
        if (view && view->getName() == settings_.camera) return *view;
    // There is no operation that makes a camera.
    throw std::runtime_error("no merged scene has brought a camera \"" +
                             FileError::printable(settings_.camera) + "\"");
}

Take& StartRun::latestTake() const {
    Take* const take = takes_.latest();
    if (!take) throw std::runtime_error("there is no take that a model or camera could follow");
    return *take;
}

bool StartRun::changesScene() const {
    return !settings_.edits.empty() || !clips_.empty() || !props_.empty() || !settings_.camera.empty();
}

std::string StartRun::groupName() const {
    if (!settings_.edits.empty()) return "Edit motion takes";
    if (clips_.size() == 1) return "Load motion clip " + takes_.uniqueName(path::stem(clips_.front().path));
    return clips_.empty() ? "Add to motion take" : "Load motion clips";
}

}  // namespace qvo::zmx::mocap
