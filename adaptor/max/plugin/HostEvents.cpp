#include "adaptor/max/plugin/HostEvents.h"

#include <cstdint>

#include "adaptor/max/Boundary.h"
#include "adaptor/max/Host.h"
#include "adaptor/max/plugin/UtilityManager.h"
#include "adaptor/max/services/MaxAdaptorInterface.h"

namespace qvo::zmx::adaptor::max {

namespace {

void tellSceneClosing(UtilityManager& manager) {
    if (manager.core) guarded("sceneClosing", [&] { manager.core->sceneClosing(); });
}

/// True when the file about to be opened is no scene. Only this event has a file type, and none means a
/// scene.
bool opensOtherFile(const NotifyInfo* info) {
    if (!info || info->intcode != NOTIFY_FILE_PRE_OPEN || !info->callParam) return false;
    return *static_cast<const FileIOType*>(info->callParam) != IOTYPE_MAX;
}

/// True when the new scene takes over the objects of the present one.
bool keepsObjects(const NotifyInfo* info) {
    if (!info || info->intcode != NOTIFY_SYSTEM_PRE_NEW || !info->callParam) return false;
    constexpr std::uintptr_t kLastOption = 3;  // 1 keeps nothing, 2 the objects, 3 their hierarchy as well
    const auto bare = reinterpret_cast<std::uintptr_t>(info->callParam);
    // The host passes a pointer to the option; a number in its place must not be read through.
    return (bare <= kLastOption ? static_cast<std::int32_t>(bare)
                                : *static_cast<const std::int32_t*>(info->callParam)) > 1;
}

/// Before a file is opened or imported. An import adds to the scene, and a file may be refused: the wrappers
/// stay until another scene is there.
void onScenePreRead(UtilityManager& manager, NotifyInfo* info) {
    if (!manager.core) return;
    const bool opens = !info || info->intcode == NOTIFY_FILE_PRE_OPEN;
    MaxAdaptorInterface::instance().expectScene(opens && !opensOtherFile(info));
    if (!opensOtherFile(info)) tellSceneClosing(manager);
}

/// The file could not be opened.
void onSceneRefused(UtilityManager& manager, NotifyInfo* /*info*/) {
    if (manager.core) MaxAdaptorInterface::instance().sceneRefused();
}

/// After a file was opened, imported or merged.
void onSceneRead(UtilityManager& manager, NotifyInfo* info) {
    if (!manager.core) return;
    MaxAdaptorInterface& adaptor = MaxAdaptorInterface::instance();
    if (info && info->intcode == NOTIFY_FILE_POST_OPEN) adaptor.sceneArrived();
    adaptor.gatherNodes();
}

/// Before a reset or a new scene: the core is told, and the wrappers go with their nodes.
void onScenePreEmpty(UtilityManager& manager, NotifyInfo* info) {
    if (!manager.core) return;
    tellSceneClosing(manager);
    if (!keepsObjects(info)) MaxAdaptorInterface::instance().sceneClosed();
}

/// After a save or an export. The tags stay in the scene: they must survive for a later attach.
void onSceneWritten(UtilityManager& /*manager*/, NotifyInfo* /*info*/) {}

/// Before the selected nodes are deleted: the adaptor notes them, the core may act on the event, then the
/// adaptor takes their wrappers out.
void onPreDelete(UtilityManager& manager, NotifyInfo* info) {
    if (!manager.core) return;
    MaxAdaptorInterface& adaptor = MaxAdaptorInterface::instance();
    adaptor.nodesAboutToBeDeleted(info ? static_cast<const Tab<INode*>*>(info->callParam) : nullptr);
    if (manager.queryEvent(info) && manager.core)
        guarded("handleEvent", [&] { manager.core->handleEvent(); });
    adaptor.nodesDeleted();
}

/// The first of the two handlers of the host's exit. Nothing is left to do ahead of the shut-down; it stays
/// so that the host keeps as many registrations of the plug-in as ever.
void onShutdownNotice(UtilityManager& /*manager*/, NotifyInfo* /*info*/) {}

void onShutdown(UtilityManager& manager, NotifyInfo* /*info*/) {
    manager.shutdown();
}

/// What the host calls: no exception may reach it.
template <void (*handle)(UtilityManager&, NotifyInfo*)>
void answer(void* param, NotifyInfo* info) {
    guarded("host notification", [&] { handle(*static_cast<UtilityManager*>(param), info); });
}

struct Registration {
    int code;
    NOTIFYPROC handler;
    bool withdrawn;  ///< by unregisterHostEvents
};

const Registration kRegistrations[] = {
    {NOTIFY_SEL_NODES_PRE_DELETE, answer<onPreDelete>, true},
    {NOTIFY_FILE_PRE_OPEN, answer<onScenePreRead>, true},
    {NOTIFY_PRE_IMPORT, answer<onScenePreRead>, false},
    {NOTIFY_FILE_POST_OPEN, answer<onSceneRead>, true},
    {NOTIFY_FILE_OPEN_FAILED, answer<onSceneRefused>, true},
    {NOTIFY_POST_IMPORT, answer<onSceneRead>, false},
    {NOTIFY_SYSTEM_PRE_RESET, answer<onScenePreEmpty>, true},
    {NOTIFY_SYSTEM_PRE_NEW, answer<onScenePreEmpty>, true},
    {NOTIFY_FILE_POST_MERGE, answer<onSceneRead>, true},
    {NOTIFY_FILE_POST_SAVE, answer<onSceneWritten>, true},
    {NOTIFY_POST_EXPORT, answer<onSceneWritten>, false},
    {NOTIFY_SYSTEM_SHUTDOWN, answer<onShutdownNotice>, true},
    {NOTIFY_SYSTEM_SHUTDOWN, answer<onShutdown>, true},
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
