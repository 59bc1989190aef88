#include "apps/headless/Session.h"

#include <cstdio>
#include <filesystem>

#include "apps/headless/ClipError.h"
#include "apps/headless/CurvesSvg.h"
#include "apps/headless/FileText.h"
#include "apps/headless/PositionsCsv.h"
#include "apps/headless/platform/Platform.h"
#include "maxhost/Viewport.h"

namespace headless {

namespace {

/// The plug-in's page in the utility panel, and the button on it.
constexpr char kUtility[] = "Zorva Kestrel Studio Util";
constexpr int kStartButton = 1046;
/// The name by which the plug-in's own start script opens that page; the host would form another one.
constexpr char kUtilityInScripts[] = "Zorva_Kestrel_Tools_Util";

constexpr std::size_t kMoments = 6;

double ticksPerSecond() {
    return static_cast<double>(GetTicksPerFrame()) * GetFrameRate();
}

std::string firstLine(const std::string& text) {
    return text.substr(0, text.find_first_of("\r\n"));
}

/// `count` of the times, evenly spread, the first and the last among them.
std::vector<TimeValue> moments(const std::vector<TimeValue>& times, std::size_t count) {
    std::vector<TimeValue> chosen;
    for (std::size_t i = 0; i < count && !times.empty(); ++i)
        chosen.push_back(times[(times.size() - 1) * i / (count - 1)]);
    return chosen;
}

std::string readableRate(double framesPerSecond) {
    char text[32];
    std::snprintf(text, sizeof text, "%.5g", framesPerSecond);
    return text;
}

}  // namespace

Session::Session(const Options& options) : options_(options), out_(options.out) {}

void Session::run() {
    stages_.run("start", [this] { startHost(); });
    stages_.run("bake", [this] { pressStart(); });
    const Playback baked = stages_.run("play back", [this] { return watch(); });
    stages_.run("undo and redo", [&] { undoAndRedo(baked); });
    const Playback reopened =
        stages_.run("save, reset, open, play back", [&] { return saveAndReopen(baked); });
    stages_.run("write results", [&] { writeResults(reopened); });
    stages_.run("shut down", [this] { endHost(); });
    summary_.write(out_.file("summary.json"), stages_);
    log_.write(out_.file("log.txt"), options_.logs);
    out_.complete();
}

void Session::require(bool done, const std::string& what) {
    log_.add(done ? what : what + ": " + host_.lastMessage());
    if (!done) throw std::runtime_error(what + " failed: " + host_.lastMessage());
}

void Session::startHost() {
    platform::prepare(options_.registry);
    host_.addScriptClassAlias(kUtilityInScripts, kUtility);
    require(host_.loadPlugins(options_.plugins), "loading the plug-ins in " + options_.plugins);
    require(host_.start(), "starting the global utilities");
    require(host_.setTaskMode(TASK_MODE_UTILITY), "showing the utility panel");
    require(host_.openUtility(kUtility), std::string("opening the utility ") + kUtility);
    undoableFrom_ = host_.nodeCount();
    RegisterNotification(onMerged, this, NOTIFY_FILE_POST_MERGE);
}

void Session::onMerged(void* session, NotifyInfo* /*info*/) {
    Session& self = *static_cast<Session*>(session);
    self.undoableFrom_ = self.host_.nodeCount();
}

void Session::pressStart() {
    std::filesystem::remove(options_.report);  // an older one must not be taken for this session's
    require(host_.pressButton(kStartButton), "pressing the start button");
    summary_.report = takeReport();
    summary_.undoNames = host_.undoNames();
    log_.add("the core reports: " + summary_.report);
}

std::string Session::takeReport() const {
    if (!std::filesystem::exists(options_.report)) {
        const std::vector<std::string> boxes = platform::messageBoxes();
        throw std::runtime_error(
            "the core has not reported" +
            (boxes.empty() ? std::string() : "; a message says " + firstLine(boxes.back())));
    }
    const std::string line = firstLine(readText(options_.report));
    const std::string refused = "error ";
    if (line.compare(0, refused.size(), refused) == 0) throw ClipError(line.substr(refused.size()));
    if (line.compare(0, 3, "ok ") != 0)
        throw std::runtime_error("the core's report says neither ok nor error: \"" + line + "\"");
    return line;
}

Playback Session::watch() {
    return Playback::record(host_.interface(),
                            [this](std::size_t done, std::size_t total) { stages_.advance(done, total); });
}

void Session::undoAndRedo(const Playback& before) {
    // The clips are one entry; a conversion of all controllers stands on it as another.
    for (const std::string& name : summary_.undoNames)
        require(host_.undo(), "undoing " + name);
    summary_.undoRemovesAll = host_.nodeCount() == undoableFrom_;
    if (!summary_.undoRemovesAll)
        throw std::runtime_error("undo leaves " + std::to_string(host_.nodeCount()) + " nodes");
    for (auto name = summary_.undoNames.rbegin(); name != summary_.undoNames.rend(); ++name)
        require(host_.redo(), "redoing " + *name);
    const Playback after = watch();
    summary_.redoPlaysTheSame = after.equals(before);
    if (!summary_.redoPlaysTheSame)
        throw std::runtime_error("undo and redo changed the motion: " + before.differenceFrom(after));
}

Playback Session::saveAndReopen(const Playback& before) {
    const std::string scene = out_.file("scene.zms");
    require(host_.save(scene), "saving the scene");
    require(host_.reset(), "resetting");
    if (host_.nodeCount() != 0)
        throw std::runtime_error("the reset scene has " + std::to_string(host_.nodeCount()) + " nodes");
    require(host_.open(scene), "opening the scene");
    summary_.sceneBytes = static_cast<std::size_t>(std::filesystem::file_size(scene));
    const Playback after = watch();
    summary_.reopenedPlaysTheSame = after.equals(before);
    if (!summary_.reopenedPlaysTheSame)
        throw std::runtime_error("the reopened scene moves differently: " + before.differenceFrom(after));
    refuseMessages();
    saveAgain(scene);
    return after;
}

void Session::refuseMessages() const {
    const std::vector<std::string> boxes = platform::messageBoxes();
    if (!boxes.empty()) throw std::runtime_error("a message was shown: " + firstLine(boxes.back()));
}

void Session::saveAgain(const std::string& scene) {
    const std::string again = out_.file("scene-again.zms");
    require(host_.save(again), "saving the scene again");
    summary_.secondSaveIsTheSame = readText(scene) == readText(again);
    std::filesystem::remove(again);
    if (!summary_.secondSaveIsTheSame)
        throw std::runtime_error("saving the reopened scene gives other bytes than saving it first");
}

void Session::writeResults(const Playback& playback) {
    describeScene(playback);
    writePositionsCsv(out_.file("positions.csv"), playback);
    writeCurvesSvg(out_.file("curves.svg"), host_.interface(), playback);
    maxhost::ContactSheet sheet;
    sheet.title = std::to_string(summary_.joints) + " joints   " + std::to_string(summary_.frames) +
                  " frames at " + readableRate(summary_.framesPerSecond) + " per second";
    if (summary_.clipSeconds > 0) sheet.framesPerTick = summary_.framesPerSecond / ticksPerSecond();
    maxhost::renderContactSheet(host_.interface(), moments(playback.times(), kMoments), sheet)
        .writePng(out_.file("viewport.png"));
}

void Session::describeScene(const Playback& playback) {
    const std::vector<TimeValue>& times = playback.times();
    summary_.nodes = host_.nodeCount();
    summary_.joints = playback.names().size();
    summary_.keys = keyCount(joints(host_.interface()));
    summary_.frames = times.size();
    if (times.size() > 1) {
        summary_.clipSeconds = (times.back() - static_cast<double>(times.front())) / ticksPerSecond();
        summary_.framesPerSecond = static_cast<double>(times.size() - 1) / summary_.clipSeconds;
    }
    summary_.frameRate = GetFrameRate();
    summary_.ticksPerFrame = GetTicksPerFrame();
    summary_.rangeStart = host_.interface().GetAnimRange().Start() / ticksPerSecond();
    summary_.rangeEnd = host_.interface().GetAnimRange().End() / ticksPerSecond();
    summary_.unitsPerMetre = unitsPerMetre();
}

void Session::endHost() {
    host_.exit();
    summary_.messageBoxes = platform::messageBoxes();
    summary_.faults = host_.faults();
    for (const std::string& box : summary_.messageBoxes)
        log_.add("message box: " + box);
    for (const std::string& fault : summary_.faults)
        log_.add("fault of a plug-in: " + fault);
    log_.add("the host has ended");
    refuseMessages();
    if (!summary_.faults.empty())
        throw std::runtime_error("a plug-in made a mistake: " + firstLine(summary_.faults.front()));
}

}  // namespace headless
