#pragma once

#include <string>
#include <vector>

#include "core/AdaptorInterface.h"
#include "samples/mocap_core/LentViews.h"
#include "samples/mocap_core/PropBuilder.h"
#include "samples/mocap_core/SceneGrid.h"
#include "samples/mocap_core/Settings.h"
#include "samples/mocap_core/TakeBuilder.h"
#include "samples/mocap_core/TakeSet.h"
#include "samples/mocap_core/options/OptionPanel.h"

namespace qvo::zmx::mocap {

/// What one press of the start button does. All files are read first; then come the options and the merges,
/// which are no part of the core's undo group, then one undo group with everything else, and the conversion
/// of controllers, which is a group of the adaptor's. What fails inside the undo group leaves the scene as it
/// was before the group.
class StartRun {
  public:
    StartRun(core::AdaptorInterface& adaptor, TakeSet& takes, SceneGrid& grid, OptionPanel& options,
             const Settings& settings);

    /// What the report says after "ok ". Throws FileError or another std::runtime_error.
    std::string run();

  private:
    void readFiles();
    void setOptions();
    void mergeScenes();
    void changeScene();
    void edit(const Settings::Edit& edit);
    core::CoreNode& mergedCamera() const;
    Take& latestTake() const;
    bool changesScene() const;
    std::string groupName() const;

    core::AdaptorInterface& adaptor_;
    TakeSet& takes_;
    SceneGrid& grid_;
    OptionPanel& options_;
    const Settings& settings_;
    TakeBuilder builder_;
    std::vector<PreparedClip> clips_;
    std::vector<PreparedClip> extensions_;  // of all edits, in their order
    std::size_t nextExtension_ = 0;
    std::vector<PreparedProp> props_;
    LentViews merged_;
};

}  // namespace qvo::zmx::mocap
