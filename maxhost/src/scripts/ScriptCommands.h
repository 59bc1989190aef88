#pragma once

#include <coreexp.h>

#include <string>
#include <vector>

namespace maxhost {

/// What scripts can have the host do.
class ScriptCommands {
  public:
    virtual ~ScriptCommands() = default;

    /// TASK_MODE_CREATE to TASK_MODE_UTILITY.
    virtual int taskMode() = 0;
    virtual void setTaskMode(int mode) = 0;

    /// The class names of all utilities, as their descriptors give them.
    virtual std::vector<std::string> utilityNames() = 0;
    /// Opens the utility of this class name. False when it cannot be opened.
    virtual bool openUtility(const std::string& className) = 0;

    /// One step; nothing to undo or redo is no error.
    virtual void undo() = 0;
    virtual void redo() = 0;
};

}  // namespace maxhost
