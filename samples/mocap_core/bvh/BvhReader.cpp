#include "samples/mocap_core/bvh/BvhReader.h"

#include <utility>

#include "samples/mocap_core/FileText.h"
#include "samples/mocap_core/bvh/HierarchyReader.h"

namespace qvo::zmx::mocap {

namespace {
constexpr std::size_t kFramesPerSlip = 1000;
}

Clip BvhReader::readFile(const std::string& path) {
    return parse(readFileText(path, "the clip"), path);
}

Clip BvhReader::parse(std::string_view text, const std::string& file) {
    return BvhReader(text, file).read();
}

BvhReader::BvhReader(std::string_view text, const std::string& file) : tokens_(text, file) {}

Clip BvhReader::read() {
    HierarchyReader(tokens_, clip_).read();
    readFrames(readMotionHeader());
    return std::move(clip_);
}

std::size_t BvhReader::readMotionHeader() {
    tokens_.expect("MOTION");
    tokens_.expect("Frames");
    tokens_.expect(":");
    const Token countToken = tokens_.peek();
    const std::size_t count = tokens_.count("number of frames");
    if (count == 0) tokens_.fail(countToken, "the clip has no frames");
    tokens_.expect("Frame");
    tokens_.expect("Time");
    tokens_.expect(":");
    const Token timeToken = tokens_.peek();
    clip_.frameTime = tokens_.number("the frame time");
    if (clip_.frameTime <= 0.0)
        tokens_.fail(timeToken, "the frame time " + Tokenizer::quoted(timeToken) + " is not above 0");
    return count;
}

void BvhReader::readFrames(std::size_t count) {
    for (std::size_t number = 1; number <= count; ++number)
        readFrame(number, count);
    const Token rest = tokens_.peek();
    if (rest.atEnd()) return;
    if (count >= kFramesPerSlip) {
        readFrame(count + 1, count);
        clip_.values.resize(count * clip_.channelCount);
        clip_.surplusFrame = true;
    }
    if (!tokens_.peek().atEnd())
        tokens_.fail(rest,
                     Tokenizer::quoted(rest) + " after the last of " + std::to_string(count) + " frames");
}

void BvhReader::readFrame(std::size_t number, std::size_t count) {
    const std::string what = "frame " + std::to_string(number);
    std::size_t line = 0;
    for (std::size_t i = 0; i < clip_.channelCount; ++i) {
        const Token token = tokens_.peek();
        if (token.atEnd()) failAtEnd(number, count, i);
        line = token.line;
        clip_.values.push_back(tokens_.number(what));
    }
    const Token& after = tokens_.peek();
    if (!after.atEnd() && after.line == line)
        tokens_.fail(after, "numbers left over after the " + std::to_string(clip_.channelCount) +
                                " of frame " + std::to_string(number));
}

void BvhReader::failAtEnd(std::size_t number, std::size_t count, std::size_t valuesRead) {
    const std::string cause =
        valuesRead == 0
            ? "the file ends after " + std::to_string(number - 1) + " of " + std::to_string(count) + " frames"
            : "the file ends in frame " + std::to_string(number) + ", after " + std::to_string(valuesRead) +
                  " of its " + std::to_string(clip_.channelCount) + " numbers";
    tokens_.fail(tokens_.peek(), cause);
}

}  // namespace qvo::zmx::mocap
