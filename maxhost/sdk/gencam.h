#pragma once

#include "control.h"
#include "object.h"

/// What the field of view of a camera measures.
constexpr int FOV_W = 0;
constexpr int FOV_H = 1;
constexpr int FOV_D = 2;

class CoreExport GenCamera : public CameraObject {
  public:
    virtual int GetFOVType() = 0;
    virtual void SetFOVType(int ft) = 0;
    virtual int Type() = 0;
    virtual void SetType(int tp) = 0;
    virtual void SetConeState(int s) = 0;
    virtual Control* GetFOVControl() = 0;

  protected:
    GenCamera() = default;
    ~GenCamera() override = default;
};
