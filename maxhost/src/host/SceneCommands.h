#pragma once

#include <max.h>

#include <string>
#include <vector>

#include "maxhost/src/host/Host.h"

namespace maxhost {

/// The commands of the File menu, with their notices. Each is refused while the undo recorder undoes or
/// redoes. A command that fails leaves the open scene as it was and its cause in the host's message.
class SceneCommands {
  public:
    /// What a new scene keeps (the parameter of NOTIFY_SYSTEM_PRE_NEW). Kept nodes lose their animation: they
    /// stay where they are at the present time. Without hierarchy they become children of the root.
    enum NewOption : int { kNewAll = 1, kKeepObjects = 2, kKeepObjectsAndHierarchy = 3 };

    struct MergeOptions {
        bool all = true;
        bool selectMerged = false;
        /// MERGE_DUPS_*; where a prompt would come up, both nodes are kept.
        int duplicates = MERGE_DUPS_PROMPT;
        /// Names of the nodes to merge when not all are wanted; null then means all. For MERGE_LIST_NAMES it
        /// is filled.
        NameTab* names = nullptr;
        /// MERGE_REPARENT_ALWAYS: top-level nodes whose parent's name the file knows go below the scene's
        /// node of that name. Anything else: below the root.
        int reparent = MERGE_REPARENT_PROMPT;
    };

    explicit SceneCommands(Host& host) : host_(host) {}

    bool newScene(NewOption option);
    bool reset();
    bool open(const TCHAR* path);
    bool save(const TCHAR* path);
    bool merge(const TCHAR* path, const MergeOptions& options);
    bool importFile(const TCHAR* path);
    bool exportFile(const TCHAR* path);

    /// True when the last command on a file failed because the file, which was there, is no whole scene.
    bool fileWasDamaged() const { return fileWasDamaged_; }

  private:
    template <class Work>
    bool attempt(const Work& work);
    void bringIn(const std::string& path, const MergeOptions& options);
    bool listNames(const TCHAR* path, NameTab* names);

    Host& host_;
    bool fileWasDamaged_ = false;
};

}  // namespace maxhost
