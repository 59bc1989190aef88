#include "apps/headless/Stages.h"

#include <cstdio>
#include <exception>

#include "apps/headless/Interrupted.h"
#include "apps/headless/platform/Platform.h"

namespace headless {

Stages::Stages() : shown_(platform::hasTerminal()) {}

void Stages::refuseToGoOn() {
    if (const int signal = platform::interrupt()) throw Interrupted(signal);
}

double Stages::secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

void Stages::show(const std::string& text) const {
    if (!shown_) return;
    constexpr char kClearLine[] = "\r\x1b[K";
    std::fputs((kClearLine + text).c_str(), stderr);
    std::fflush(stderr);
}

void Stages::advance(std::size_t done, std::size_t total) {
    refuseToGoOn();
    const std::size_t percent = total == 0 ? 100 : done * 100 / total;
    if (percent == percent_) return;
    percent_ = percent;
    show("  " + running_ + " " + std::to_string(percent) + " %");
}

Stages::Running::Running(Stages& stages, const std::string& name)
    : stages_(stages), exceptions_(std::uncaught_exceptions()) {
    stages_.running_ = name;
    stages_.percent_ = 0;
    stages_.show("  " + name + " ...");
}

Stages::Running::~Running() {
    if (std::uncaught_exceptions() > exceptions_) {
        stages_.show("");
        return;
    }
    const double seconds = secondsSince(start_);
    stages_.finished_.push_back({stages_.running_, seconds});
    char time[32];
    std::snprintf(time, sizeof time, ": %.2f s\n", seconds);
    stages_.show("  " + stages_.running_ + time);
}

}  // namespace headless
