#pragma once

#include "coreexp.h"
#include "maxtypes.h"
#include "strbasic.h"

constexpr int NOTIFY_UNITS_CHANGE = 1;
constexpr int NOTIFY_TIMEUNITS_CHANGE = 2;
constexpr int NOTIFY_SYSTEM_PRE_RESET = 5;
constexpr int NOTIFY_SYSTEM_POST_RESET = 6;
/// Parameter: pointer to a 32-bit option, 1 new all, 2 keep objects, 3 keep objects and hierarchy.
constexpr int NOTIFY_SYSTEM_PRE_NEW = 7;
constexpr int NOTIFY_SYSTEM_POST_NEW = 8;
/// Parameter of 9, 10 and 15: pointer to FileIOType; null means a scene.
constexpr int NOTIFY_FILE_PRE_OPEN = 9;
constexpr int NOTIFY_FILE_POST_OPEN = 10;
constexpr int NOTIFY_FILE_PRE_MERGE = 11;
constexpr int NOTIFY_FILE_POST_MERGE = 12;
/// Parameter of 13 and 14: the file name.
constexpr int NOTIFY_FILE_PRE_SAVE = 13;
constexpr int NOTIFY_FILE_POST_SAVE = 14;
constexpr int NOTIFY_FILE_OPEN_FAILED = 15;
constexpr int NOTIFY_FILE_PRE_SAVE_OLD = 16;
constexpr int NOTIFY_FILE_POST_SAVE_OLD = 17;
constexpr int NOTIFY_SELECTIONSET_CHANGED = 18;
constexpr int NOTIFY_PRE_IMPORT = 24;
constexpr int NOTIFY_POST_IMPORT = 25;
constexpr int NOTIFY_IMPORT_FAILED = 26;
constexpr int NOTIFY_PRE_EXPORT = 27;
constexpr int NOTIFY_POST_EXPORT = 28;
constexpr int NOTIFY_EXPORT_FAILED = 29;
/// Parameter: pointer to NameChange.
constexpr int NOTIFY_NODE_RENAMED = 30;
/// Parameter of 58, 59, 60, 67 and 68: the node.
constexpr int NOTIFY_NODE_CREATED = 58;
constexpr int NOTIFY_NODE_LINKED = 59;
constexpr int NOTIFY_NODE_UNLINKED = 60;
constexpr int NOTIFY_SCENE_ADDED_NODE = 67;
constexpr int NOTIFY_SCENE_PRE_DELETED_NODE = 68;
constexpr int NOTIFY_SCENE_POST_DELETED_NODE = 69;
/// Parameter of 70 and 71: Tab<INode*>*, the host's list, not to be changed.
constexpr int NOTIFY_SEL_NODES_PRE_DELETE = 70;
constexpr int NOTIFY_SEL_NODES_POST_DELETE = 71;
constexpr int NOTIFY_WM_ENABLE = 72;
constexpr int NOTIFY_SYSTEM_SHUTDOWN = 73;
constexpr int NOTIFY_SYSTEM_STARTUP = 74;
constexpr int NOTIFY_PLUGIN_LOADED = 75;
constexpr int NOTIFY_SYSTEM_SHUTDOWN2 = 76;

struct NameChange {
    TCHAR* oldname;
    TCHAR* newname;
};

/// `callParam` depends on the code and may be null.
struct NotifyInfo {
    int intcode;
    void* callParam;
};

typedef void (*NOTIFYPROC)(void* param, NotifyInfo* info);

/// Handlers run in order of registration, on the calling thread; they may register and unregister meanwhile.
/// A pair of function and parameter can be registered under several codes. Nonzero = done.
CoreExport int RegisterNotification(NOTIFYPROC proc, void* param, int code);
CoreExport int UnRegisterNotification(NOTIFYPROC proc, void* param, int code);
/// Removes the pair under every code.
CoreExport int UnRegisterNotification(NOTIFYPROC proc, void* param);
CoreExport void BroadcastNotification(int code);
CoreExport void BroadcastNotification(int code, void* callParam);
