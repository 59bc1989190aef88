#include "adaptor/max/services/UndoGroups.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "util/Log.h"

namespace qvo::zmx::adaptor::max {
namespace {

using util::Log;
using util::logLine;

constexpr int kUnusualDepth = 100;
constexpr int kSuspiciousRepetitions = 4;

/// A buffer of its own for each name handed to the host, never freed: the host may keep the text as long as
/// it likes. The list keeps the buffers reachable for leak checkers.
char* lastingCopy(const std::string& name) {
    static auto* const buffers = new std::vector<char*>;  // lives as long as the process, as its buffers do
    char* const buffer = new char[name.size() + 1];
    std::memcpy(buffer, name.c_str(), name.size() + 1);
    buffers->push_back(buffer);
    return buffer;
}

void reportSuspiciousNesting(const std::vector<std::string>& open, const std::string& name) {
    if (!Log::instance().isEnabled(Log::kNotice)) return;
    if (static_cast<int>(open.size()) > kUnusualDepth)
        logLine(Log::kCritical, "DEBUG WARNING: Detected unusual high undo level.");
    if (std::count(open.begin(), open.end(), name) >= kSuspiciousRepetitions)
        logLine(Log::kWarning,
                "DEBUG WARNING: Detected duplicated undo groups. Possible undo group mismatch");
}

}  // namespace

void UndoGroups::begin(const std::string& name) {
    reportSuspiciousNesting(names_, name);
    names_.push_back(name);  // before the hold: a failed allocation must not leave one without a group
    if (names_.size() > 1) return;
    ownsHold_ = !theHold.Holding();
    beganHold_ = ownsHold_ && !theHold.RestoreOrRedoing();
    if (beganHold_) theHold.Begin();
}

bool UndoGroups::end() {
    if (names_.empty()) {
        logLine(Log::kError, "Error: undo group mismatch. Attempt to end a non-existing undo group detected");
        return false;
    }
    char* const name = lastingCopy(names_.back());
    names_.pop_back();
    if (names_.empty()) endHold(name);
    return true;
}

void UndoGroups::endHold(char* name) {
    if (!std::exchange(ownsHold_, false)) return;
    const bool cancel = std::exchange(cancelRequested_, false);
    // The depth counts: a suspended hold is open too, though the host does not hold.
    if (!std::exchange(beganHold_, false) || theHold.GetBeginDepth() == 0 || theHold.RestoreOrRedoing())
        return;
    if (cancel)
        theHold.Cancel();
    else
        theHold.Accept(name);
}

bool UndoGroups::isRecording() const {
    return !names_.empty() && !theHold.RestoreOrRedoing();
}

void UndoGroups::put(CUndo* record, CUndoWrapper::Origin origin) {
    theHold.Put(new CUndoWrapper(record, origin));  // the host owns the wrapper
}

void UndoGroups::endAll() {
    cancelRequested_ = false;
    while (!names_.empty()) {
        logLine(Log::kWarning, "Ending undo group that was left open: ", names_.back());
        end();
    }
}

}  // namespace qvo::zmx::adaptor::max
