#pragma once

#include "coreexp.h"
#include "maxtypes.h"

/// Closed range of ticks. Empty exactly when both ends are TIME_NegInfinity; the ends are kept as given,
/// unsorted.
class Interval {
  public:
    Interval() { SetEmpty(); }
    Interval(TimeValue start, TimeValue end) : start_(start), end_(end) {}

    TimeValue Start() const { return start_; }
    TimeValue End() const { return end_; }
    void SetStart(TimeValue start) { start_ = start; }
    void SetEnd(TimeValue end) { end_ = end; }
    void Set(TimeValue start, TimeValue end) {
        start_ = start;
        end_ = end;
    }
    void SetInstant(TimeValue t) { Set(t, t); }
    void SetInfinite() { Set(TIME_NegInfinity, TIME_PosInfinity); }
    void SetEmpty() { Set(TIME_NegInfinity, TIME_NegInfinity); }

    int Empty() const { return start_ == TIME_NegInfinity && end_ == TIME_NegInfinity; }
    int InInterval(TimeValue t) const { return !Empty() && t >= start_ && t <= end_; }
    int InInterval(const Interval& inner) const { return InInterval(inner.start_) && InInterval(inner.end_); }
    /// Number of ticks in the range, both ends counted; wraps for ranges wider than 32 bits.
    TimeValue Duration() const {
        return static_cast<TimeValue>(static_cast<unsigned>(end_) - static_cast<unsigned>(start_) + 1u);
    }

    int operator==(const Interval& other) const { return start_ == other.start_ && end_ == other.end_; }
    int operator!=(const Interval& other) const { return !(*this == other); }
    /// Common part, empty when there is none.
    Interval operator&(const Interval& other) const {
        if (Empty() || other.Empty()) return Interval();
        const Interval both(start_ > other.start_ ? start_ : other.start_,
                            end_ < other.end_ ? end_ : other.end_);
        return both.start_ > both.end_ ? Interval() : both;
    }
    Interval& operator&=(const Interval& other) { return *this = *this & other; }
    /// Widens the range so that it holds `t`.
    Interval& operator+=(TimeValue t) {
        if (Empty()) {
            SetInstant(t);
        } else if (t < start_) {
            start_ = t;
        } else if (t > end_) {
            end_ = t;
        }
        return *this;
    }

  private:
    TimeValue start_, end_;
};

/// Both are temporaries: copy one to a named local before passing it to an `Interval&` parameter.
#define FOREVER Interval(TIME_NegInfinity, TIME_PosInfinity)
#define NEVER Interval()

/// Frames per second; 30 at host start.
CoreExport int GetFrameRate();
/// Sets the rate, and ticks per frame to 4800 / rate (integer division). Values below 1 are ignored.
CoreExport void SetFrameRate(int rate);
CoreExport int GetTicksPerFrame();
/// Sets ticks per frame, and the rate to 4800 / ticks (integer division). Values below 1 are ignored.
CoreExport void SetTicksPerFrame(int ticks);
