#include "samples/mocap_core/Settings.h"

#include <limits>
#include <optional>
#include <sstream>

#include "samples/mocap_core/FileError.h"
#include "samples/mocap_core/FilePath.h"
#include "samples/mocap_core/FileText.h"
#include "samples/mocap_core/Numbers.h"

namespace qvo::zmx::mocap {

using util::xml::Element;

namespace {

constexpr char kBlanks[] = " \t\r\n";

std::string trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string content(const Element& element) {
    return trimmed(element.text());
}

std::string inQuotes(const std::string& text) {
    return "\"" + FileError::printable(text) + "\"";
}

}  // namespace

void Settings::readFile(const std::string& file) {
    *this = Settings();
    path = file;
    Element root;
    std::istringstream text{std::string(withoutByteOrderMark(readFileText(path, "the settings")))};
    if (root.read(text) != Element::kParsed || root.value != "zmx_config")
        fail("the settings are no well-formed zmx_config document");
    report = resolved(trimmed(root.textOf("report")));
    log = resolved(trimmed(root.textOf("log")));
    for (const Element* child : root.children)
        if (child->kind == Element::kTag) readElement(*child);
    requireWork();
}

void Settings::readElement(const Element& element) {
    const std::string& name = element.value;
    if (name == "option") {
        readOption(element);
    } else if (name == "merge") {
        if (!content(element).empty()) merges.push_back(resolved(content(element)));
    } else if (name == "edit") {
        readEdit(element);
    } else if (name == "clip") {
        if (!content(element).empty()) clips.push_back(resolved(content(element)));
    } else if (name == "metresPerUnit") {
        metresPerUnit = positive(element.text(), "metresPerUnit");
    } else if (name == "mesh") {
        readMesh(element);
    } else if (name == "camera") {
        camera = content(element);
    } else if (name == "convertAll") {
        convertAll = true;
    }
}

void Settings::readOption(const Element& element) {
    const std::string id = element.attribute("id");
    const std::optional<std::size_t> number = parseCount(id);
    if (!number || *number > std::numeric_limits<unsigned int>::max())
        fail("option id " + inQuotes(id) + " is not a number");
    const std::string value = element.attribute("value");
    if (value != "on" && value != "off")
        fail("the value " + inQuotes(value) + " of option " + id + " is neither on nor off");
    options.push_back({static_cast<unsigned int>(*number), value == "on"});
}

void Settings::readEdit(const Element& element) {
    Edit edit{element.attribute("take"), {}};
    for (const Element* child : element.children) {
        if (child->kind != Element::kTag) continue;
        const std::string value = content(*child);
        if (child->value == "bake") {
            edit.steps.push_back({EditStep::Kind::bake, ""});
            continue;
        }
        if (child->value != "rename" && child->value != "extend")
            fail("a take cannot be changed by " + inQuotes(child->value));
        if (value.empty()) fail(child->value + " of take " + inQuotes(edit.take) + " says nothing");
        if (child->value == "rename")
            edit.steps.push_back({EditStep::Kind::rename, value});
        else
            edit.steps.push_back({EditStep::Kind::extend, resolved(value)});
    }
    edits.push_back(std::move(edit));
}

void Settings::readMesh(const Element& element) {
    if (content(element).empty()) return;
    meshes.push_back({resolved(content(element)), element.attribute("joint"),
                      positive(element.attribute("metresPerUnit", "1"), "metresPerUnit")});
}

void Settings::requireWork() const {
    if (options.empty() && merges.empty() && edits.empty() && clips.empty() && meshes.empty() &&
        camera.empty() && !convertAll)
        fail("the settings name no clip");
}

double Settings::positive(const std::string& text, const std::string& what) const {
    double value = 0.0;
    if (parseNumber(trimmed(text), value) != NumberFault::none || value <= 0.0)
        fail(what + " " + inQuotes(trimmed(text)) + " is not a number above 0");
    return value;
}

std::string Settings::resolved(const std::string& file) const {
    return file.empty() ? file : path::beside(path, file);
}

void Settings::fail(const std::string& cause) const {
    throw FileError(path, 0, cause);
}

}  // namespace qvo::zmx::mocap
