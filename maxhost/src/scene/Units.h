#pragma once

#include <units.h>

namespace maxhost {

/// The system unit: what a length of 1 in the scene means. One inch at host start.
class Units {
  public:
    static Units& instance();

    /// Whether `type` is one of the seven and the scale finite and positive.
    static bool isValid(int type, float scale);

    int type() const { return type_; }
    float scale() const { return scale_; }
    /// False, and nothing changed, unless valid. NOTIFY_UNITS_CHANGE is sent when something changed.
    bool set(int type, float scale);
    void setDefaults() { set(UNITS_INCHES, 1.0f); }
    /// How many units of `type` one system unit is; 1 for an unknown type.
    double systemUnitIn(int type) const;

  private:
    int type_ = UNITS_INCHES;
    float scale_ = 1.0f;
};

}  // namespace maxhost
