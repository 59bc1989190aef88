#include "apps/headless/Summary.h"

#include "apps/headless/FileText.h"
#include "apps/headless/Json.h"

namespace headless {

namespace {

Json secondsOf(const Stages& stages) {
    Json seconds;
    for (const Stages::Stage& stage : stages.finished())
        seconds.add(stage.name, stage.seconds);
    seconds.add("total", stages.totalSeconds());
    return seconds;
}

}  // namespace

void Summary::write(const std::string& path, const Stages& stages) const {
    Json checks;
    checks.add("undo removes the skeleton", undoRemovesAll);
    checks.add("one redo plays back the same", redoPlaysTheSame);
    checks.add("the reopened scene plays back the same", reopenedPlaysTheSame);
    checks.add("the reopened scene saves to the same bytes", secondSaveIsTheSame);
    Json summary;
    summary.add("report", report);
    summary.add("nodes", nodes);
    summary.add("joints", joints);
    summary.add("keys", keys);
    summary.add("frames", frames);
    summary.add("clip_seconds", clipSeconds);
    summary.add("frames_per_second", framesPerSecond);
    summary.add("host_frame_rate", frameRate);
    summary.add("ticks_per_frame", ticksPerFrame);
    summary.add("range_start_seconds", rangeStart);
    summary.add("range_end_seconds", rangeEnd);
    summary.add("units_per_metre", unitsPerMetre);
    summary.add("undo_entries", undoNames.size());
    summary.add("undo_names", undoNames);
    summary.add("checks", checks);
    summary.add("scene_bytes", sceneBytes);
    summary.add("message_boxes", messageBoxes);
    summary.add("faults", faults);
    summary.add("seconds", secondsOf(stages));
    writeText(path, summary.text() + '\n');
}

}  // namespace headless
