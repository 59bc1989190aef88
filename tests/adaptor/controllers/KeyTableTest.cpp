#include "adaptor/max/controllers/KeyTable.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <random>

namespace qvo::zmx::adaptor::max {
namespace {

using Model = std::map<TimeValue, float>;

/// The nearest key as the plain rule says it: a scan of all keys, the earlier one of two equally near.
int nearestByScan(const Model& model, TimeValue t) {
    int best = -1;
    int index = 0;
    std::int64_t bestDistance = 0;
    for (const auto& [time, value] : model) {
        const std::int64_t distance = std::llabs(std::int64_t{time} - t);
        if (best < 0 || distance < bestDistance) {
            best = index;
            bestDistance = distance;
        }
        ++index;
    }
    return best;
}

void expectSameKeys(const KeyTable<float>& table, const Model& model) {
    ASSERT_EQ(table.size(), static_cast<int>(model.size()));
    int index = 0;
    for (const auto& [time, value] : model) {
        ASSERT_EQ(table[index].time, time);
        ASSERT_EQ(table[index++].value, value);
    }
}

void expectSameAnswers(const KeyTable<float>& table, const Model& model, TimeValue t) {
    const auto lower = model.lower_bound(t);
    const int lowerIndex = static_cast<int>(std::distance(model.begin(), lower));
    const bool onKey = lower != model.end() && lower->first == t;
    ASSERT_EQ(table.lowerBound(t), lowerIndex) << t;
    ASSERT_EQ(table.indexOf(t), onKey ? lowerIndex : -1) << t;
    if (model.empty()) {
        ASSERT_EQ(table.nearest(t), -1);
        return;
    }
    const bool between = !onKey && lower != model.begin() && lower != model.end();
    const int right = lower == model.end() ? lowerIndex - 1 : lowerIndex;
    const auto neighbours = table.around(t);
    ASSERT_EQ(neighbours.right, right) << t;
    ASSERT_EQ(neighbours.left, between ? right - 1 : right) << t;
    ASSERT_EQ(table.nearest(t), nearestByScan(model, t)) << t;
}

TEST(KeyTable, AgreesWithAMapUnderRandomEdits) {
    std::mt19937 random(20100415);
    KeyTable<float> table;
    Model model;
    for (int step = 0; step < 20000; ++step) {
        const TimeValue t = static_cast<TimeValue>(random() % 400) - 50;
        const int index = table.lowerBound(t);
        const auto value = static_cast<float>(step);
        if (model.count(t) != 0) {
            table.erase(index);
            model.erase(t);
        } else if (index == table.size()) {
            table.append({0, t, value});
            model[t] = value;
        } else {
            table.insert(index, {0, t, value});
            model[t] = value;
        }
        expectSameAnswers(table, model, static_cast<TimeValue>(random() % 500) - 100);
        if (step % 100 == 0) expectSameKeys(table, model);
    }
    for (TimeValue t = -120; t < 420; ++t)
        expectSameAnswers(table, model, t);
    for (TimeValue t = 420; t > -120; --t)
        expectSameAnswers(table, model, t);
}

TEST(KeyTable, SearchesReachOverTheWholeRangeOfTime) {
    KeyTable<float> table;
    Model model;
    for (const TimeValue t : {TIME_NegInfinity, -1, 0, TIME_PosInfinity}) {
        table.append({0, t, 0.0f});
        model[t] = 0.0f;
    }
    for (const TimeValue t : {TIME_NegInfinity, TIME_NegInfinity / 2 - 1, TIME_NegInfinity / 2, -1, 0,
                              TIME_PosInfinity / 2, TIME_PosInfinity / 2 + 1, TIME_PosInfinity})
        expectSameAnswers(table, model, t);
}

}  // namespace
}  // namespace qvo::zmx::adaptor::max
