#pragma once

#include <string>
#include <vector>

#include "util/xml/Element.h"

namespace qvo::zmx::mocap {

/// What the core is asked to do, read from the file that the adaptor names as its configuration path:
///
///     <?xml version="1.0"?>
///     <zmx_config>
///         <clip>clips/walk.bvh</clip>
///         <metresPerUnit>0.01</metresPerUnit>
///         <report>result.txt</report>
///         <log>core.log</log>
///     </zmx_config>
///
/// clip           a motion-capture clip to load; repeated for several, loaded in this order; at least one
/// metresPerUnit  meters per clip unit, above 0; 0.01 when absent
/// report         file that receives one line after each start: "ok joints=J frames=F keys=K multiplier=M"
///                or "error FILE:LINE: cause"; none when absent
/// log            file that mirrors the core's own log; none when absent
///
/// Paths that are not absolute start at the folder of the settings file. Blanks around a content do not
/// count. Elements with other names are left to later versions and ignored.
class Settings {
  public:
    static constexpr double kDefaultMetresPerUnit = 0.01;

    /// Replaces everything by what `path` states. Throws FileError. `report` and `log` are taken first, so
    /// that a fault in the rest can be reported where the file asks for it.
    void readFile(const std::string& path);

    std::vector<std::string> clips;
    double metresPerUnit = kDefaultMetresPerUnit;
    std::string report;
    std::string log;

  private:
    void readElements(const util::xml::Element& root, const std::string& path);
};

}  // namespace qvo::zmx::mocap
