#pragma once

#include "core/CExtendable.h"
#include "util/CMesh.h"

namespace qvo::zmx {

/// The curves of a shape object at one moment. Points and lengths are object-local, in the host's axes and
/// system units.
class CSnapshot_Shape : public CExtendable {
  public:
    virtual int numberOfCurves() = 0;  // slot 3

    /// Index of the selected curve, which the operations below read.
    virtual int getCurve() = 0;  // slot 4

    /// Selects a curve; the index is clamped to the curves that exist. Always 0.
    virtual int setCurve(int index) = 0;  // slot 5

    virtual double getCurveLength() = 0;  // slot 6

    /// The point at `parameter`, which runs from 0 to 1 along the curve's length.
    virtual util::Point3d getPoint(double parameter) = 0;  // slot 7

    /// The unit tangent at `parameter`; (0, 1, 0) where the curve has no extent.
    virtual util::Point3d getTangent(double parameter) = 0;  // slot 8

    virtual ~CSnapshot_Shape() = default;  // slot 9

  protected:
    CSnapshot_Shape() = default;
    CSnapshot_Shape(const CSnapshot_Shape&) = default;
    CSnapshot_Shape& operator=(const CSnapshot_Shape&) = default;
};

}  // namespace qvo::zmx
