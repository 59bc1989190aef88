#pragma once

#include "maxapi.h"

/// The utility panel, as an open utility sees it.
class IUtil {
  public:
    virtual ~IUtil() = default;
    virtual void CloseUtility() = 0;
};

/// A utility of the utility panel. Made when the user opens it; EndEditParams and DeleteThis follow when it
/// is closed, when another one is opened, and when the panel leaves the utility tab.
class UtilityObj : public InterfaceServer {
  public:
    virtual void BeginEditParams(Interface* ip, IUtil* iu) = 0;
    virtual void EndEditParams(Interface* ip, IUtil* iu) = 0;
    virtual void SelectionSetChanged(Interface* /*ip*/, IUtil* /*iu*/) {}
    virtual void DeleteThis() = 0;
    virtual void SetStartupParam(TSTR /*param*/) {}
};
