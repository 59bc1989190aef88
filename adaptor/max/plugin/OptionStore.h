#pragma once

#include <map>

namespace qvo::zmx::adaptor::max {

/// Ids of the elements of the adaptor's option group.
inline constexpr unsigned int kOptimizedControllerOption =
    1027;  ///< check: nodes get the product's controller
inline constexpr unsigned int kConvertControllersOption = 1028;  ///< button: convert all to the host's own
inline constexpr unsigned int kDynamicMeshesOption = 1030;  ///< check: meshes follow deformation each frame

/// The values of the adaptor's check options. They live as long as the process and are not part of a scene.
class OptionStore {
  public:
    /// What holds while nothing was stored; false for an unknown id.
    static bool defaultValue(unsigned int id) { return id == kOptimizedControllerOption; }

    bool value(unsigned int id) const;
    void setValue(unsigned int id, bool value) { values_[id] = value; }

  private:
    std::map<unsigned int, bool> values_;
};

}  // namespace qvo::zmx::adaptor::max
