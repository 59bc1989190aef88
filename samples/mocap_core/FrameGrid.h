#pragma once

#include <cstddef>
#include <cstdint>

namespace qvo::zmx::mocap {

/// Where a clip's frames fall on the host's time line.
///
/// The host counts time in ticks, 4800 a second, and its frames are a whole number of ticks apart:
/// ticks per frame = 4800 / frame rate, an integer division. The adaptor turns seconds into ticks by
/// trunc((frame rate x seconds) x ticks per frame) and can make the frame rate a multiple of the user's.
///
/// Only even multiples count, those whose frames share a user's frame's ticks without remainder: with one a
/// second of the grid would be shorter than the user's, and the clip too fast. The grid is the smallest of
/// them on which every clip frame is a host frame of its own. Where there is none, each clip frame takes the
/// host frame nearest to it on the largest even multiple up to the user's rate, or, where that is too coarse
/// for the clip, on the ticks themselves.
class FrameGrid {
  public:
    static constexpr int kTicksPerSecond = 4800;

    /// `userRate`   the host's frame rate as the user sees it, frames per second, 1 to 4800
    /// `frameTime`  seconds between two clip frames, as printed in the clip
    /// `frames`     how many frames the clip has
    /// `earliest`   the tick that the first frame may take, 0 or above; it takes the next host frame from
    /// there Throws std::runtime_error when no grid keeps the frames apart, or the clip ends beyond the
    /// host's time line. Cost: linear in the frames, since each is checked (see verify).
    FrameGrid(double userRate, double frameTime, std::size_t frames, std::int64_t earliest = 0);

    /// What to hand to setFrameRateMultiplier.
    int multiplier() const { return multiplier_; }

    /// The host's frame rate with the multiplier in effect.
    int rate() const { return userRate_ * multiplier_; }

    int ticksPerFrame() const { return kTicksPerSecond / rate(); }

    /// True when the clip's frames fall on host frames exactly, false when they are moved to the nearest.
    bool isExact() const { return exact_; }

    /// The host frame of clip frame `frame`.
    std::int64_t hostFrame(std::size_t frame) const;

    /// The moment of clip frame `frame` in seconds: the smallest double, from the plain quotient upwards,
    /// that the adaptor's formula does not turn into the tick before.
    double secondsOf(std::size_t frame) const;

    /// The moment of the last clip frame, seconds.
    double lastSecond() const { return frames_ == 0 ? 0.0 : secondsOf(frames_ - 1); }

    /// Ticks of the first and of the last clip frame.
    std::int64_t firstTick() const { return hostFrame(0) * ticksPerFrame(); }
    std::int64_t lastTick() const { return hostFrame(frames_ == 0 ? 0 : frames_ - 1) * ticksPerFrame(); }

    /// Seconds between two frames, with printed rates made whole: a time within 0.05 % of 1 / n is 1 / n
    /// (.0083333 stands for 1 / 120).
    static double exactFrameTime(double printed);

  private:
    void chooseMultiplier();
    /// Proves the grid: no frame falls on a tick other than its host frame's, no two on the same.
    void verify() const;
    std::int64_t ticksOf(double seconds) const;

    int userRate_;
    double frameTime_;
    std::size_t frames_;
    std::int64_t firstFrame_ = 0;  // the host frame of clip frame 0
    int multiplier_ = 1;
    bool exact_ = false;
};

}  // namespace qvo::zmx::mocap
