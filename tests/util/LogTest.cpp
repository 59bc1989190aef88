#include "util/Log.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <memory>
#include <ostream>
#include <string>

#include "util/SingletonCollector.h"

namespace qvo::util {
namespace {

constexpr std::size_t kTimeLength = 18;  // "20090307 07:05:09 "

/// The log without its time stamps.
std::string lines() {
    std::string result;
    const std::string all = Log::contents();
    for (std::size_t at = 0; at < all.size();) {
        const std::size_t end = all.find('\n', at) + 1;
        result += all.substr(at + kTimeLength, end - at - kTimeLength);
        at = end;
    }
    return result;
}

std::string fileText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class LogTest : public ::testing::Test {
  protected:
    void SetUp() override { SingletonCollector::destroyAll(); }
    void TearDown() override { SingletonCollector::destroyAll(); }
};

TEST_F(LogTest, LineFormat) {
    const struct {
        std::time_t time;
        int level;
        int depth;
        const char* line;
    } kCases[] = {
        {1236409509, 3, 0, "20090307 07:05:09 (NOTICE): \tx\n"},
        {1236409509, 0, -1, "20090307 07:05:09 (CRITICAL): x\n"},
        {1261612799, 1, 2, "20091223 23:59:59 (ERROR): \t\t\tx\n"},
        {0, 2, -5, "19700101 00:00:00 (WARNING): x\n"},
        {0, 4, 0, "19700101 00:00:00 (\tx\n"},
    };
    for (const auto& c : kCases)
        EXPECT_EQ(Log::formatLine(c.time, c.level, c.depth, "x"), c.line);
}

TEST_F(LogTest, SectionsIndentChannelsMadeInside) {
    Log before(Log::kNotice);
    {
        const Log outer("outer", Log::kNotice);
        Log inside(Log::kNotice);
        {
            const Log inner("inner", Log::kWarning);
            inside.write("inside", Log::kOwnLevel);
            before.write("before", Log::kError);
        }
        Log(Log::kNotice).write("again", Log::kNotice);
    }
    Log(Log::kNotice).log("out", Log::kOwnLevel);
    EXPECT_EQ(lines(),
              "(NOTICE): \touter\n(WARNING): \t\tinner\n(NOTICE): \tinside\n(ERROR): before\n"
              "(NOTICE): \tagain\n(NOTICE): out\n");
}

TEST_F(LogTest, NegativeLevelIsTheObjectsOwn) {
    Log section("s", Log::kError);
    section.write("x", -1);
    Log(5).write("dropped", -7);
    EXPECT_EQ(lines(), "(ERROR): \ts\n(ERROR): \tx\n");
}

TEST_F(LogTest, SectionThatOutlivesTheLogGoesOnInAFreshOne) {
    auto section = std::make_unique<Log>("shutting down", Log::kNotice);
    SingletonCollector::destroyAll();
    section.reset();
    logLine(Log::kNotice, "after");
    EXPECT_EQ(lines(), "(NOTICE): after\n");
}

struct Counted {
    int* count;
    friend std::ostream& operator<<(std::ostream& out, const Counted& counted) {
        return out << ++*counted.count;
    }
};

TEST_F(LogTest, LineIsFormattedOnlyIfWritten) {
    int formatted = 0;
    Log quiet(4);
    logLine(quiet, Log::kOwnLevel, Counted{&formatted});
    logLine(4, Counted{&formatted});
    EXPECT_EQ(formatted, 0);
    logValue(quiet, Log::kWarning, "CORE version", Counted{&formatted});
    logLine(quiet, Log::kError, 'a', 1, "b", 2.5);
    EXPECT_EQ(lines(), "(WARNING): CORE version: 1\n(ERROR): a1b2.5\n");
}

TEST_F(LogTest, MirrorFileHoldsLaterLinesAndEnd) {
    const std::string mirror = ::testing::TempDir() + "zk_log_mirror.txt";
    const std::string saved = ::testing::TempDir() + "zk_log_saved.txt";
    Log::append("early\n");
    Log::setFile(::testing::TempDir() + "no/such/folder/log.txt");
    Log::append("unmirrored\n");
    Log::setFile(mirror);
    Log::append("late\n");
    { const Log section("s", 9); }
    EXPECT_TRUE(Log::saveToFile(saved));
    EXPECT_FALSE(Log::saveToFile(::testing::TempDir() + "no/such/folder/log.txt"));
    EXPECT_EQ(fileText(mirror), "late\n");
    SingletonCollector::destroyAll();
    EXPECT_EQ(fileText(mirror), "late\n[EOF]\n");
    EXPECT_EQ(fileText(saved), "early\nunmirrored\nlate\n");
}

}  // namespace
}  // namespace qvo::util
