#include <algorithm>
#include <deque>
#include <functional>
#include <random>
#include <string>

#include "adaptor/max/controllers/ControlKeyDeleteRestore.h"
#include "adaptor/max/controllers/ControlKeyInsertRestore.h"
#include "tests/adaptor/controllers/ControllerTest.h"

namespace qvo::zmx::test {
namespace {

class KeyRestore : public ControllerTest {};

const struct {
    const char* name;
    std::function<void(ScalarControl&)> edit;
    const char* keysAfter;
} kEdits[] = {
    {"Append",
     [](ScalarControl& c) {
         c.setKey({0, 40, 4});
     },
     "10=10 20*=20 30=30 40=4"},
    {"InsertBetween",
     [](ScalarControl& c) {
         c.setKey({0, 15, 4});
     },
     "10=10 15=4 20*=20 30=30"},
    {"InsertFirst",
     [](ScalarControl& c) {
         c.setKey({0, -5, 4});
     },
     "-5=4 10=10 20*=20 30=30"},
    {"Overwrite",
     [](ScalarControl& c) {
         c.setKey({0, 20, 4});
     },
     "10=10 20=4 30=30"},
    {"DeleteAtTime", [](ScalarControl& c) { c.DeleteKeyAtTime(30); }, "10=10 20*=20"},
    {"DeleteByIndex", [](ScalarControl& c) { c.DeleteKeyByIndex(0); }, "20*=20 30=30"},
    {"DeleteSelected", [](ScalarControl& c) { c.DeleteKeys(TRACK_DOSEL | TRACK_DOALL); }, "10=10 30=30"},
    {"DeleteTime", [](ScalarControl& c) { c.DeleteTime(Interval(15, 25), 0); }, "10=10 20=30"},
    {"KeyInAnimateMode", [](ScalarControl& c) { animated([&] { setValue(c, 25, 7); }); },
     "10=10 20*=20 25=7 30=30"},
    {"ValueWithoutKey", [](ScalarControl& c) { setValue(c, 25, 7); }, "10=10 20*=20 30=30"},
    {"OneAfterAnother",
     [](ScalarControl& c) {
         c.setKey({0, 40, 4});
         c.DeleteKeyByIndex(0);
         c.setKey({0, 20, 8});
         c.DeleteTime(Interval(0, 20), TIME_NOSLIDE);
     },
     "20=8 30=30 40=4"},
};

TEST_F(KeyRestore, UndoRedoAndCancelOfEveryEdit) {
    for (const auto& c : kEdits) {
        SCOPED_TRACE(c.name);
        Used<ScalarControl> control;
        bake(*control, {10, 20, 30});
        control->SelectKeyByIndex(1, TRUE);
        const std::string before = described(*control);
        const float valueBefore = valueAt(*control, 25);

        hold([&] { c.edit(*control); });
        const float valueAfter = valueAt(*control, 25);
        EXPECT_EQ(described(*control), c.keysAfter);
        for (int round = 0; round < 2; ++round) {
            control.user().changes = 0;
            EXPECT_TRUE(host.undo());
            EXPECT_EQ(described(*control), before);
            EXPECT_EQ(valueAt(*control, 25), valueBefore);
            EXPECT_GT(control.user().changes, 0);
            EXPECT_TRUE(host.redo());
            EXPECT_EQ(described(*control), c.keysAfter);
            EXPECT_EQ(valueAt(*control, 25), valueAfter);
        }
        host.undo();
        theHold.Begin();
        c.edit(*control);
        theHold.Cancel();
        EXPECT_EQ(described(*control), before);
        EXPECT_EQ(valueAt(*control, 25), valueBefore);
        GetCOREInterface()->FlushUndoBuffer();
    }
}

TEST_F(KeyRestore, SecondUndoOrRedoInARowDoesNothing) {
    using Base = BaseControl<float>;
    Used<ScalarControl> control;
    bake(*control, {10, 20});
    ControlKeyDeleteRestore<Base, ZorvaKey<float>> deletion(*control, 1, {0, 15, 1});
    ControlKeyInsertRestore<Base, ZorvaKey<float>> insertion(*control, 0, 10);
    for (const auto& [record, undone] :
         {std::pair<RestoreObj*, const char*>{&deletion, "10=10 15=1 20=20"}, {&insertion, "20=20"}}) {
        record->Redo();
        EXPECT_EQ(described(*control), "10=10 20=20");
        record->Restore(1);
        record->Restore(1);
        EXPECT_EQ(described(*control), undone);
        record->Redo();
        record->Redo();
        EXPECT_EQ(described(*control), "10=10 20=20");
        EXPECT_EQ(record->Size(), 24);
        EXPECT_EQ(record->Description(), "---");
    }
}

TEST_F(KeyRestore, RecordsOutliveTheirController) {
    Used<ScalarControl> control;
    hold([&] {
        bake(*control, {10, 20, 5, 20});
        control->DeleteKeyByIndex(0);
        control->DeleteTime(Interval(0, 15), 0);
        setValue(*control, 3, 4);
    });
    control.end();
    EXPECT_TRUE(host.undo());
    EXPECT_TRUE(host.redo());
    EXPECT_TRUE(host.undo());
}

/// Edits that no record knows of come between: what a record cannot find it leaves alone.
TEST_F(KeyRestore, TableChangedUnrecordedStaysInOrder) {
    const std::function<void(ScalarControl&)> intrusions[] = {
        [](ScalarControl& c) { c.DeleteKeys(TRACK_DOALL); },
        [](ScalarControl& c) { c.DeleteKeyByIndex(0); },
        [](ScalarControl& c) { c.DeleteKeyAtTime(40); },
        [](ScalarControl& c) {
            bake(c, {1, 2, 3, 10, 50, 60});
        },
    };
    for (const auto& c : kEdits)
        for (const auto& intrude : intrusions) {
            Used<ScalarControl> control;
            bake(*control, {10, 20, 30});
            control->SelectKeyByIndex(1, TRUE);
            hold([&] { c.edit(*control); });
            intrude(*control);
            host.undo();
            intrude(*control);
            host.redo();
            for (int i = 1; i < control->keys().size(); ++i)
                EXPECT_LT(control->keys()[i - 1].time, control->keys()[i].time) << c.name;
            GetCOREInterface()->FlushUndoBuffer();
        }
}

/// At each step of a drag the host restores what its hold has recorded so far, and keeps those records.
TEST_F(KeyRestore, RedoOfADragGivesItsLastStep) {
    for (const TimeValue t : {100, 300}) {
        Used<ScalarControl> scalar;
        Used<TransformControl> transform;
        for (const TimeValue key : {0, 200}) {
            scalar->setKey({0, key, 0});
            transform->setKey({0, key, Matrix3(1)});
        }
        const auto step = [&](float value) {
            setValue(*scalar, t, value);
            setWorld(*transform, t, TransMatrix(Point3(value, 0.0f, 0.0f)));
        };
        hold([&] {
            animated([&] {
                step(1);
                theHold.Restore();
                step(2);
            });
        });
        for (int round = 0; round < 2; ++round) {
            EXPECT_TRUE(host.undo());
            EXPECT_EQ(described(*scalar), "0=0 200=0");
            EXPECT_EQ(transform->keys().size(), 2);
            EXPECT_TRUE(host.redo());
            EXPECT_EQ(valueAt(*scalar, t), 2);
            EXPECT_EQ(worldAt(*transform, t).GetTrans().x, 2);
        }
        GetCOREInterface()->FlushUndoBuffer();
    }
}

TEST_F(KeyRestore, EvaluatedValueIsNotBroughtBackOverAChangedTable) {
    Used<ScalarControl> control;
    bake(*control, {0, 100});
    EXPECT_EQ(valueAt(*control, 50), 50);
    hold([&] { animated([&] { setValue(*control, 200, 5); }); });
    control->setKey({0, 50, 7});
    host.undo();
    EXPECT_EQ(valueAt(*control, 50), 7);
}

/// One random edit, the last thing of which makes a key.
void editAtRandom(ScalarControl& control, std::mt19937& random) {
    const auto t = static_cast<TimeValue>(random() % 60);
    switch (random() % 20) {
        case 0:
            control.DeleteTime(Interval(t, t + 9), random() % 2 ? TIME_NOSLIDE : 0);
            break;
        case 1:
            for (int i = 0; i < control.NumKeys(); ++i)
                control.SelectKeyByIndex(i, control.GetKeyTime(i) % 7 == t % 7);
            control.DeleteKeys(TRACK_DOSEL);
            break;
        case 2:
        case 3:
            control.DeleteKeyAtTime(t);
            break;
        default:
            break;
    }
    animated([&] { setValue(control, t + 5, static_cast<float>(random() % 1000)); });
}

/// Keys and a value between them; which keys are selected is nobody's to bring back.
std::string stateOf(ScalarControl& control) {
    std::string text = described(control);
    text.erase(std::remove(text.begin(), text.end(), '*'), text.end());
    return text.empty() ? text : text + ", at 25: " + std::to_string(valueAt(control, 25));
}

TEST_F(KeyRestore, RandomWalkComesBackToEveryState) {
    constexpr std::size_t kUndoLimit = 20;
    std::mt19937 random(42);
    Used<ScalarControl> control;
    const auto edits = [&] {
        for (auto count = 1 + random() % 3; count > 0; --count)
            editAtRandom(*control, random);
    };
    std::deque<std::string> states{std::string()};
    std::size_t present = 0;
    for (int step = 0; step < 20000; ++step) {
        const auto action = random() % 10;
        if (action < 5) {
            hold(edits);
            states.resize(present + 1);
            states.push_back(stateOf(*control));
            if (states.size() > kUndoLimit + 1) states.pop_front();
            present = states.size() - 1;
        } else if (action == 5) {
            theHold.Begin();
            edits();
            theHold.Cancel();
        } else if (action < 8) {
            ASSERT_EQ(host.undo(), present > 0);
            if (present > 0) --present;
        } else {
            ASSERT_EQ(host.redo(), present + 1 < states.size());
            if (present + 1 < states.size()) ++present;
        }
        ASSERT_EQ(stateOf(*control), states[present]) << step;
    }
}

}  // namespace
}  // namespace qvo::zmx::test
