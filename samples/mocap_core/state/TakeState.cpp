#include "samples/mocap_core/state/TakeState.h"

#include <set>
#include <utility>

#include "samples/mocap_core/FileError.h"
#include "samples/mocap_core/FrameGrid.h"
#include "samples/mocap_core/Numbers.h"
#include "samples/mocap_core/state/ToolElement.h"
#include "util/Log.h"
#include "util/xml/Tag.h"

namespace qvo::zmx::mocap {

using util::Log;
using util::logLine;
using util::xml::Element;

namespace {

constexpr char kTake[] = "mocap take";
constexpr char kClip[] = "mocap clip";
constexpr char kProp[] = "mocap prop";
constexpr char kCamera[] = "mocap camera";

/// Reads a gathered take; names that were met before are left out, as two nodes cannot have one name.
class Reader {
  public:
    explicit Reader(const Element& take) : take_(take) {}

    std::optional<TakeState> read() {
        state_.record.id = tool::nameOf(take_);
        state_.record.name = take_.textOf("label");
        readGrid();
        for (const Element* child : take_.children)
            if (child->kind == Element::kTag && child->value == "joint") readJoint(*child);
        if (state_.record.id.empty() || state_.record.joints.empty()) return std::nullopt;
        // Joints first: a prop may name any of them.
        for (const Element* child : take_.children)
            if (tool::isTool(*child)) readChild(*child);
        return std::move(state_);
    }

  private:
    void readGrid() {
        const std::optional<std::size_t> multiplier = parseCount(take_.attribute("multiplier"));
        if (multiplier && *multiplier >= 1 && *multiplier <= FrameGrid::kTicksPerSecond &&
            parseNumber(take_.attribute("userRate"), state_.record.userRate) == NumberFault::none)
            state_.record.multiplier = static_cast<int>(*multiplier);
        else
            leaveOut("frame grid", take_);
    }

    void readJoint(const Element& joint) {
        if (readNode(joint, "name")) state_.record.joints.push_back(joint.textOf("name"));
    }

    void readChild(const Element& child) {
        const std::string type = tool::typeOf(child);
        if (type == kClip) {
            readClip(child);
        } else if (type == kProp) {
            if (readNode(child, "label"))
                state_.record.props.push_back(
                    {child.textOf("label"), child.textOf("path"), child.textOf("joint")});
        } else if (type == kCamera && state_.record.camera.empty()) {
            if (readNode(child, "label")) state_.record.camera = child.textOf("label");
        } else {
            leaveOut("part", child);
        }
    }

    void readClip(const Element& clip) {
        if (const std::optional<ClipRecord> record = ClipRecord::readFrom(clip))
            state_.record.clips.push_back(*record);
        else
            leaveOut("clip", clip);
    }

    /// The node that `element` names in its child `nameTag`: false, and a line in the log, when its name is
    /// missing or met again.
    bool readNode(const Element& element, const char* nameTag) {
        const std::string& name = element.textOf(nameTag);
        if (name.empty() || !names_.insert(name).second) {
            leaveOut("node", element);
            return false;
        }
        const std::string& object = element.textOf("object");
        if (!object.empty()) state_.objects[name] = object;
        return true;
    }

    void leaveOut(const char* what, const Element& element) const {
        logLine(Log::kWarning, "A ", what, " of take \"", FileError::printable(state_.record.name),
                "\" cannot be read and is left out: ", FileError::printable(element.toString()));
    }

    const Element& take_;
    TakeState state_;
    std::set<std::string> names_;
};

void addNode(Element& element, const TakeState& state, const std::string& nameTag, const std::string& name) {
    element.addTextTag(nameTag, name);
    const auto object = state.objects.find(name);
    if (object != state.objects.end()) element.addTextTag("object", object->second);
}

Element takeElement(const TakeState& state) {
    Element take = tool::make(kTake, state.record.id);
    take.attributes["multiplier"] = std::to_string(state.record.multiplier);
    take.attributes["userRate"] = toText(state.record.userRate);
    take.addTextTag("label", state.record.name);
    for (const std::string& joint : state.record.joints)
        addNode(take.addTag("joint"), state, "name", joint);
    return take;
}

/// Gives the child tools of one take their unique names and their places.
class ChildWriter {
  public:
    ChildWriter(Element& masternodes, const std::string& take) : masternodes_(masternodes), take_(take) {}

    template <class Fill>
    void write(const char* type, Fill fill) {
        Element child = tool::make(type, take_ + "/" + std::to_string(index_));
        fill(child);
        tool::append(masternodes_, child, take_, index_++);
    }

  private:
    Element& masternodes_;
    const std::string& take_;
    int index_ = 0;
};

}  // namespace

void TakeState::writeTo(Element& masternodes) const {
    tool::append(masternodes, tool::packed(takeElement(*this)), "", 0);
    ChildWriter children(masternodes, record.id);
    for (const ClipRecord& clip : record.clips)
        children.write(kClip, [&](Element& child) { clip.writeTo(child); });
    for (const PropRecord& prop : record.props)
        children.write(kProp, [&](Element& child) {
            addNode(child, *this, "label", prop.name);
            child.addTextTag("path", prop.path);
            child.addTextTag("joint", prop.joint);
        });
    if (!record.camera.empty())
        children.write(kCamera, [&](Element& child) { addNode(child, *this, "label", record.camera); });
}

std::string TakeState::text() const {
    TakeState unnamed = *this;
    unnamed.record.id.clear();
    Element masternodes = util::xml::Tag("masternodes");
    unnamed.writeTo(masternodes);
    return masternodes.toString();
}

std::optional<TakeState> TakeState::readFrom(const Element& tool) {
    return Reader(tool).read();
}

bool TakeState::isTake(const Element& element) {
    return tool::isTool(element) && tool::typeOf(element) == kTake;
}

}  // namespace qvo::zmx::mocap
