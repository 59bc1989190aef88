#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "samples/mocap_core/bvh/Clip.h"
#include "samples/mocap_core/bvh/Tokenizer.h"

namespace qvo::zmx::mocap {

/// Reads motion-capture clips in the BVH format.
///
/// A frame begins on a line of its own and may go on over several; numbers left over at the end of a frame's
/// last line are an error, so a line that is too short is found at the next one.
///
/// The announced number of frames must be what the file holds; it is never used to size memory. One slip is
/// forgiven: exporters that compute the number from the duration announce a frame too few, so from 1,000
/// frames on a single whole frame too many is left out and noted in the clip.
class BvhReader {
  public:
    /// Reads the file at `path`. Throws FileError, whose message is one line "PATH:LINE: cause".
    static Clip readFile(const std::string& path);

    /// Reads `text`; `file` appears in messages only. Throws FileError. Cost: linear in the text.
    static Clip parse(std::string_view text, const std::string& file);

  private:
    BvhReader(std::string_view text, const std::string& file);

    Clip read();
    std::size_t readMotionHeader();
    void readFrames(std::size_t count);
    /// Reads frame `number` (from 1) of `count`.
    void readFrame(std::size_t number, std::size_t count);
    [[noreturn]] void failAtEnd(std::size_t number, std::size_t count, std::size_t valuesRead);

    Tokenizer tokens_;
    Clip clip_;
};

}  // namespace qvo::zmx::mocap
