#include "adaptor/max/plugin/UtilityManager.h"

#include <memory>

#include "adaptor/max/Boundary.h"
#include "adaptor/max/plugin/CoreLibrary.h"
#include "adaptor/max/plugin/HostEvents.h"
#include "adaptor/max/plugin/InstallPath.h"
#include "adaptor/max/plugin/PanelDialog.h"
#include "adaptor/max/plugin/SceneState.h"
#include "adaptor/max/services/MaxAdaptorInterface.h"
#include "util/Log.h"
#include "util/SingletonCollector.h"

namespace qvo::zmx::adaptor::max {

using util::Log;

namespace {

/// Opens the panel once and puts the command panel back. Where the host's script class has another name this
/// does nothing beyond the first statement, and the user opens the panel by hand.
char openPanelScript[] =
    "panel = getCommandPanelTaskMode();UtilityPanel.OpenUtility 'Zorva_Kestrel_Tools_Util';"
    "setCommandPanelTaskMode mode:panel;";

/// Makes the folder for the product's data among the user's documents, which other parts of the product look
/// for, and forms the name of a log file in it.
void prepareDocuments(const std::string& adaptorId) {
    const std::string folder = documentsFolder() + "\\data\\" + adaptorId + "\\";
    CreateDirectoryA(folder.c_str(), nullptr);  // one level; that it exists already is as good
    const std::string logPath = folder + "log.xml";
    static_cast<void>(logPath);  // no file is made: the log stays in memory
}

}  // namespace

UtilityManager& UtilityManager::instance() {
    static const std::unique_ptr<UtilityManager> manager(new UtilityManager);
    return *manager;
}

DWORD UtilityManager::Start() {
    return guarded<DWORD>("Start", GUPRESULT_NOKEEP, [&] { return startUp(); });
}

DWORD UtilityManager::startUp() {
    const std::string logFile = logMirrorFile();
    if (!logFile.empty()) Log::setFile(logFile);

    if (loadCore() != 0) return GUPRESULT_NOKEEP;
    GetCOREInterface()->RegisterTimeChangeCallback(this);
    registerHostEvents(*this);
    if (!ExecuteStringScript(openPanelScript))
        util::logLine(Log::kNotice, "The host did not open the utility panel by script");
    return GUPRESULT_KEEP;
}

void UtilityManager::Stop() {
    unregisterHostEvents(*this);
}

IOResult UtilityManager::Save(ISave* save) {
    if (!core) return IO_OK;
    return guarded("Save", IO_ERROR, [&] { return saveSceneState(*this, *save); });
}

IOResult UtilityManager::Load(ILoad* load) {
    if (!core) return IO_OK;
    return guarded("Load", IO_ERROR, [&] {
        // The first that is heard of a scene that could be read; the state is that scene's.
        MaxAdaptorInterface::instance().sceneArrived();
        return loadSceneState(*this, *load);
    });
}

int UtilityManager::loadCore() {
    return guarded("loadCore", 1, [&] { return connect(); });
}

int UtilityManager::connect() {
    if (coreModule) detachCore();

    coreModule = CoreLibrary::load();
    if (!coreModule) return 1;

    MaxAdaptorInterface& adaptor = MaxAdaptorInterface::instance();
    const CoreLibrary library(coreModule);
    const unsigned int coreVersion = library.version();
    const unsigned int adaptorVersion = adaptor.getAdaptorVersion();
    if (coreVersion == adaptorVersion)
        core = library.attach(adaptor);
    else
        refuseCore(coreVersion, adaptorVersion);

    if (core)
        startCore();
    else
        setAttachButton(kAttachText);
    return 0;
}

void UtilityManager::refuseCore(unsigned int coreVersion, unsigned int adaptorVersion) {
    Log section("version mismatch trying to attach to CORE", Log::kError);
    util::logValue(section, Log::kOwnLevel, "CORE version", coreVersion);
    util::logValue(section, Log::kOwnLevel, "Adaptor version", adaptorVersion);
    detachCore();
}

void UtilityManager::startCore() {
    guarded("start", [this] { core->start(); });
    setAttachButton(kDetachText);
    guarded("setOption", [this] { core->setOption(kOptimizedControllerOption, 1); });
    guarded("setOption", [this] { core->setOption(kDynamicMeshesOption, 0); });
}

int UtilityManager::detachCore() {
    setAttachButton(kAttachText);
    endCore();
    freeLibrary();
    return 0;
}

void UtilityManager::endCore() {
    if (!core) return;
    Log channel(Log::kNotice);
    util::logLine(channel, Log::kOwnLevel, "Adaptor is detaching core");
    CoreLibrary(coreModule).detach(core);
    core = nullptr;
}

void UtilityManager::freeLibrary() {
    // What still points into the core must go while the core's code is there to run.
    if (coreModule) MaxAdaptorInterface::instance().letGoOfCore();
    FreeLibrary(coreModule);
    coreModule = nullptr;
}

void UtilityManager::shutdown() {
    const Log section("Shutting down adaptor", Log::kNotice);
    setAttachButton(kAttachText);
    endCore();
    freeLibrary();
    prepareDocuments(MaxAdaptorInterface::instance().getAdaptorId());
    util::SingletonCollector::destroyAll();
}

bool UtilityManager::queryEvent(const void* information) {
    if (!core) return false;
    return guarded("queryEvent", false, [&] { return core->queryEvent(information); });
}

std::string UtilityManager::installPath(const std::string& key) {
    return max::installPath(key);
}

void UtilityManager::setAttachButton(const char* text) const {
    if (const HWND button = GetDlgItem(panelWindow, IDC_ATTACH_CORE)) SetWindowTextA(button, text);
}

}  // namespace qvo::zmx::adaptor::max
