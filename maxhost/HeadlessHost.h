#pragma once

#include <max.h>

#include <memory>
#include <string>
#include <vector>

namespace maxhost {

class PluginLoader;

/// The headless host in the hands of its user: a program or a test that loads plug-ins, gives the commands
/// that a person would give with mouse and menu, and looks at what came out. Plug-ins see the same host
/// through GetCOREInterface.
///
/// All state of the host belongs to the process, so one HeadlessHost may exist at a time. Its destructor
/// exits if that was not done, and brings everything back to what it was at process start, so that each test
/// starts afresh: scene, undo and redo lists, open holds, selection, time, range, frame rate, units, animate
/// mode, notification handlers, time-change callbacks, command panel, pages, main window, redraw and
/// accelerator counters, script variables, global utilities, classes registered here, loaded libraries, last
/// message, faults. What belongs to the Windows calls (registry, message boxes) is not the host's and stays.
///
/// Commands answer false when they did nothing or failed; lastMessage() then says why, as far as there is
/// more to say.
class CoreExport HeadlessHost {
  public:
    HeadlessHost();
    ~HeadlessHost();
    HeadlessHost(const HeadlessHost&) = delete;
    HeadlessHost& operator=(const HeadlessHost&) = delete;

    // ---- start and end ----

    /// Loads a plug-in library and registers its classes.
    bool loadPlugin(const std::string& path);
    /// Loads every library of the folder whose name ends in ".gup", in the order of their names. False when
    /// one of them could not be loaded; the others are.
    bool loadPlugins(const std::string& folder);
    /// Registers a class of a plug-in that is linked into the program; the descriptor stays the caller's and
    /// must outlive this host. False when a class of the same ids is there already.
    bool registerPluginClass(ClassDesc* descriptor);
    /// Starts the global utilities that were registered since the last call. False when one of them ended the
    /// host.
    bool startUtilities();
    /// startUtilities, then NOTIFY_SYSTEM_STARTUP. False, and no notice, when a utility ended the host.
    bool start();
    /// Empties the undo list, sends NOTIFY_SYSTEM_SHUTDOWN, closes the panel, destroys the scene, stops and
    /// deletes the global utilities, sends NOTIFY_SYSTEM_SHUTDOWN2 and frees the libraries. Does nothing the
    /// second time.
    void exit();

    // ---- File menu ----

    /// 1: all new; 2: the objects stay; 3: objects and hierarchy stay. Settings stay.
    bool newScene(int option = 1);
    bool reset();
    bool open(const std::string& path);
    bool save(const std::string& path);
    /// Merges all nodes of a scene file; nodes of the same name are kept beside each other.
    bool merge(const std::string& path, bool selectMerged = false);
    bool importFile(const std::string& path);
    bool exportFile(const std::string& path);

    // ---- Edit menu ----

    bool undo();
    bool redo();
    /// What undo and redo would take back or do again, the next one first.
    std::vector<std::string> undoNames() const;
    std::vector<std::string> redoNames() const;
    /// Deletes the selected nodes, as one entry "Delete".
    bool deleteSelection();

    // ---- command panel ----

    /// TASK_MODE_CREATE to TASK_MODE_UTILITY.
    bool setTaskMode(int mode);
    int taskMode() const;
    /// Opens the utility of that class name in the utility panel.
    bool openUtility(const std::string& className);
    void closeUtility();
    /// Presses a button on the topmost page that has a control of this number.
    bool pressButton(int controlId);
    /// The control itself, null when no page has it.
    HWND control(int controlId) const;
    bool runScript(const std::string& script);
    /// Makes scripts find the plug-in class `className` under another name too.
    void addScriptClassAlias(const std::string& alias, const std::string& className);

    // ---- looking ----

    Interface& interface() const;
    size_t nodeCount() const;
    /// Cause of the last failure, empty when the last command did not fail.
    const std::string& lastMessage() const;
    /// Mistakes of plug-ins that a real host would answer with undefined behaviour, such as a record put
    /// outside a hold. Tests expect none.
    const std::vector<std::string>& faults() const;
    void clearFaults();
    /// Times that the views would have been drawn.
    int redrawCount() const;

  private:
    bool note(bool done, const std::string& failure = std::string());

    std::unique_ptr<PluginLoader> loader_;
    std::vector<ClassDesc*> registered_;
    bool exited_ = false;
};

}  // namespace maxhost
