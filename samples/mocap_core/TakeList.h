#pragma once

#include <map>
#include <string>

#include "samples/mocap_core/TakeSet.h"
#include "util/xml/Element.h"

namespace qvo::zmx::mocap {

/// The takes that a scene's own state names, so that those can be missed whose nodes do not bring them back:
///
///     <ZMK_Mocap> <take id=".."><name>walk</name></take> ... </ZMK_Mocap>
class TakeList {
  public:
    static constexpr char kElement[] = "ZMK_Mocap";

    /// Fills `state`, which may live in the adaptor, with the takes of the scene.
    static void write(const TakeSet& takes, util::xml::Element& state);

    /// The scene that is being read names these takes.
    void expect(const util::xml::Element& state);

    /// Another root of tools has been taken up. Reading a scene hands over two: that of older data, and, when
    /// the host has the scene, that of the gathered tools. After the second the log names what is missing.
    void rootArrived(const TakeSet& takes);

    /// Expects nothing more.
    void clear();

  private:
    static constexpr int kRootsOfAScene = 2;

    std::map<std::string, std::string> expected_;  // names by id
    int rootsDue_ = 0;
};

}  // namespace qvo::zmx::mocap
