#pragma once

#include <max.h>

#include <memory>
#include <string>

#include "maxhost/src/host/GlobalUtilities.h"
#include "maxhost/src/host/Redraw.h"
#include "maxhost/src/panel/CommandPanel.h"
#include "maxhost/src/panel/HostWindow.h"
#include "maxhost/src/plugins/ClassDirectory.h"
#include "maxhost/src/scene/Scene.h"
#include "maxhost/src/scripts/PanelScriptCommands.h"
#include "maxhost/src/scripts/ScriptEngine.h"

namespace maxhost {

class HostInterface;

/// The host's parts, put together. There is one for the whole life of the process, so that libraries and
/// destructors that run late still find a host; `reset` brings it back to its first state.
class CoreExport Host final : public SceneObserver {
  public:
    static Host& instance();

    Scene& scene() { return *scene_; }
    /// Empties the undo list and the selection, without notices, and makes `scene` the open one.
    void replaceScene(std::unique_ptr<Scene> scene);

    IObjParam& interface();
    ClassDirectory& classes() { return classes_; }
    GlobalUtilities& utilities() { return utilities_; }
    CommandPanel& panel() { return *panel_; }
    ScriptEngine& scripts() { return *scripts_; }
    HostWindow& mainWindow() { return mainWindow_; }
    Redraw& redraw() { return redraw_; }

    /// Shortcuts are on while nothing disables them; counted.
    int acceleratorLocks = 0;
    bool animateButtonEnabled = true;
    bool undoEnabled = true;

    /// Runs a script; false when a statement fails.
    bool runScript(const std::string& text);

    /// What the user would read: the cause of the last failure, empty when nothing failed.
    const std::string& lastMessage() const { return lastMessage_; }
    void setMessage(const std::string& message) { lastMessage_ = message; }

    /// Takes all notification handlers and time-change callbacks out, because their code is going away.
    void forgetListeners();
    /// Back to the state at process start. Global utilities must have been stopped and libraries freed.
    void reset();

    // ---- SceneObserver ----
    void selectionChanged() override { panel_->selectionChanged(); }
    void controllerReplaced() override { panel_->controllerReplaced(); }

  private:
    Host();
    Animatable* selectedController();

    ClassDirectory classes_;
    std::unique_ptr<Scene> scene_;
    std::unique_ptr<HostInterface> interface_;
    HostWindow mainWindow_;
    std::unique_ptr<CommandPanel> panel_;
    std::unique_ptr<PanelScriptCommands> scriptCommands_;
    std::unique_ptr<ScriptEngine> scripts_;
    GlobalUtilities utilities_;
    Redraw redraw_;
    std::string lastMessage_;
};

}  // namespace maxhost
