#include "util/Singleton.h"

#include <gtest/gtest.h>

#include <string>

#include "util/Log.h"
#include "util/SingletonCollector.h"

namespace qvo::util {
namespace {

std::string events;

template <char Name>
class Named : public Singleton<Named<Name>> {
  public:
    Named() { events += {'+', Name}; }
    ~Named() override { events += {'-', Name}; }
};

/// Needs another singleton while it dies.
class LateUser : public Singleton<LateUser> {
  public:
    ~LateUser() override {
        events += "-L";
        Named<'C'>::instance();
    }
};

class SingletonTest : public ::testing::Test {
  protected:
    void SetUp() override {
        SingletonCollector::destroyAll();
        events.clear();
    }
    void TearDown() override { SingletonCollector::destroyAll(); }
};

TEST_F(SingletonTest, NewestIsDestroyedFirst) {
    Named<'A'>::instance();
    Named<'B'>::instance();
    Named<'A'>::instance();
    SingletonCollector::destroyAll();
    EXPECT_EQ(events, "+A+B-B-A");
    EXPECT_EQ(SingletonCollector::existing(), nullptr);
}

TEST_F(SingletonTest, RequestAfterTheEndStartsAfresh) {
    Named<'A'>::instance();
    SingletonCollector::destroyAll();
    Named<'A'>::instance();
    EXPECT_NE(SingletonCollector::existing(), nullptr);
    SingletonCollector::destroyAll();
    SingletonCollector::destroyAll();
    EXPECT_EQ(events, "+A-A+A-A");
}

TEST_F(SingletonTest, RequestDuringTheEndIsDestroyedToo) {
    LateUser::instance();
    SingletonCollector::destroyAll();
    EXPECT_EQ(events, "-L+C-C");
    EXPECT_EQ(Named<'C'>::existing(), nullptr);
}

TEST_F(SingletonTest, ReleasedInstanceIsNotDestroyedAgain) {
    Named<'A'>::instance();
    Named<'B'>::instance();
    Named<'A'>::instance().release();
    SingletonCollector::destroyAll();
    EXPECT_EQ(events, "+A+B-A-B");
}

TEST_F(SingletonTest, ObjectBesideTheInstanceLeavesItAlone) {
    Log& log = Log::instance();
    { const Log channel(Log::kNotice); }
    EXPECT_EQ(Log::existing(), &log);
    Log::append("kept");
    { const Log section("section", Log::kNotice); }
    EXPECT_EQ(Log::contents().substr(0, 4), "kept");
    SingletonCollector::destroyAll();  // would leak, and the sanitizer say so, if the log had been withdrawn
    EXPECT_EQ(Log::existing(), nullptr);
}

}  // namespace
}  // namespace qvo::util
