#pragma once

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {

/// The utility panel: shows one rollup page while it is open. The page's life is here, what its controls do
/// is in PanelDialog.h.
class ZorvaUtilityObj : public UtilityObj {
  public:
    ~ZorvaUtilityObj() override = default;

    /// Adds the page, unless it is there.
    void BeginEditParams(Interface* ip, IUtil* iu) override;
    void EndEditParams(Interface* ip, IUtil* iu) override;
    void SelectionSetChanged(Interface* /*ip*/, IUtil* /*iu*/) override {}
    void DeleteThis() override { delete this; }

  private:
    HWND panel_ = nullptr;  ///< the rollup page while it is shown
};

}  // namespace qvo::zmx::adaptor::max
