#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/AdaptorInterface.h"
#include "samples/mocap_core/ClipRecord.h"
#include "samples/mocap_core/ReservedSlots.h"
#include "samples/mocap_core/SceneGrid.h"
#include "samples/mocap_core/Settings.h"
#include "samples/mocap_core/Take.h"

namespace qvo::zmx::mocap {

/// A small animation core: on the start button it reads the motion-capture clips that the settings name,
/// makes a node for each joint and writes the joints' motion as keys.
///
/// Each press loads the clips as further takes beside those that are in the scene; a take's name is its
/// clip's file name without extension, followed by "-2", "-3", ... where the scene has that name already. All
/// clips of a press are one undo group. The frame grid of the last take stays in effect, the animation range
/// covers all takes. What cannot be loaded leaves the scene as it was.
///
/// The scene keeps one record a clip (see ClipRecord) in an element named "ZMK_Mocap". No exception leaves
/// any slot.
class MocapCore final : public ReservedSlots {
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
    struct PreparedClip;

    std::string configurationPath();
    void mirrorLog(const std::string& path);
    std::string loadClips(const Settings& settings);
    PreparedClip prepare(const std::string& path, double metresPerUnit);
    std::size_t bake(const PreparedClip& prepared);
    core::AdaptorInterface::TimeRange rangeWith(const PreparedClip& prepared) const;
    void restoreGrid(const ClipRecord& record);
    std::string uniqueName(const std::string& path) const;
    bool isNameTaken(const std::string& name) const;
    bool hasTakes() const;

    core::AdaptorInterface& adaptor_;
    SceneGrid sceneGrid_;
    std::string logPath_;
    std::vector<ClipRecord> remembered_;          // read from the scene, their nodes not reclaimed
    std::vector<std::unique_ptr<Take>> takes_;    // loaded into the open scene, undone ones included
    std::vector<std::unique_ptr<Take>> retired_;  // of closed scenes; wrappers may still refer to them
};

}  // namespace qvo::zmx::mocap
