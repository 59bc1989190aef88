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

    explicit SceneCommands(Host& host) : host_(host) {}

    bool newScene(NewOption option);
    bool reset();
    bool open(const TCHAR* path);
    bool save(const TCHAR* path);
    /// All nodes of the file; those of the same name are kept beside each other.
    bool merge(const TCHAR* path, bool selectMerged);
    bool importFile(const TCHAR* path);
    bool exportFile(const TCHAR* path);

    /// True when the last command on a file failed because the file, which was there, is no whole scene.
    bool fileWasDamaged() const { return fileWasDamaged_; }

  private:
    template <class Work>
    bool attempt(const Work& work);
    void bringIn(const std::string& path, bool selectMerged);

    Host& host_;
    bool fileWasDamaged_ = false;
};

}  // namespace maxhost
