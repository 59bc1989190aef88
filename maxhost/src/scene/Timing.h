#pragma once

#include <max.h>

#include <vector>

namespace maxhost {

/// The host's clock: present time, animation range and frame grid. All times in ticks of 1/4800 second; a
/// change of the frame rate leaves them as they are. Nothing here is recorded for undo.
class Timing {
  public:
    static constexpr int kDefaultFrameRate = 30;
    static constexpr TimeValue kDefaultRangeEnd = 16000;  ///< frame 100 at the default rate

    static Timing& instance();

    TimeValue time() const { return time_; }
    /// Calls the callbacks, in order of registration, when the time changes.
    void setTime(TimeValue t);
    Interval range() const { return range_; }
    void setRange(const Interval& range) { range_ = range; }

    int frameRate() const { return frameRate_; }
    int ticksPerFrame() const { return ticksPerFrame_; }
    /// The other one follows by integer division, so that rates which do not divide 4800 lose ticks. Values
    /// below 1 change nothing; above 4800 one tick per frame stays. NOTIFY_TIMEUNITS_CHANGE is sent when
    /// something changed.
    void setFrameRate(int rate);
    void setTicksPerFrame(int ticks);
    /// Both as a scene file states them.
    void setGrid(int rate, int ticks);

    /// A callback registered twice is called twice.
    void addCallback(TimeChangeCallback* callback);
    /// Takes out the first registration. May be called from a callback.
    void removeCallback(TimeChangeCallback* callback);

    /// Time 0, default range and frame grid; the callbacks stay and hear of the time.
    void setDefaults();
    void forgetCallbacks();

  private:
    TimeValue time_ = 0;
    Interval range_{0, kDefaultRangeEnd};
    int frameRate_ = kDefaultFrameRate;
    int ticksPerFrame_ = TIME_TICKSPERSEC / kDefaultFrameRate;
    std::vector<TimeChangeCallback*> callbacks_;
};

}  // namespace maxhost
