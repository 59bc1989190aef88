#pragma once

#include "core/CExtendable.h"
#include "util/CMesh.h"

namespace qvo::zmx {

/// The look of a helper node in the viewports.
class CSnapshot_Helper : public CExtendable {
  public:
    /// Replaces the shape; object-local, host axes, system units.
    virtual void setMesh(const util::CMesh& mesh) = 0;  // slot 3

    /// Sets the colour; components from 0 to 1.
    virtual void setColor(float red, float green, float blue) = 0;  // slot 4

    virtual void setWireframe(bool on) = 0;        // slot 5
    virtual void setBackfaceCulling(bool on) = 0;  // slot 6

    virtual ~CSnapshot_Helper() = default;  // slot 7

  protected:
    CSnapshot_Helper() = default;
    CSnapshot_Helper(const CSnapshot_Helper&) = default;
    CSnapshot_Helper& operator=(const CSnapshot_Helper&) = default;
};

}  // namespace qvo::zmx
