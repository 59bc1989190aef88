#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

namespace headless {

/// Times the steps of a session, and shows them on the standard error stream while that is a terminal:
/// nothing is written into a pipe or file.
class Stages {
  public:
    struct Stage {
        std::string name;
        double seconds = 0;
    };

    Stages();

    /// Runs `work` as the stage `name` and gives back its result. A stage that throws is not recorded. Throws
    /// Interrupted between two stages.
    template <class Work>
    auto run(const std::string& name, Work work) {
        refuseToGoOn();
        const Running running(*this, name);
        return work();
    }

    /// How far the running stage is. Throws Interrupted.
    void advance(std::size_t done, std::size_t total);

    const std::vector<Stage>& finished() const { return finished_; }
    double totalSeconds() const { return secondsSince(start_); }

  private:
    using Clock = std::chrono::steady_clock;

    class Running {
      public:
        Running(Stages& stages, const std::string& name);
        ~Running();
        Running(const Running&) = delete;
        Running& operator=(const Running&) = delete;

      private:
        Stages& stages_;
        Clock::time_point start_ = Clock::now();
        int exceptions_;
    };

    /// Throws Interrupted when the user wants the session to end.
    static void refuseToGoOn();
    static double secondsSince(Clock::time_point start);
    void show(const std::string& text) const;

    bool shown_;
    std::string running_;
    std::size_t percent_ = 0;
    Clock::time_point start_ = Clock::now();
    std::vector<Stage> finished_;
};

}  // namespace headless
