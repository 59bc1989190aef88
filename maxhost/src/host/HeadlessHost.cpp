#include "maxhost/HeadlessHost.h"

#include <notify.h>

#include <algorithm>
#include <cassert>

#include "maxhost/src/host/Host.h"
#include "maxhost/src/host/NodeCommands.h"
#include "maxhost/src/host/SceneCommands.h"
#include "maxhost/src/plugins/PluginLoader.h"
#include "maxhost/src/undo/Faults.h"
#include "maxhost/src/undo/UndoRecorder.h"

namespace maxhost {

namespace {

bool hostIsTaken = false;

Host& host() {
    return Host::instance();
}

}  // namespace

HeadlessHost::HeadlessHost() : loader_(std::make_unique<PluginLoader>(host().classes())) {
    assert(!hostIsTaken && "one headless host at a time");
    hostIsTaken = true;
}

HeadlessHost::~HeadlessHost() {
    exit();
    host().reset();
    hostIsTaken = false;
}

bool HeadlessHost::note(bool done, const std::string& failure) {
    host().setMessage(done ? std::string() : failure);
    return done;
}

bool HeadlessHost::loadPlugin(const std::string& path) {
    const bool loaded = loader_->load(path) != nullptr;
    return note(loaded, loaded ? std::string() : loader_->messages().back());
}

bool HeadlessHost::loadPlugins(const std::string& folder) {
    const size_t failuresBefore = loader_->messages().size();
    loader_->loadFolder(folder);
    const bool failed = loader_->messages().size() > failuresBefore;
    return note(!failed, failed ? loader_->messages()[failuresBefore] : std::string());
}

bool HeadlessHost::registerPluginClass(ClassDesc* descriptor) {
    if (!host().classes().add(descriptor))
        return note(false, "a class of the same ids is registered already");
    registered_.push_back(descriptor);
    return note(true);
}

bool HeadlessHost::startUtilities() {
    return note(host().utilities().startAll(host().classes()), "a global utility ended the host");
}

bool HeadlessHost::start() {
    if (!startUtilities()) return false;
    BroadcastNotification(NOTIFY_SYSTEM_STARTUP);
    return true;
}

void HeadlessHost::exit() {
    if (exited_) return;
    exited_ = true;
    // Before the notice: no record may outlive the code that it needs.
    UndoRecorder::instance().reset();
    BroadcastNotification(NOTIFY_SYSTEM_SHUTDOWN);
    host().panel().reset();
    host().replaceScene(std::make_unique<Scene>());
    host().utilities().stopAll();
    BroadcastNotification(NOTIFY_SYSTEM_SHUTDOWN2);
    host().forgetListeners();
    for (ClassDesc* descriptor : registered_)
        host().classes().remove(descriptor);
    registered_.clear();
    loader_->freeAll();
}

bool HeadlessHost::newScene(int option) {
    if (option < SceneCommands::kNewAll || option > SceneCommands::kKeepObjectsAndHierarchy)
        return note(false, "a new scene is made with option 1, 2 or 3");
    return SceneCommands(host()).newScene(static_cast<SceneCommands::NewOption>(option));
}

bool HeadlessHost::reset() {
    return SceneCommands(host()).reset();
}

bool HeadlessHost::open(const std::string& path) {
    return SceneCommands(host()).open(path.c_str());
}

bool HeadlessHost::save(const std::string& path) {
    return SceneCommands(host()).save(path.c_str());
}

bool HeadlessHost::merge(const std::string& path, bool selectMerged) {
    return SceneCommands(host()).merge(path.c_str(), selectMerged);
}

bool HeadlessHost::importFile(const std::string& path) {
    return SceneCommands(host()).importFile(path.c_str());
}

bool HeadlessHost::exportFile(const std::string& path) {
    return SceneCommands(host()).exportFile(path.c_str());
}

bool HeadlessHost::undo() {
    return note(UndoRecorder::instance().undo(), "there is nothing to undo, or a hold is open");
}

bool HeadlessHost::redo() {
    return note(UndoRecorder::instance().redo(), "there is nothing to redo, or a hold is open");
}

std::vector<std::string> HeadlessHost::undoNames() const {
    std::vector<std::string> names = UndoRecorder::instance().undoNames();
    std::reverse(names.begin(), names.end());
    return names;
}

std::vector<std::string> HeadlessHost::redoNames() const {
    std::vector<std::string> names = UndoRecorder::instance().redoNames();
    std::reverse(names.begin(), names.end());
    return names;
}

bool HeadlessHost::deleteSelection() {
    const bool deleted = NodeCommands(host().scene()).deleteSelection(interface().GetTime());
    host().redraw().request();
    return note(deleted, "nothing is selected");
}

bool HeadlessHost::setTaskMode(int mode) {
    return note(host().panel().setTaskMode(mode), "no such task mode");
}

int HeadlessHost::taskMode() const {
    return host().panel().taskMode();
}

bool HeadlessHost::openUtility(const std::string& className) {
    for (ClassDesc* descriptor : host().classes().ofSuperClass(UTILITY_CLASS_ID))
        if (className == descriptor->ClassName())
            return note(host().panel().openUtility(*descriptor), className + " cannot be opened");
    return note(false, "no utility is called " + className);
}

void HeadlessHost::closeUtility() {
    host().panel().CloseUtility();
}

bool HeadlessHost::pressButton(int controlId) {
    return note(host().panel().press(controlId), "no open page has control " + std::to_string(controlId));
}

HWND HeadlessHost::control(int controlId) const {
    const HWND page = host().panel().rollups().pageWith(controlId);
    return page == nullptr ? nullptr : GetDlgItem(page, controlId);
}

void HeadlessHost::addScriptClassAlias(const std::string& alias, const std::string& className) {
    host().scripts().addClassAlias(alias, className);
}

bool HeadlessHost::runScript(const std::string& script) {
    return host().runScript(script);
}

Interface& HeadlessHost::interface() const {
    return host().interface();
}

size_t HeadlessHost::nodeCount() const {
    return host().scene().nodeCount();
}

const std::string& HeadlessHost::lastMessage() const {
    return host().lastMessage();
}

const std::vector<std::string>& HeadlessHost::faults() const {
    return Faults::instance().all();
}

void HeadlessHost::clearFaults() {
    Faults::instance().clear();
}

int HeadlessHost::redrawCount() const {
    return host().redraw().count();
}

}  // namespace maxhost
