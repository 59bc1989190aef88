#include "adaptor/max/plugin/HostEvents.h"

#include "adaptor/max/Host.h"
#include "adaptor/max/plugin/UtilityManager.h"
#include "adaptor/max/services/Boundary.h"
#include "adaptor/max/services/MaxAdaptorInterface.h"

namespace qvo::zmx::adaptor::max {

namespace {

UtilityManager& managerOf(void* param) {
    return *static_cast<UtilityManager*>(param);
}

void tellSceneClosing(UtilityManager& manager) {
    if (manager.core) guarded("sceneClosing", [&] { manager.core->sceneClosing(); });
}

/// The nodes of the scene go with it: the core has been told, the wrappers follow.
void closeScene(UtilityManager& manager) {
    if (!manager.core) return;
    tellSceneClosing(manager);
    MaxAdaptorInterface::instance().sceneClosed();
}

/// True when the file about to be opened is no scene. Only this event has a file type, and none means a
/// scene.
bool opensOtherFile(const NotifyInfo* info) {
    if (!info || info->intcode != NOTIFY_FILE_PRE_OPEN || !info->callParam) return false;
    return *static_cast<const FileIOType*>(info->callParam) != IOTYPE_MAX;
}

/// Before a file is opened or imported. An import adds to the scene, so the wrappers stay.
void onScenePreRead(void* param, NotifyInfo* info) {
    if (opensOtherFile(info)) return;
    if (info && info->intcode == NOTIFY_PRE_IMPORT)
        tellSceneClosing(managerOf(param));
    else
        closeScene(managerOf(param));
}

/// After a file was opened, imported or merged.
void onSceneRead(void* param, NotifyInfo* /*info*/) {
    if (managerOf(param).core) MaxAdaptorInterface::instance().gatherNodes();
}

/// Before a reset or a new scene.
void onScenePreEmpty(void* param, NotifyInfo* /*info*/) {
    closeScene(managerOf(param));
}

void onSceneWritten(void* param, NotifyInfo* /*info*/) {
    if (managerOf(param).core) MaxAdaptorInterface::instance().afterSave();
}

/// Before the selected nodes are deleted: the adaptor notes them, the core may act on the event, then the
/// adaptor takes their wrappers out.
void onPreDelete(void* param, NotifyInfo* info) {
    UtilityManager& manager = managerOf(param);
    if (!manager.core) return;
    MaxAdaptorInterface& adaptor = MaxAdaptorInterface::instance();
    adaptor.nodesAboutToBeDeleted(info ? static_cast<const Tab<INode*>*>(info->callParam) : nullptr);
    if (manager.queryEvent(info) && manager.core)
        guarded("handleEvent", [&] { manager.core->handleEvent(); });
    adaptor.nodesDeleted();
}

/// Keeps the place of a step at the host's exit that has nothing to do.
void onShutdownNotice(void* /*param*/, NotifyInfo* /*info*/) {}

void onShutdown(void* param, NotifyInfo* /*info*/) {
    managerOf(param).shutdown();
}

struct Registration {
    int code;
    NOTIFYPROC handler;
    bool withdrawn;  ///< by unregisterHostEvents
};

const Registration kRegistrations[] = {
    {NOTIFY_SEL_NODES_PRE_DELETE, onPreDelete, true}, {NOTIFY_FILE_PRE_OPEN, onScenePreRead, true},
    {NOTIFY_PRE_IMPORT, onScenePreRead, false},       {NOTIFY_FILE_POST_OPEN, onSceneRead, true},
    {NOTIFY_POST_IMPORT, onSceneRead, false},         {NOTIFY_SYSTEM_PRE_RESET, onScenePreEmpty, true},
    {NOTIFY_SYSTEM_PRE_NEW, onScenePreEmpty, true},   {NOTIFY_FILE_POST_MERGE, onSceneRead, true},
    {NOTIFY_FILE_POST_SAVE, onSceneWritten, true},    {NOTIFY_POST_EXPORT, onSceneWritten, false},
    {NOTIFY_SYSTEM_SHUTDOWN, onShutdownNotice, true}, {NOTIFY_SYSTEM_SHUTDOWN, onShutdown, true},
};

}  // namespace

void registerHostEvents(UtilityManager& manager) {
    for (const Registration& entry : kRegistrations)
        if (!RegisterNotification(entry.handler, &manager, entry.code))
            util::logLine(util::Log::kWarning, "The host refused a handler for its notification ",
                          entry.code);
}

void unregisterHostEvents(UtilityManager& manager) {
    for (const Registration& entry : kRegistrations)
        if (entry.withdrawn) UnRegisterNotification(entry.handler, &manager, entry.code);
}

}  // namespace qvo::zmx::adaptor::max
