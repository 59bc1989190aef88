#pragma once

#include "point3.h"

/// Half line from `p` along `dir`; distances along it count in lengths of `dir`.
class Ray {
  public:
    Point3 p;
    Point3 dir;
};
