#pragma once

#include <max.h>

#include <gup.h>

#include <string>
#include <vector>

#include "maxhost/src/plugins/ClassDirectory.h"

namespace maxhost {

/// The running global utilities, in the order in which they were started. A utility that rejects its start by
/// GUPRESULT_NOKEEP is deleted without Stop.
class GlobalUtilities {
  public:
    struct Utility {
        Class_ID classId;
        std::string className;
        GUP* utility;
    };

    ~GlobalUtilities() { stopAll(); }

    /// Starts every class of the directory that was not started before. False when one asks the host to end
    /// (GUPRESULT_ABORT); those after it are not started.
    bool startAll(const ClassDirectory& directory);
    /// Stop, then DeleteThis, for each.
    void stopAll();
    GUP* find(Class_ID classId) const;
    const std::vector<Utility>& running() const { return running_; }

  private:
    std::vector<Utility> running_;
    std::vector<ClassDesc*> tried_;
};

}  // namespace maxhost
