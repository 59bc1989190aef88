#include "samples/mocap_core/bvh/HierarchyReader.h"

#include <algorithm>
#include <optional>

namespace qvo::zmx::mocap {

namespace {

std::optional<Channel> channelOf(const Token& token) {
    static constexpr struct {
        std::string_view keyword;
        Channel channel;
    } kChannels[] = {{"Xposition", Channel::PositionX}, {"Yposition", Channel::PositionY},
                     {"Zposition", Channel::PositionZ}, {"Xrotation", Channel::RotationX},
                     {"Yrotation", Channel::RotationY}, {"Zrotation", Channel::RotationZ}};
    for (const auto& entry : kChannels) {
        if (token.is(entry.keyword)) return entry.channel;
    }
    return std::nullopt;
}

bool hasControlCharacter(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < 0x20 || byte == 0x7f;
    });
}

}  // namespace

HierarchyReader::HierarchyReader(Tokenizer& tokens, Clip& clip) : tokens_(tokens), clip_(clip) {}

void HierarchyReader::read() {
    if (tokens_.peek().atEnd()) tokens_.fail(tokens_.peek(), "the file is empty");
    tokens_.expect("HIERARCHY");
    if (!tokens_.peek().is("ROOT")) tokens_.expect("ROOT");
    while (tokens_.accept("ROOT")) {
        openJoint();
        while (!open_.empty())
            readStatement();
    }
    if (clip_.channelCount == 0) tokens_.fail(tokens_.peek(), "no joint has a channel");
}

void HierarchyReader::readStatement() {
    const Token token = tokens_.next();
    if (token.is("OFFSET")) {
        readOffset(token);
    } else if (token.is("CHANNELS")) {
        readChannels(token);
    } else if (token.is("JOINT")) {
        requireDefined(token);
        openJoint();
    } else if (token.is("End")) {
        readEndSite(token);
    } else if (token.is("}")) {
        closeJoint(token);
    } else if (token.atEnd()) {
        tokens_.fail(token, "the file ends within joint " + currentName());
    } else {
        tokens_.fail(token, Tokenizer::quoted(token) + " is not expected in joint " + currentName());
    }
}

void HierarchyReader::openJoint() {
    const Token name = tokens_.restOfLine();
    if (name.text.empty()) tokens_.fail(name, "a joint without a name");
    if (hasControlCharacter(name.text))
        tokens_.fail(name, "a control character in joint name " + Tokenizer::quoted(name));
    if (open_.size() == kMaxDepth)
        tokens_.fail(name, "joints nested deeper than " + std::to_string(kMaxDepth) + " levels");
    Joint joint;
    joint.name = uniqueName(std::string(name.text));
    joint.parent = open_.empty() ? -1 : open_.back().index;
    open_.push_back({static_cast<int>(clip_.joints.size())});
    clip_.joints.push_back(std::move(joint));
    tokens_.expect("{");
}

void HierarchyReader::closeJoint(const Token& brace) {
    requireDefined(brace);
    open_.pop_back();
}

void HierarchyReader::readOffset(const Token& keyword) {
    if (open_.back().hasOffset) tokens_.fail(keyword, "a second OFFSET in joint " + currentName());
    open_.back().hasOffset = true;
    current().offset = readVector("the offset of joint " + currentName());
}

void HierarchyReader::readChannels(const Token& keyword) {
    if (open_.back().hasChannels) tokens_.fail(keyword, "a second CHANNELS in joint " + currentName());
    open_.back().hasChannels = true;
    const std::size_t count = tokens_.count("number of channels");
    Joint& joint = current();
    joint.firstChannel = clip_.channelCount;
    for (std::size_t i = 0; i < count; ++i) {
        const Token token = tokens_.next();
        const std::optional<Channel> channel = channelOf(token);
        if (!channel) tokens_.fail(token, Tokenizer::quoted(token) + " is not a channel");
        // Another turn about an axis goes on from the earlier ones; a second position contradicts the first.
        if (isPosition(*channel) &&
            std::find(joint.channels.begin(), joint.channels.end(), *channel) != joint.channels.end())
            tokens_.fail(token, "position " + Tokenizer::quoted(token) + " twice in joint " + currentName());
        joint.channels.push_back(*channel);
    }
    clip_.channelCount += count;
}

void HierarchyReader::readEndSite(const Token& keyword) {
    requireDefined(keyword);
    tokens_.expect("Site");
    tokens_.expect("{");
    tokens_.expect("OFFSET");
    EndSite site;
    site.joint = open_.back().index;
    site.offset = readVector("the offset of an end site of joint " + currentName());
    tokens_.expect("}");
    clip_.endSites.push_back(site);
}

void HierarchyReader::requireDefined(const Token& where) const {
    // The order of the channels in a frame is the order of the CHANNELS lines; a joint that states its own
    // after a child's would make that order a matter of opinion.
    if (!open_.back().hasOffset) tokens_.fail(where, "OFFSET missing in joint " + currentName());
    if (!open_.back().hasChannels) tokens_.fail(where, "CHANNELS missing in joint " + currentName());
}

std::array<double, 3> HierarchyReader::readVector(const std::string& what) {
    std::array<double, 3> vector{};
    for (double& component : vector)
        component = tokens_.number(what);
    return vector;
}

std::string HierarchyReader::uniqueName(const std::string& name) {
    // The count under each name never goes back, so many equal names cost no more than distinct ones.
    int& uses = nameUses_[name];
    if (++uses == 1) return name;
    while (true) {
        const std::string candidate = name + "_" + std::to_string(uses);
        if (nameUses_.emplace(candidate, 1).second) return candidate;
        ++uses;
    }
}

std::string HierarchyReader::currentName() const {
    return "\"" + FileError::printable(clip_.joints[static_cast<std::size_t>(open_.back().index)].name) +
           "\"";
}

}  // namespace qvo::zmx::mocap
