#include "samples/mocap_core/Settings.h"

#include <filesystem>

#include "samples/mocap_core/FileError.h"
#include "samples/mocap_core/Numbers.h"

namespace qvo::zmx::mocap {

namespace {

constexpr char kBlanks[] = " \t\r\n";

std::string trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string resolved(const std::string& settingsPath, const std::string& path) {
    if (path.empty()) return path;
    return (std::filesystem::path(settingsPath).parent_path() / path).string();
}

}  // namespace

void Settings::readFile(const std::string& path) {
    *this = Settings();
    util::xml::Element root;
    const int result = root.readFile(path);
    if (result == util::xml::Element::kFileNotOpened)
        throw FileError(path, 0, "the settings cannot be opened");
    if (result != util::xml::Element::kParsed || root.value != "zmx_config")
        throw FileError(path, 0, "the settings are no well-formed zmx_config document");
    readElements(root, path);
}

void Settings::readElements(const util::xml::Element& root, const std::string& path) {
    report = resolved(path, trimmed(root.textOf("report")));
    log = resolved(path, trimmed(root.textOf("log")));
    for (const util::xml::Element* child : root.children) {
        if (child->kind != util::xml::Element::kTag || child->value != "clip") continue;
        const std::string clip = trimmed(child->text());
        if (!clip.empty()) clips.push_back(resolved(path, clip));
    }
    if (clips.empty()) throw FileError(path, 0, "the settings name no clip");
    if (const util::xml::Element* scale = root.findTag("metresPerUnit")) {
        const std::string text = trimmed(scale->text());
        if (parseNumber(text, metresPerUnit) != NumberFault::none || metresPerUnit <= 0.0)
            throw FileError(path, 0,
                            "metresPerUnit \"" + FileError::printable(text) + "\" is not a number above 0");
    }
}

}  // namespace qvo::zmx::mocap
