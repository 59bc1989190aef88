#pragma once

#include <string>

#include "core/AdaptorInterface.h"
#include "core/ReservedSlots.h"
#include "samples/mocap_core/SceneGrid.h"
#include "samples/mocap_core/Settings.h"
#include "samples/mocap_core/TakeList.h"
#include "samples/mocap_core/TakeSet.h"
#include "samples/mocap_core/options/OptionPanel.h"

namespace qvo::zmx::mocap {

/// A small animation core: on the start button it reads the motion-capture clips that the settings name,
/// makes a node for each joint and writes the joints' motion as keys.
///
/// Each press loads the clips as further takes beside those that are in the scene; a take's name is its
/// clip's file name without extension, followed by "-2", "-3", ... where the scene has that name already. All
/// clips of a press are one undo group. The frame grid of the last take stays in effect, the animation range
/// covers all takes that were loaded. What cannot be loaded leaves the scene as it was.
///
/// The scene keeps the takes in tags on their nodes (see TakeState), written whenever it is saved and when
/// the core is detached, and a list of them in an element of its own (see TakeList). No exception leaves any
/// slot.
class MocapCore final : public core::ReservedSlots {
  public:
    /// The version that core and adaptor must share.
    static constexpr unsigned int kVersion = 9201;

    /// A live core for `adaptor`, ended by detach(). Null for no adaptor or one of another version.
    static MocapCore* attach(core::AdaptorInterface* adaptor) noexcept;
    /// Ends `core` (null is ignored) and the singletons of this module.
    static void detach(core::CoreObject* core) noexcept;

    explicit MocapCore(core::AdaptorInterface& adaptor);

    void saveState(util::xml::Element& state) override;               // slot 17
    void loadState(util::xml::Element& state) override;               // slot 18
    void sceneClosing() override;                                     // slot 19
    void openStudio(void* mainWindow) override;                       // slot 20
    void timeChanged(double seconds) override;                        // slot 25
    bool queryEvent(const void* notification) override;               // slot 26
    void handleEvent() override;                                      // slot 29
    void start() override;                                            // slot 41
    void setOption(unsigned int id, unsigned int value) override;     // slot 46
    void optionChanged(unsigned int id, const void* value) override;  // slot 48

  private:
    void readSettings(Settings& settings);
    void mirrorLog(const std::string& path);
    void settle();

    core::AdaptorInterface& adaptor_;
    SceneGrid grid_;
    OptionPanel options_;
    TakeSet takes_;
    TakeList takeList_;
    bool sceneWasClosing_ = false;
    std::string logPath_;
};

}  // namespace qvo::zmx::mocap
