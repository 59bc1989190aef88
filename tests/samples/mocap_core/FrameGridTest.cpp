#include "samples/mocap_core/FrameGrid.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

namespace qvo::zmx::mocap {
namespace {

/// The adaptor's conversion, word for word.
int ticksFromSeconds(int rate, double seconds) {
    return static_cast<int>((static_cast<double>(rate) * seconds) * static_cast<double>(4800 / rate));
}

struct GridCase {
    const char* name;
    double userRate;
    double frameTime;
    int multiplier;
    std::int64_t frame;      // a clip frame
    std::int64_t hostFrame;  // where it belongs
    bool exact;
};

void PrintTo(const GridCase& row, std::ostream* out) {
    *out << row.name;
}

class FrameGridTest : public ::testing::TestWithParam<GridCase> {};

TEST_P(FrameGridTest, ChoosesMultiplierAndFrames) {
    const GridCase& row = GetParam();
    const FrameGrid grid(row.userRate, row.frameTime, 1000);
    EXPECT_EQ(grid.multiplier(), row.multiplier);
    EXPECT_EQ(grid.isExact(), row.exact);
    EXPECT_EQ(grid.hostFrame(static_cast<std::size_t>(row.frame)), row.hostFrame);
}

const GridCase kGridCases[] = {
    {"Printed120On30", 30, .0083333, 4, 999, 999, true},
    {"Printed30On30", 30, .0333333, 1, 999, 999, true},
    {"Printed24On30", 30, 0.0416667, 4, 999, 4995, true},
    {"Rate100On30", 30, 0.010000, 10, 999, 2997, true},
    {"SlowerThanASecond", 30, 2.5, 1, 10, 750, true},
    {"TwoAndAHalfAFrame", 25, 0.1, 2, 9, 45, true},
    {"FinestEvenGrid", 30, 0.033367, 20, 100, 2002, false},  // 600 a second: 8 ticks a frame, no remainder
    {"UnevenUserRate", 29, 0.0125, 15, 100, 544, false},     // 11 of the 165 ticks of a user's frame
    {"FinerThanTheUsersRateSquared", 10, .0083333, 12, 999, 999, true},
    {"UnevenAboveTheUsersRate", 30, 1.0 / 47, 20, 100, 1277, false},  // not 1410 a second, 12 % too fast
    {"UnevenBelowTheUsersRate", 30, 1.0 / 90, 20, 90, 600, false},    // not 53 of the 53.33 ticks of a frame
    {"PrintedNtsc60On30", 30, 0.0166833, 20, 100, 1001, false},
    {"OnTheTicksThemselves", 10, 1.0 / 144, 480, 100, 3333, false},
};

INSTANTIATE_TEST_SUITE_P(FrameGrid, FrameGridTest, ::testing::ValuesIn(kGridCases),
                         [](const auto& test) { return std::string(test.param.name); });

/// Every clip rate on common hosts: each frame on its own host frame's tick, and where the rates meet,
/// exactly on its own moment in the time that the user's frames measure.
TEST(FrameGrid, EveryFrameGetsATickOfItsOwn) {
    constexpr std::size_t kFrames = 10000;
    for (const int userRate : {10, 15, 24, 25, 29, 30, 48, 50, 60, 75, 100, 120, 160, 240}) {
        const double userSecond = 4800 / userRate * userRate;  // ticks
        for (int clipRate = 1; clipRate <= 240; ++clipRate) {
            const FrameGrid grid(userRate, 1.0 / clipRate, kFrames);
            ASSERT_LE(grid.rate(), 4800);
            int previous = -1;
            bool apart = true;
            bool nearest = true;
            for (std::size_t frame = 0; frame < kFrames; ++frame) {
                const int ticks = ticksFromSeconds(grid.rate(), grid.secondsOf(frame));
                apart = apart && ticks > previous && ticks % grid.ticksPerFrame() == 0;
                const double error = ticks - static_cast<double>(frame) * userSecond / clipRate;
                nearest =
                    nearest && std::abs(error) <= (grid.isExact() ? 0.0 : 0.5 * grid.ticksPerFrame()) + 1e-3;
                previous = ticks;
            }
            ASSERT_TRUE(apart && nearest) << userRate << " " << clipRate;
        }
    }
}

TEST(FrameGrid, LaterClipsStartOnTheNextHostFrame) {
    const struct {
        std::int64_t earliest, first, last;
    } cases[] = {{0, 0, 80}, {1, 40, 120}, {80, 80, 160}, {2147483000, 2147483000, 2147483080}};
    for (const auto& row : cases) {
        const FrameGrid grid(30, 1.0 / 120, 3, row.earliest);
        EXPECT_EQ(grid.firstTick(), row.first);
        EXPECT_EQ(grid.lastTick(), row.last);
        EXPECT_EQ(ticksFromSeconds(grid.rate(), grid.lastSecond()), row.last);
    }
    EXPECT_THROW(FrameGrid(30, 1.0 / 120, 3, 2147483600), std::runtime_error);
}

TEST(FrameGrid, ImpossibleGridsAreRefused) {
    const struct {
        double userRate, frameTime;
        std::size_t frames;
    } cases[] = {
        {30, 1e-5, 2},  // finer than the host's ticks
        {30, 1e-300, 2},
        {30, 1e300, 2},
        {30, 1.0, 500000},  // longer than 32 bits of ticks
        {30, 1.0, ~std::size_t{0}},
        {0, 0.01, 2},
        {4801, 0.01, 2},
        {1e300, 0.01, 2},
    };
    for (const auto& row : cases)
        EXPECT_THROW(FrameGrid(row.userRate, row.frameTime, row.frames), std::runtime_error) << row.frameTime;
}

}  // namespace
}  // namespace qvo::zmx::mocap
