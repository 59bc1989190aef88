#include "maxhost/src/host/Host.h"

#include "maxhost/src/controllers/AnimateMode.h"
#include "maxhost/src/controllers/BuiltinControllers.h"
#include "maxhost/src/host/HostInterface.h"
#include "maxhost/src/host/Notifications.h"
#include "maxhost/src/objects/BuiltinObjects.h"
#include "maxhost/src/scene/Timing.h"
#include "maxhost/src/scene/Units.h"
#include "maxhost/src/undo/Faults.h"
#include "maxhost/src/undo/UndoRecorder.h"

namespace maxhost {

Host& Host::instance() {
    static Host* const host = new Host;  // lives as long as the process, see the class
    return *host;
}

Host::Host() : scene_(std::make_unique<Scene>()), interface_(std::make_unique<HostInterface>(*this)) {
    scene_->setObserver(this);
    panel_ = std::make_unique<CommandPanel>(interface_.get(), mainWindow_,
                                            [this] { return selectedController(); });
    scriptCommands_ = std::make_unique<PanelScriptCommands>(*panel_, classes_);
    scripts_ = std::make_unique<ScriptEngine>(*scriptCommands_);
    for (ClassDesc* descriptor : builtinControllerClasses())
        classes_.add(descriptor);
    for (ClassDesc* descriptor : builtinObjectClasses())
        classes_.add(descriptor);
}

bool Host::runScript(const std::string& text) {
    const bool done = scripts_->run(text);
    lastMessage_ = scripts_->lastError();
    return done;
}

IObjParam& Host::interface() {
    return *interface_;
}

Animatable* Host::selectedController() {
    const std::vector<Node*>& selected = scene_->selection().nodes();
    return selected.size() == 1 ? selected.front()->GetTMController() : nullptr;
}

void Host::replaceScene(std::unique_ptr<Scene> scene) {
    UndoRecorder& undo = UndoRecorder::instance();
    undo.flush();
    if (undo.depth() > 0) undo.releaseOpenGroup();  // what an open hold has recorded is about nodes that go
    scene_->selection().drop();
    panel_->selectionChanged();
    scene_->setObserver(nullptr);
    scene_.swap(scene);
    scene_->setObserver(this);
}

void Host::forgetListeners() {
    Notifications::instance().clear();
    Timing::instance().forgetCallbacks();
}

void Host::reset() {
    UndoRecorder::instance().reset();
    panel_->reset();
    replaceScene(std::make_unique<Scene>());
    forgetListeners();
    Timing::instance().setDefaults();
    Units::instance().setDefaults();
    AnimateMode::instance().reset();
    scripts_ = std::make_unique<ScriptEngine>(*scriptCommands_);
    mainWindow_.close();
    redraw_ = Redraw();
    acceleratorLocks = 0;
    animateButtonEnabled = true;
    undoEnabled = true;
    lastMessage_.clear();
    Faults::instance().clear();
}

}  // namespace maxhost

Interface* GetCOREInterface() {
    return &maxhost::Host::instance().interface();
}
