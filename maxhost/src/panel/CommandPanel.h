#pragma once

#include <max.h>
#include <utilapi.h>

#include <functional>
#include <string>

#include "maxhost/src/panel/RollupPages.h"

namespace maxhost {

/// The command panel: six task modes, the utility that is open in the utility mode, and in the motion mode
/// the parameters of one transform controller.
class CoreExport CommandPanel : public IUtil {
  public:
    /// The transform controller of the one node that is selected; null when there is no such node.
    using MotionController = std::function<Animatable*()>;

    /// host        what utilities and controllers get as the host; not owned
    /// mainWindow  must outlive the panel
    CommandPanel(IObjParam* host, HostWindow& mainWindow, MotionController motionController);
    ~CommandPanel() override;

    /// TASK_MODE_CREATE at first.
    int taskMode() const { return mode; }

    /// Leaving the utility mode closes the open utility; leaving the motion mode ends the controller's
    /// editing, entering it begins it. False for a mode that is none of the six.
    bool setTaskMode(int newMode);

    /// Opens a utility: the panel changes to the utility mode, another open utility is closed, an instance is
    /// made and told to begin. A utility of the same class that is open stays. False when no instance could
    /// be made.
    bool openUtility(ClassDesc& utilityClass);

    /// Ends and deletes the open utility, if there is one. The mode stays.
    void CloseUtility() override;

    bool isUtilityOpen() const { return utility != nullptr; }

    /// To be called after every change of the selection.
    void selectionChanged();

    /// To be called whenever a node's transform controller was replaced, while the one before is still alive.
    void controllerReplaced() { updateMotion(); }

    /// Ends everything that is open; the panel is then as it was made.
    void reset();

    RollupPages& rollups() { return pages; }

    /// Presses a button: the topmost open page with a control of this number gets its command. False when no
    /// page has one.
    bool press(int controlId);

  private:
    void updateMotion();
    void editMotion(Animatable* controller);

    IObjParam* const ip;
    RollupPages pages;
    const MotionController selectedController;
    int mode = TASK_MODE_CREATE;
    UtilityObj* utility = nullptr;
    ClassDesc* utilityDescriptor = nullptr;
    Animatable* edited = nullptr;
};

}  // namespace maxhost
