#pragma once

#include <string>
#include <vector>

#include "util/xml/Element.h"

namespace qvo::zmx::mocap {

/// What the core is asked to do, read from the file that the adaptor names as its configuration path:
///
///     <?xml version="1.0"?>
///     <zmx_config>
///         <option id="1027" value="off"/>
///         <merge>models.zms</merge>
///         <edit take="run"> <rename>sprint</rename> <extend>clips/stop.bvh</extend> <bake/> </edit>
///         <clip>clips/walk.bvh</clip>
///         <metresPerUnit>0.01</metresPerUnit>
///         <mesh joint="Head" metresPerUnit="0.1">hat.obj</mesh>
///         <camera>Camera01</camera>
///         <convertAll/>
///         <report>result.txt</report>
///         <log>core.log</log>
///     </zmx_config>
///
/// option         sets the adaptor's option with this id "on" or "off"; repeated for several
/// merge          a scene file whose models are merged; repeated for several; a merge cannot be undone
/// edit           changes a take of the scene, step by step in the order written: rename gives it another
///                name, extend puts a clip of the same joints after its last frame, bake reads its clips
///                again and writes their keys anew
/// clip           a motion-capture clip to load; repeated for several, loaded in this order
/// metresPerUnit  meters per clip unit, above 0; 0.01 when absent
/// mesh           a model (OBJ) that becomes a node following a joint (the first one when not named) of the
///                scene's latest take; its metresPerUnit is 1 when absent; repeated for several
/// camera         a camera that one of the merged files brought, by its name: follows the scene's latest take
/// convertAll     presses the button that turns all of the plug-in's controllers into the host's own
/// report         file that receives one line after each start: "ok joints=J frames=F keys=K multiplier=M"
///                or "error FILE:LINE: cause"; none when absent
/// log            file that mirrors the core's own log; none when absent
///
/// All is done in the order of this list, whatever the order in the file; at least one of the first eight is
/// needed. Paths that are not absolute start at the folder of the settings file. Blanks around a content do
/// not count. Elements with other names are left to later versions and ignored.
class Settings {
  public:
    struct Option {
        unsigned int id;
        bool value;
    };

    struct EditStep {
        enum class Kind { rename, extend, bake } kind;
        std::string value;  ///< the new name, or the clip's path
    };

    struct Edit {
        std::string take;
        std::vector<EditStep> steps;
    };

    struct Mesh {
        std::string path;
        std::string joint;  ///< empty: the take's first joint
        double metresPerUnit;
    };

    static constexpr double kDefaultMetresPerUnit = 0.01;

    /// Replaces everything by what `path` states. Throws FileError. `report` and `log` are taken first, so
    /// that a fault in the rest can be reported where the file asks for it.
    void readFile(const std::string& path);

    std::string path;  ///< of the settings themselves
    std::vector<Option> options;
    std::vector<std::string> merges;
    std::vector<Edit> edits;
    std::vector<std::string> clips;
    double metresPerUnit = kDefaultMetresPerUnit;
    std::vector<Mesh> meshes;
    std::string camera;
    bool convertAll = false;
    std::string report;
    std::string log;

  private:
    void readElement(const util::xml::Element& element);
    void readOption(const util::xml::Element& element);
    void readEdit(const util::xml::Element& element);
    void readMesh(const util::xml::Element& element);
    void requireWork() const;
    double positive(const std::string& text, const std::string& what) const;
    std::string resolved(const std::string& file) const;
    [[noreturn]] void fail(const std::string& cause) const;
};

}  // namespace qvo::zmx::mocap
