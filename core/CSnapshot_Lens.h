#pragma once

#include "core/CExtendable.h"
#include "core/Matrix4.h"

namespace qvo::zmx {

/// A camera's lens at one moment. Angles in degrees, distances in system units.
class CSnapshot_Lens : public CExtendable {
  public:
    virtual void setFieldOfView(double degrees) = 0;  // slot 3
    virtual double getFieldOfView() = 0;              // slot 4

    /// Which extent the field of view measures: 0 horizontal, 1 vertical, 2 diagonal.
    virtual int getFieldOfViewType() = 0;           // slot 5
    virtual void setFieldOfViewType(int type) = 0;  // slot 6

    virtual void setTargetDistance(double distance) = 0;  // slot 7
    virtual double getTargetDistance() = 0;               // slot 8

    /// The moment in seconds, as it was given at acquisition.
    virtual double getTime() = 0;  // slot 9

    /// Placement of the lens in the camera: always the identity.
    virtual Matrix4 getLensTransform() = 0;  // slot 10

    virtual ~CSnapshot_Lens() = default;  // slot 11

  protected:
    CSnapshot_Lens() = default;
    CSnapshot_Lens(const CSnapshot_Lens&) = default;
    CSnapshot_Lens& operator=(const CSnapshot_Lens&) = default;
};

}  // namespace qvo::zmx
