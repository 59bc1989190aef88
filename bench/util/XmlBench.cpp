// XML beside pugixml and tinyxml2 on one document, and the growth of ours with the depth of nesting.

#include <benchmark/benchmark.h>
#include <tinyxml2.h>

#include <cstdint>
#include <pugixml.hpp>
#include <sstream>
#include <string>

#include "util/xml/Element.h"

namespace {

using qvo::util::xml::Element;

/// A scene's worth of tags in one line, as the scene file carries them.
std::string sampleDocument() {
    std::string text = "<ZMK>";
    for (int i = 0; text.size() < (2u << 20); ++i) {
        const std::string number = std::to_string(i);
        text += "<ZMK_Plugin id=\"" + number + "\" type=\"clip\"><name>take " + number +
                "</name><range><start>0.0</start><end>12.5</end></range><nodes count=\"3\"><node>hip</node>"
                "<node>knee &#38; shin</node><node>foot</node></nodes><empty/></ZMK_Plugin>";
    }
    return text + "</ZMK>";
}

void setBytes(benchmark::State& state, std::size_t bytes) {
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
}

void parseOurs(benchmark::State& state) {
    const std::string text = sampleDocument();
    for (auto _ : state) {
        Element element;
        if (element.parse(text) != Element::kParsed) state.SkipWithError("not parsed");
    }
    setBytes(state, text.size());
}

void parsePugixml(benchmark::State& state) {
    const std::string text = sampleDocument();
    for (auto _ : state) {
        pugi::xml_document document;
        if (!document.load_buffer(text.data(), text.size())) state.SkipWithError("not parsed");
    }
    setBytes(state, text.size());
}

void parseTinyxml2(benchmark::State& state) {
    const std::string text = sampleDocument();
    for (auto _ : state) {
        tinyxml2::XMLDocument document;
        if (document.Parse(text.data(), text.size()) != tinyxml2::XML_SUCCESS)
            state.SkipWithError("not parsed");
    }
    setBytes(state, text.size());
}

void writeOurs(benchmark::State& state) {
    const std::string text = sampleDocument();
    const Element element(text);
    if (element.toString() != text) state.SkipWithError("wrong text");
    for (auto _ : state)
        benchmark::DoNotOptimize(element.toString());
    setBytes(state, text.size());
}

void writePugixml(benchmark::State& state) {
    const std::string text = sampleDocument();
    pugi::xml_document document;
    document.load_buffer(text.data(), text.size());
    for (auto _ : state) {
        std::ostringstream out;
        document.save(out, "", pugi::format_raw | pugi::format_no_declaration);
        benchmark::DoNotOptimize(out.str());
    }
    setBytes(state, text.size());
}

void writeTinyxml2(benchmark::State& state) {
    const std::string text = sampleDocument();
    tinyxml2::XMLDocument document;
    document.Parse(text.data(), text.size());
    for (auto _ : state) {
        tinyxml2::XMLPrinter printer(nullptr, true);
        document.Print(&printer);
        benchmark::DoNotOptimize(printer.CStr());
    }
    setBytes(state, text.size());
}

/// Time per level stays within a small factor from a thousand levels to a million.
void deepNesting(benchmark::State& state) {
    const auto levels = static_cast<std::size_t>(state.range(0));
    std::string text;
    for (std::size_t i = 0; i < levels; ++i)
        text += "<a>";
    for (std::size_t i = 0; i < levels; ++i)
        text += "</a>";
    for (auto _ : state) {
        Element element;
        if (element.parse(text) != Element::kParsed) state.SkipWithError("not parsed");
        const Element copy(element);
        benchmark::DoNotOptimize(copy.toString());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

BENCHMARK(parseOurs)->Name("Xml/parse");
BENCHMARK(parsePugixml)->Name("Xml/parse/pugixml");
BENCHMARK(parseTinyxml2)->Name("Xml/parse/tinyxml2");
BENCHMARK(writeOurs)->Name("Xml/write");
BENCHMARK(writePugixml)->Name("Xml/write/pugixml");
BENCHMARK(writeTinyxml2)->Name("Xml/write/tinyxml2");
BENCHMARK(deepNesting)
    ->Name("Xml/nested_parse_copy_write_destroy")
    ->RangeMultiplier(10)
    ->Range(1000, 1000000)
    ->Complexity();

}  // namespace
