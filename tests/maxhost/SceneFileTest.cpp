#include <gtest/gtest.h>

#include <max.h>

#include <gup.h>
#include <iparamb2.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "maxhost/HeadlessHost.h"
#include "maxhost/src/files/SceneReader.h"

namespace {

using maxhost::HeadlessHost;

const Class_ID kSpinId(0x51a70001, 0x2b3c0001);
const Class_ID kNotesId(0x51a70002, 0x2b3c0002);

/// Turns with time; its speed is what it saves.
class Spin final : public Control {
  public:
    float speed = 0;

    void DeleteThis() override { delete this; }
    Class_ID ClassID() override { return kSpinId; }
    SClass_ID SuperClassID() override { return CTRL_MATRIX3_CLASS_ID; }
    RefResult NotifyRefChanged(Interval, RefTargetHandle, PartID&, RefMessage) override {
        return REF_SUCCEED;
    }
    void GetValue(TimeValue t, void* val, Interval& valid, GetSetMethod) override {
        valid.SetInstant(t);
        static_cast<Matrix3*>(val)->PreRotateZ(speed * static_cast<float>(t));
    }
    void SetValue(TimeValue, void*, int, GetSetMethod) override {}
    void Copy(Control*) override {}
    IOResult Save(ISave* out) override {
        out->BeginChunk(7);
        out->Write(&speed, sizeof speed, nullptr);
        return out->EndChunk();
    }
    IOResult Load(ILoad* in) override {
        if (in->OpenChunk() != IO_OK || in->CurChunkID() != 7) return IO_ERROR;
        return in->Read(&speed, sizeof speed, nullptr);  // leaves the chunk open, which does no harm
    }
};

/// Global utility that keeps a text in the scene and marks the first node while it saves.
class Notes final : public GUP {
  public:
    static Notes* running;
    std::string text;
    int loads = 0;

    Notes() { running = this; }
    ~Notes() override { running = nullptr; }
    DWORD Start() override { return GUPRESULT_KEEP; }
    void Stop() override {}
    void DeleteThis() override { delete this; }
    IOResult Save(ISave* out) override {
        if (INode* const first = Max()->GetRootNode()->GetChildNode(0))
            first->SetUserPropString("notes", text.c_str());
        if (text.empty()) return IO_OK;
        out->BeginChunk(0x408);
        out->WriteCString(text.c_str());
        return out->EndChunk();
    }
    IOResult Load(ILoad* in) override {
        ++loads;
        text.clear();
        for (; in->OpenChunk() == IO_OK; in->CloseChunk()) {
            char* read = nullptr;
            if (in->CurChunkID() == 0x408 && in->ReadCStringChunk(&read) == IO_OK) text = read;
        }
        return IO_OK;
    }
};
Notes* Notes::running = nullptr;

template <class Made>
class TestClass : public ClassDesc2 {
  public:
    TestClass(SClass_ID superClass, const Class_ID& classId) : superClass_(superClass), classId_(classId) {}
    int IsPublic() override { return 1; }
    void* Create(BOOL) override { return new Made; }
    const TCHAR* ClassName() override { return _T("Test class"); }
    SClass_ID SuperClassID() override { return superClass_; }
    Class_ID ClassID() override { return classId_; }
    const TCHAR* Category() override { return _T("Test"); }

  private:
    SClass_ID superClass_;
    Class_ID classId_;
};
TestClass<Spin> spinClass(CTRL_MATRIX3_CLASS_ID, kSpinId);
TestClass<Notes> notesClass(GUP_CLASS_ID, kNotesId);

/// A host, with the test classes or without.
struct Session {
    explicit Session(bool withPlugin = true) {
        if (!withPlugin) return;
        host.registerPluginClass(&spinClass);
        host.registerPluginClass(&notesClass);
        EXPECT_TRUE(host.start());
    }
    ~Session() { EXPECT_TRUE(host.faults().empty()) << host.faults().front(); }

    INode* make(const char* name, INode* parent, float x) {
        INode* const node = ip->CreateObjectNode(nullptr, name);
        if (parent != nullptr) parent->AttachChild(node, 0);
        Matrix3 tm = TransMatrix(Point3(x, 0.0f, 0.0f));
        node->SetNodeTM(0, tm);
        return node;
    }
    void makeScene();
    std::string describe();

    HeadlessHost host;
    Interface* const ip = GetCOREInterface();
};

void Session::makeScene() {
    INode* const a = make("a", nullptr, 1);
    INode* const b = make("b", a, 2);
    INode* const c = make("c", a, 3);
    AnimateOn();
    Matrix3 later = TransMatrix(Point3(50, 0, 0));
    b->SetNodeTM(4800, later);
    AnimateOff();
    INode* const turning = make("turning", c, 0);
    Spin* const spin = static_cast<Spin*>(ip->CreateInstance(CTRL_MATRIX3_CLASS_ID, kSpinId));
    if (spin != nullptr) {
        spin->speed = 0.001f;
        turning->SetTMController(spin);
        make("shared", c, 0)->SetTMController(spin);
    }
    c->Hide(TRUE);
    c->SetWireColor(0x0000ff);
    c->SetUserPropString("key", "a value");
    ip->SetTime(320);
    ip->SetAnimRange(Interval(-160, 9600));
    SetFrameRate(25);
    SetMasterUnitInfo(UNITS_CENTIMETERS, 2.0f);
}

std::string Session::describe() {
    std::string text;
    std::function<void(INode*)> add = [&](INode* node) {
        TSTR properties;
        node->GetUserPropBuffer(properties);
        text += std::string(node->GetName()) + " " + std::to_string(node->GetHandle()) + " " +
                std::to_string(node->GetWireColor()) + (node->IsHidden() ? " hidden " : " ") +
                properties.data() + "(";
        for (const TimeValue t : {0, 2400, 4800}) {
            const Matrix3 tm = node->GetNodeTM(t);
            text += std::to_string(tm.GetRow(0).x) + " " + std::to_string(tm.GetTrans().x) + " ";
        }
        for (int i = 0; i < node->NumberOfChildren(); ++i)
            add(node->GetChildNode(i));
        text += ")";
    };
    add(ip->GetRootNode());
    return text + std::to_string(ip->GetTime()) + " " + std::to_string(ip->GetAnimRange().End()) + " " +
           std::to_string(GetFrameRate()) + " " + std::to_string(GetMasterScale(UNITS_METERS));
}

std::string read(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void write(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

class SceneFileTest : public ::testing::Test {
  protected:
    SceneFileTest() : folder(::testing::TempDir() + "scene_file_test") {
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
    }
    ~SceneFileTest() override { std::filesystem::remove_all(folder); }
    std::string path(const char* name) const { return folder + "/" + name; }

    const std::string folder;
};

TEST_F(SceneFileTest, SavedSceneComesBackByteForByte) {
    Session session;
    session.makeScene();
    Notes::running->text = "remember";
    ASSERT_TRUE(session.host.save(path("1")));
    ASSERT_TRUE(session.host.save(path("2")));
    EXPECT_EQ(read(path("1")), read(path("2")));
    const std::string before = session.describe();

    session.host.reset();
    EXPECT_EQ(session.host.nodeCount(), 0u);
    EXPECT_EQ(GetFrameRate(), 30);
    ASSERT_TRUE(session.host.open(path("1"))) << session.host.lastMessage();
    EXPECT_EQ(session.describe(), before);
    EXPECT_EQ(Notes::running->text, "remember");
    EXPECT_EQ(Notes::running->loads, 1);
    INode* const turning = session.ip->GetINodeByName("turning");
    EXPECT_EQ(turning->GetTMController(), session.ip->GetINodeByName("shared")->GetTMController());
    // Handed out anew, handles are not those of the file.
    const ULONG fresh = session.make("new", nullptr, 0)->GetHandle();
    EXPECT_GT(fresh, turning->GetHandle());
    session.ip->DeleteNode(session.ip->GetINodeByName("new"));
    ASSERT_TRUE(session.host.save(path("3")));
    EXPECT_EQ(read(path("1")), read(path("3")));
}

// What a utility does to the nodes while it saves reaches the file.
TEST_F(SceneFileTest, UtilitiesSaveBeforeNodesAndAlwaysLoad) {
    Session session;
    session.make("a", nullptr, 1);
    Notes::running->text = "now";
    ASSERT_TRUE(session.host.save(path("with")));
    session.host.reset();
    ASSERT_TRUE(session.host.save(path("empty")));
    ASSERT_TRUE(session.host.open(path("with")));
    TSTR note;
    EXPECT_TRUE(session.ip->GetINodeByName("a")->GetUserPropString("notes", note));
    EXPECT_STREQ(note.data(), "now");
    ASSERT_TRUE(session.host.open(path("empty")));
    EXPECT_EQ(Notes::running->loads, 2);
}

TEST_F(SceneFileTest, MissingClassesAndUtilitiesAreKept) {
    {
        Session session;
        session.makeScene();
        Notes::running->text = "kept";
        ASSERT_TRUE(session.host.save(path("full")));
    }
    {
        Session poor(false);
        ASSERT_TRUE(poor.host.open(path("full")));
        EXPECT_NE(poor.host.lastMessage().find("(0x51a70001, 0x2b3c0001)"), std::string::npos)
            << poor.host.lastMessage();
        INode* const turning = poor.ip->GetINodeByName("turning");
        ASSERT_NE(turning->GetTMController(), nullptr);
        EXPECT_NE(turning->GetTMController()->ClassID(), kSpinId);
        EXPECT_TRUE(turning->GetNodeTM(480) == turning->GetParentTM(480));
        ASSERT_TRUE(poor.host.save(path("kept")));
    }
    EXPECT_EQ(read(path("full")), read(path("kept")));
}

TEST_F(SceneFileTest, DamagedFileIsRefusedAndSceneStays) {
    Session session;
    session.makeScene();
    ASSERT_TRUE(session.host.save(path("good")));
    const std::string good = read(path("good"));
    session.host.reset();
    session.make("open", nullptr, 4);
    session.ip->SelectNode(session.ip->GetINodeByName("open"));
    const std::string before = session.describe();
    const auto expectRefused = [&](const std::string& bytes, size_t at) {
        write(path("bad"), bytes);
        ASSERT_FALSE(session.host.open(path("bad"))) << at;
        ASSERT_EQ(session.host.lastMessage().rfind(path("bad") + ": ", 0), 0u) << session.host.lastMessage();
    };
    for (size_t i = 0; i < good.size(); i += i < 64 ? 1 : 7) {
        std::string flipped = good;
        flipped[i] = static_cast<char>(flipped[i] ^ 0x10);
        expectRefused(flipped, i);
        expectRefused(good.substr(0, i), i);
    }
    EXPECT_FALSE(session.host.open(path("absent")));
    EXPECT_NE(session.host.lastMessage(), "");
    EXPECT_EQ(session.describe(), before);
    EXPECT_EQ(session.ip->GetSelNodeCount(), 1);
    EXPECT_EQ(Notes::running->loads, 0);
}

// Behind the checksums: whatever the bytes say, they are read or refused, and nothing leaks.
TEST_F(SceneFileTest, NoNumberOfTheFileIsBelieved) {
    Session session;
    session.makeScene();
    ASSERT_TRUE(session.host.save(path("good")));
    const std::string good = read(path("good"));
    maxhost::ClassDirectory classes;
    classes.add(&spinClass);
    int refused = 0;
    for (size_t i = 0; i < good.size(); ++i) {
        for (const int value : {0, 1, 0x41, 0xff}) {
            std::string bytes = good;
            bytes[i] = static_cast<char>(value);
            try {
                maxhost::SceneReader::read(
                    {reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()}, classes,
                    maxhost::SceneReader::Checksums::ignored);
            } catch (const std::runtime_error&) {
                ++refused;
            }
        }
    }
    EXPECT_GT(refused, 100);
}

TEST_F(SceneFileTest, FailedSaveSaysWhyAndLosesNothing) {
    Session session;
    session.makeScene();
    ASSERT_TRUE(session.host.save(path("scene")));
    const std::string good = read(path("scene"));
    std::filesystem::create_directory(path("folder"));
    for (const std::string& target : {path("no such folder/scene"), path("folder"), std::string()}) {
        EXPECT_FALSE(session.host.save(target));
        EXPECT_FALSE(session.host.lastMessage().empty());
        EXPECT_FALSE(std::filesystem::exists(target + ".tmp"));
    }
    EXPECT_EQ(read(path("scene")), good);
}

TEST_F(SceneFileTest, MergeBringsNodesUnderNewHandles) {
    Session session;
    session.makeScene();
    ASSERT_TRUE(session.host.save(path("models")));
    const ULONG handleInFile = session.ip->GetINodeByName("b")->GetHandle();
    session.host.reset();
    session.make("b", nullptr, 77);
    INode* const second = session.make("other", nullptr, 78);
    ASSERT_EQ(second->GetHandle(), handleInFile);
    ASSERT_TRUE(session.ip->MergeFromFile(path("models").c_str(), TRUE, TRUE));
    EXPECT_EQ(session.host.nodeCount(), 7u) << "both nodes of the name are there";
    EXPECT_EQ(session.ip->GetSelNodeCount(), 5);
    EXPECT_EQ(session.ip->GetINodeByHandle(handleInFile), second);
    INode* const c = session.ip->GetINodeByName("c");
    EXPECT_STREQ(c->GetParentNode()->GetName(), "a");
    EXPECT_TRUE(c->UserPropExists("key"));
    EXPECT_NE(session.ip->GetINodeByName("turning")->GetNodeTM(480).GetRow(0).y, 0);
    EXPECT_FALSE(session.host.merge(path("absent")));
    EXPECT_EQ(session.host.nodeCount(), 7u);
}

}  // namespace
