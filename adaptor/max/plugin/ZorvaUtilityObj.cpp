#include "adaptor/max/plugin/ZorvaUtilityObj.h"

#include "adaptor/max/plugin/ModuleInstance.h"
#include "adaptor/max/plugin/PanelDialog.h"
#include "adaptor/max/plugin/UtilityManager.h"

namespace qvo::zmx::adaptor::max {

namespace {

char pageTitle[] = "Zorva Kestrel Studio";  // not const for the host

}  // namespace

void ZorvaUtilityObj::BeginEditParams(Interface* ip, IUtil* /*iu*/) {
    if (panel_) return;
    panel_ = ip->AddRollupPage(moduleInstance(), MAKEINTRESOURCEA(IDD_STUDIO_PAGE), panelDialogProc,
                               pageTitle, 0, 0, ROLLUP_CAT_STANDARD);
    UtilityManager::instance().panelWindow = panel_;
}

void ZorvaUtilityObj::EndEditParams(Interface* ip, IUtil* /*iu*/) {
    if (panel_) ip->DeleteRollupPage(panel_);
    panel_ = nullptr;
    UtilityManager::instance().panelWindow = nullptr;
}

}  // namespace qvo::zmx::adaptor::max
