#include "samples/mocap_core/model/ObjReader.h"

#include <charconv>
#include <cstdint>
#include <limits>
#include <system_error>

#include "samples/mocap_core/Numbers.h"

namespace qvo::zmx::mocap {

namespace {

constexpr std::size_t kLeastCorners = 3;
constexpr int kNoTexture = -1;

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\v' || c == '\f';
}

std::string inQuotes(std::string_view text) {
    return "\"" + FileError::printable(std::string(text)) + "\"";
}

void appendWords(std::string_view line, std::vector<std::string_view>& words) {
    std::size_t position = 0;
    while (true) {
        while (position < line.size() && isBlank(line[position]))
            ++position;
        if (position == line.size()) return;
        std::size_t end = position;
        while (end < line.size() && !isBlank(line[end]))
            ++end;
        words.push_back(line.substr(position, end - position));
        position = end;
    }
}

/// Takes the part of `text` up to the next slash, and the slash.
std::string_view takePart(std::string_view& text) {
    const std::size_t slash = text.find('/');
    const std::string_view part = text.substr(0, slash);
    text.remove_prefix(slash == std::string_view::npos ? text.size() : slash + 1);
    return part;
}

}  // namespace

util::CMesh ObjReader::readFile(const std::string& path) {
    return parse(readFileText(path, "the model"), path);
}

util::CMesh ObjReader::parse(std::string_view text, const std::string& file) {
    return ObjReader(text, file).read();
}

util::CMesh ObjReader::read() {
    while (nextStatement())
        readStatement();
    line_ = 0;
    if (mesh_.faces.empty()) fail("the model has no faces");
    if (mesh_.textureVertices.empty()) mesh_.textureFaces.clear();
    return std::move(mesh_);
}

/// A backslash at the end of a line goes on with the statement on the next.
bool ObjReader::nextStatement() {
    words_.clear();
    if (rest_.empty()) return false;
    line_ = nextLine_;
    bool goesOn = true;
    while (goesOn && !rest_.empty()) {
        const std::size_t end = rest_.find('\n');
        std::string_view line = rest_.substr(0, end);
        rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
        ++nextLine_;
        line = line.substr(0, line.find('#'));
        while (!line.empty() && isBlank(line.back()))
            line.remove_suffix(1);
        goesOn = !line.empty() && line.back() == '\\';
        if (goesOn) line.remove_suffix(1);
        appendWords(line, words_);
    }
    return true;
}

void ObjReader::readStatement() {
    if (words_.empty()) return;
    if (words_[0] == "v") {
        mesh_.vertices.push_back(readPoint(3, "a vertex"));
    } else if (words_[0] == "vt") {
        mesh_.textureVertices.push_back(readPoint(1, "a texture vertex"));
    } else if (words_[0] == "f") {
        readFace();
    }
}

util::Point3d ObjReader::readPoint(std::size_t least, const char* what) {
    // Further numbers, a weight or a colour, are skipped.
    double values[3] = {0.0, 0.0, 0.0};
    if (words_.size() - 1 < least) fail(std::string(what) + " of too few numbers");
    for (std::size_t i = 0; i < 3 && i + 1 < words_.size(); ++i) {
        if (parseNumber(words_[i + 1], values[i]) != NumberFault::none)
            fail(inQuotes(words_[i + 1]) + " is not a number for " + what);
    }
    return {values[0], values[1], values[2]};
}

void ObjReader::readFace() {
    corners_.clear();
    for (std::size_t i = 1; i < words_.size(); ++i)
        corners_.push_back(readCorner(words_[i]));
    if (corners_.size() < kLeastCorners) fail("a face of fewer than 3 corners");
    for (std::size_t i = 2; i < corners_.size(); ++i) {
        for (const Corner& corner : {corners_[0], corners_[i - 1], corners_[i]}) {
            mesh_.faces.push_back(corner.vertex);
            mesh_.textureFaces.push_back(corner.texture == kNoTexture ? 0 : corner.texture);
        }
    }
}

/// "vertex", "vertex/texture", "vertex//normal" or "vertex/texture/normal".
ObjReader::Corner ObjReader::readCorner(std::string_view word) {
    std::string_view rest = word;
    Corner corner{readIndex(takePart(rest), mesh_.vertices.size(), "vertex"), kNoTexture};
    const std::string_view texture = takePart(rest);
    if (!texture.empty()) corner.texture = readIndex(texture, mesh_.textureVertices.size(), "texture vertex");
    return corner;
}

/// Indices count from 1, or backwards from the latest by -1, -2, ...
int ObjReader::readIndex(std::string_view text, std::size_t count, const char* what) {
    std::int64_t index = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), index);
    if (error != std::errc() || end != text.data() + text.size())
        fail(inQuotes(text) + " is not the number of a " + what);
    const auto limit = static_cast<std::int64_t>(count);
    if (index < 0) index += limit + 1;
    if (index < 1 || index > limit || index > std::numeric_limits<int>::max())
        fail("there is no " + std::string(what) + " " + inQuotes(text) + " before this line");
    return static_cast<int>(index - 1);
}

void ObjReader::fail(const std::string& cause) const {
    throw FileError(file_, line_, cause);
}

}  // namespace qvo::zmx::mocap
