#include <notify.h>

#include <algorithm>
#include <exception>
#include <stdexcept>

#include "maxhost/src/files/ChunkReader.h"
#include "maxhost/src/files/ChunkWriter.h"
#include "maxhost/src/files/FileBytes.h"
#include "maxhost/src/files/SceneReader.h"
#include "maxhost/src/files/SceneWriter.h"
#include "maxhost/src/host/SceneCommands.h"
#include "maxhost/src/scene/SceneMerge.h"
#include "maxhost/src/scene/Timing.h"
#include "maxhost/src/scene/Units.h"

namespace maxhost {

namespace {

std::string pathOf(const TCHAR* path) {
    if (path == nullptr || *path == '\0') throw std::runtime_error("no file is named");
    return path;
}

/// A file that could be opened but is no whole scene.
class DamagedFile : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

SceneDocument readDocument(const std::string& path, const ClassDirectory& classes) {
    const Bytes bytes = readFileBytes(path);
    try {
        return SceneReader::read({bytes.data(), bytes.size()}, classes);
    } catch (const std::exception& cause) {
        throw DamagedFile(path + ": " + cause.what());
    }
}

/// What is missing, as the message of a file that was read nevertheless.
std::string missingText(const SceneDocument& document) {
    std::string text;
    for (const std::string& missing : document.missingClasses)
        text += (text.empty() ? "kept without use, since its plug-in is not there: " : ", ") + missing;
    return text;
}

format::SettingsRecord presentSettings() {
    const Timing& timing = Timing::instance();
    return {timing.time(),          timing.range().Start(),   timing.range().End(),     timing.frameRate(),
            timing.ticksPerFrame(), Units::instance().type(), Units::instance().scale()};
}

void applySettings(const format::SettingsRecord& settings) {
    Units::instance().set(settings.unitType, settings.unitScale);
    Timing::instance().setGrid(settings.frameRate, settings.ticksPerFrame);
    Timing::instance().setRange(Interval(settings.rangeStart, settings.rangeEnd));
    Timing::instance().setTime(settings.time);
}

/// Every running utility writes; what utilities that do not run have stored is passed on.
std::vector<UtilityPart> saveUtilities(Host& host) {
    std::vector<UtilityPart> parts;
    for (const GlobalUtilities::Utility& each : host.utilities().running()) {
        ChunkWriter out;
        if (each.utility->Save(&out) != IO_OK || out.failed() || out.depth() != 0)
            throw std::runtime_error("the utility " + each.className + " could not save its data");
        parts.push_back({each.classId, out.take()});
    }
    for (const UtilityPart& part : host.scene().foreignParts)
        if (host.utilities().find(part.classId) == nullptr) parts.push_back(part);
    return parts;
}

/// Every running utility reads, even when the file has nothing for it. Returns what went wrong, for a
/// message.
std::string loadUtilities(Host& host, const std::vector<UtilityPart>& parts) {
    std::string problems;
    for (const GlobalUtilities::Utility& each : host.utilities().running()) {
        const auto part = std::find_if(parts.begin(), parts.end(), [&](const UtilityPart& candidate) {
            return candidate.classId == each.classId;
        });
        ByteSpan chunks;
        if (part != parts.end()) chunks = {part->chunks.data(), part->chunks.size()};
        std::vector<PostLoadCallback*> callbacks;
        ChunkReader in(chunks, &callbacks);
        if (each.utility->Load(&in) != IO_OK)
            problems += "the utility " + each.className + " could not read its data; ";
        for (PostLoadCallback* callback : callbacks)
            callback->proc(&in);
    }
    for (const UtilityPart& part : parts)
        if (host.utilities().find(part.classId) == nullptr) host.scene().foreignParts.push_back(part);
    return problems;
}

}  // namespace

template <class Work>
bool SceneCommands::attempt(const Work& work) {
    host_.setMessage(std::string());
    fileWasDamaged_ = false;
    try {
        work();
        return true;
    } catch (const std::exception& cause) {
        fileWasDamaged_ = dynamic_cast<const DamagedFile*>(&cause) != nullptr;
        host_.setMessage(cause.what());
        return false;
    }
}

bool SceneCommands::open(const TCHAR* path) {
    FileIOType type = IOTYPE_MAX;
    BroadcastNotification(NOTIFY_FILE_PRE_OPEN, &type);
    SceneDocument document;
    if (!attempt([&] { document = readDocument(pathOf(path), host_.classes()); })) {
        BroadcastNotification(NOTIFY_FILE_OPEN_FAILED, &type);
        return false;
    }
    host_.replaceScene(std::move(document.scene));
    host_.setMessage(loadUtilities(host_, document.utilities) + missingText(document));
    applySettings(document.settings);
    BroadcastNotification(NOTIFY_FILE_POST_OPEN, &type);
    return true;
}

bool SceneCommands::save(const TCHAR* path) {
    std::string name = path == nullptr ? "" : path;
    BroadcastNotification(NOTIFY_FILE_PRE_SAVE, name.data());
    const bool saved = attempt([&] {
        // The utilities first: what they change in the scene while they save must reach the file.
        const std::vector<UtilityPart> parts = saveUtilities(host_);
        replaceFileBytes(pathOf(path), SceneWriter::write(host_.scene(), presentSettings(), parts));
    });
    if (saved) BroadcastNotification(NOTIFY_FILE_POST_SAVE, name.data());
    return saved;
}

bool SceneCommands::merge(const TCHAR* path, bool selectMerged) {
    BroadcastNotification(NOTIFY_FILE_PRE_MERGE);
    const bool merged = attempt([&] { bringIn(pathOf(path), selectMerged); });
    if (merged) BroadcastNotification(NOTIFY_FILE_POST_MERGE);
    return merged;
}

void SceneCommands::bringIn(const std::string& path, bool selectMerged) {
    SceneDocument document = readDocument(path, host_.classes());
    const HoldSuspend unrecorded;
    const std::vector<Node*> nodes = SceneMerge::run(*document.scene, host_.scene());
    if (selectMerged) host_.scene().selection().set(nodes);
    host_.setMessage(missingText(document));
}

bool SceneCommands::importFile(const TCHAR* path) {
    BroadcastNotification(NOTIFY_PRE_IMPORT);
    const bool imported = attempt([&] { bringIn(pathOf(path), false); });
    BroadcastNotification(imported ? NOTIFY_POST_IMPORT : NOTIFY_IMPORT_FAILED);
    return imported;
}

bool SceneCommands::exportFile(const TCHAR* path) {
    BroadcastNotification(NOTIFY_PRE_EXPORT);
    const bool exported = attempt(
        [&] { replaceFileBytes(pathOf(path), SceneWriter::write(host_.scene(), presentSettings(), {})); });
    BroadcastNotification(exported ? NOTIFY_POST_EXPORT : NOTIFY_EXPORT_FAILED);
    return exported;
}

}  // namespace maxhost
