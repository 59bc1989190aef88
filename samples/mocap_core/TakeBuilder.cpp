#include "samples/mocap_core/TakeBuilder.h"

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

#include "samples/mocap_core/ClipBake.h"
#include "samples/mocap_core/FileError.h"
#include "samples/mocap_core/FilePath.h"
#include "samples/mocap_core/TakeChange.h"
#include "samples/mocap_core/TakeNames.h"
#include "util/Log.h"

namespace qvo::zmx::mocap {

namespace {

/// Earlier than any key: deleting starts after this moment.
constexpr double kBeforeAllKeys = -1.0;

std::vector<std::string> jointNames(const Clip& clip) {
    std::vector<std::string> names;
    for (const Joint& joint : clip.joints)
        names.push_back(joint.name);
    return names;
}

void requireJointsOf(const Take& take, const PreparedClip& clip) {
    if (jointNames(clip.clip) != take.record().joints)
        throw FileError(clip.path, 0,
                        "the clip's joints are not those of take \"" + take.record().name + "\"");
}

}  // namespace

Take& TakeBuilder::load(const PreparedClip& clip) {
    TakeRecord record;
    record.id = TakeRecord::freshId();
    record.name = takes_.uniqueName(path::stem(clip.path));
    record.multiplier = clip.grid.multiplier();
    record.userRate = clip.userRate;
    record.joints = jointNames(clip.clip);
    record.clips = {clip.record()};
    Take& take = takes_.add(std::make_unique<Take>(std::move(record)));
    bake(take, clip);
    return take;
}

void TakeBuilder::extend(Take& take, PreparedClip& clip) {
    requireJointsOf(take, clip);
    clip.moveTo(take.record().nextTick());
    TakeRecord record = take.record();
    record.multiplier = clip.grid.multiplier();
    record.userRate = clip.userRate;
    record.clips.push_back(clip.record());
    TakeChange::make(adaptor_, take, std::move(record));
    bake(take, clip);
}

void TakeBuilder::bakeAgain(Take& take) {
    std::vector<PreparedClip> clips;
    TakeRecord record = take.record();
    for (ClipRecord& each : record.clips) {
        const std::int64_t earliest = clips.empty() ? 0 : clips.back().record().nextTick();
        clips.push_back(PreparedClip::read(each.path, each.metresPerUnit, adaptor_.getFrameRate(), earliest));
        requireJointsOf(take, clips.back());
        each = clips.back().record();
    }
    if (clips.empty()) throw std::runtime_error("take \"" + record.name + "\" has lost its clips");
    record.multiplier = clips.back().grid.multiplier();
    record.userRate = clips.back().userRate;
    TakeChange::make(adaptor_, take, std::move(record));
    for (const std::string& joint : take.record().joints)
        if (core::CoreNode* const node = take.node(joint)) node->clearAnimationFrom(kBeforeAllKeys);
    for (const PreparedClip& clip : clips)
        bake(take, clip);
}

void TakeBuilder::rename(Take& take, const std::string& name) {
    if (take.record().name == name) return;
    TakeRecord record = take.record();
    const std::string former = std::exchange(record.name, takes_.uniqueName(name));
    TakeChange::make(adaptor_, take, std::move(record));
    renameNodes(take, former);
}

void TakeBuilder::bake(Take& take, const PreparedClip& clip) {
    const util::Log section("Baking " + take.getName(), util::Log::kNotice);
    FileError::concerning(clip.path, [&] {
        const core::AdaptorInterface::TimeRange range = rangeWith(clip.grid);
        const std::vector<core::CoreNode*> nodes =
            skeletonNodes(adaptor_, take, clip.clip, clip.metresPerUnit, bones_);
        grid_.change({clip.grid.multiplier(), range});
        counts_.keys += ClipBake(adaptor_, clip.clip, clip.grid, nodes).run(clip.metresPerUnit);
        counts_.joints += nodes.size();
        counts_.frames += clip.clip.frameCount();
    });
}

core::AdaptorInterface::TimeRange TakeBuilder::rangeWith(const FrameGrid& grid) const {
    // A range of no length is none to a host: a clip of one frame gets the frame after it as well.
    const double end = std::max(grid.lastSecond(), 1.0 / grid.rate());
    if (!takes_.latest()) return {0.0, end};
    const core::AdaptorInterface::TimeRange present = adaptor_.getAnimationRange();
    return {std::min(0.0, present.first), std::max(end, present.second)};
}

}  // namespace qvo::zmx::mocap
