#pragma once

#include <string>
#include <vector>

#include "adaptor/max/services/CUndoWrapper.h"
#include "core/CUndo.h"

namespace qvo::zmx::adaptor::max {

/// Maps the core's nested, named undo groups onto the host's single hold. The outermost group begins a hold
/// when the host is not holding already, ends what it began, and names the host's undo entry. A group that
/// the core opens while the host undoes or redoes leaves the hold alone: nothing is recorded then.
class UndoGroups {
  public:
    /// Opens a group. Deep nesting and repeated names are logged, never refused.
    void begin(const std::string& name);

    /// Closes the innermost group. False, and an error in the log, when none is open.
    bool end();

    /// The next outermost group that owns its hold is cancelled instead of accepted; inside the host's own
    /// hold the mark is carried over to the next group that owns one.
    void requestCancel() { cancelRequested_ = true; }

    /// True while a group is open and the host is not itself undoing or redoing.
    bool isRecording() const;

    /// Puts `record` into the host's hold; the host owns it from here on. Only while recording.
    static void put(CUndo* record, CUndoWrapper::Origin origin);

    /// Ends all open groups, accepting what they recorded, with a warning for each.
    void endAll();

  private:
    void endHold(char* name);

    std::vector<std::string> names_;  ///< outermost first
    bool ownsHold_ = false;           ///< the host was not holding when the outermost group began
    bool beganHold_ = false;          ///< as ownsHold_, but false for a group within the host's undo or redo
    bool cancelRequested_ = false;
};

}  // namespace qvo::zmx::adaptor::max
