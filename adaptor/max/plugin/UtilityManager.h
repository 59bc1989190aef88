#pragma once

#include <string>

#include "adaptor/max/Host.h"
#include "adaptor/max/plugin/CTimeChangeCallback.h"
#include "adaptor/max/plugin/OptionStore.h"
#include "core/CoreObject.h"

namespace qvo::zmx::adaptor::max {

/// The global utility: owns the connection to the core. It finds, loads and checks the core library, attaches
/// and detaches the core, forwards the host's events to it and keeps its state in the scene.
///
/// One instance per process, on the host's heap, made by whoever asks first; it lives until the library is
/// unloaded, past the end of the other singletons. Attached means that `core` is set.
///
/// Both bases may share a base of the host's: never convert the manager to that one implicitly.
class UtilityManager : public GUP, public CTimeChangeCallback {
  public:
    using CTimeChangeCallback = max::CTimeChangeCallback;

    static UtilityManager& instance();

    ~UtilityManager() override = default;

    // GUP

    /// Loads and attaches the core, registers for the host's events, opens the panel once. Returns
    /// GUPRESULT_NOKEEP, and does nothing of the rest, when the core library cannot be loaded.
    ///
    /// The support switch comes first: when the product's registry key has a string value "log" beside
    /// "path", the log is mirrored into the file that it names. An installation has no such value.
    DWORD Start() override;

    /// Withdraws from the host's events as unregisterHostEvents() says. Needs no other singleton: the host
    /// calls it after its shut-down notice.
    void Stop() override;

    IOResult Save(ISave* save) override;
    IOResult Load(ILoad* load) override;

    /// Nothing: the host does not own the manager.
    void DeleteThis() override {}

    // Connection

    /// Loads, checks and attaches the core; a library loaded already is detached and freed first. Returns 1
    /// when the library cannot be loaded, else 0, also when it is refused or refuses.
    int loadCore();

    /// Ends the core, if attached, and frees its library. Always 0; harmless when nothing is loaded.
    int detachCore();

    /// The host exits: ends the core, frees its library and destroys all singletons, newest first. The log of
    /// this last step is the end of one log and the start of another, which lives until the process ends.
    void shutdown();

    /// Asks an attached core about an event (the host's notification information) or, with null, whether keys
    /// are hidden from the host. False when detached.
    bool queryEvent(const void* information);

    /// A folder of the installation; see InstallPath.h.
    static std::string installPath(const std::string& key);

    OptionStore& options() { return options_; }

    HMODULE coreModule = nullptr;      ///< the loaded core library
    core::CoreObject* core = nullptr;  ///< what its "attach" returned
    HWND panelWindow = nullptr;  ///< the panel's rollup page while it is open; set and cleared by the panel

  private:
    UtilityManager() = default;

    DWORD startUp();
    int connect();
    void refuseCore(unsigned int coreVersion, unsigned int adaptorVersion);
    void startCore();
    void endCore();
    void freeLibrary();
    void setAttachButton(const char* text) const;

    OptionStore options_;
};

}  // namespace qvo::zmx::adaptor::max
