#pragma once

#include <gtest/gtest.h>
#include <max.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

#include "maxhost/HeadlessHost.h"
#include "tests/support/ChunkBuffer.h"

namespace maxhost::test {

/// A host with an empty scene, in which no caller's mistake may be left.
class ObjectsTest : public ::testing::Test {
  protected:
    ~ObjectsTest() override {
        for (const std::string& fault : host.faults())
            ADD_FAILURE() << "fault: " << fault;
    }

    template <class T = Object>
    T* create(SClass_ID superClass, ULONG classId) {
        return static_cast<T*>(
            static_cast<ReferenceTarget*>(ip->CreateInstance(superClass, Class_ID(classId, 0))));
    }
    INode* nodeOf(Object* object, const char* name = nullptr) { return ip->CreateObjectNode(object, name); }

    /// The object of a copy of the node.
    template <class T = Object>
    T* cloneOf(INode* node) {
        INodeTab nodes, clones;
        nodes.AppendNode(node);
        Point3 offset(0, 0, 0);
        EXPECT_TRUE(ip->CloneNodes(nodes, offset, false, NODE_COPY, nullptr, &clones));
        EXPECT_NE(clones[0]->GetObjectRef(), node->GetObjectRef());
        return static_cast<T*>(clones[0]->GetObjectRef());
    }

    template <class Change>
    void hold(Change change) {
        theHold.Begin();
        change();
        TCHAR name[] = _T("change");
        theHold.Accept(name);
    }

    static Control* parameter(Object* object, int i) {
        return static_cast<Control*>(object->SubAnim(0)->SubAnim(i));
    }
    static void setKey(Control* control, TimeValue t, float value) {
        AnimateOn();
        control->SetValue(t, &value);
        AnimateOff();
    }
    static float valueOf(Control* control, TimeValue t) {
        float value = 0;
        Interval valid = FOREVER;
        control->GetValue(t, &value, valid);
        return value;
    }

    static qvo::zmx::test::ChunkList chunksOf(ReferenceTarget& object) {
        qvo::zmx::test::ChunkSaver saver;
        EXPECT_EQ(object.Save(&saver), IO_OK);
        EXPECT_TRUE(saver.balanced());
        return saver.chunks;
    }
    /// Loads every damaged form of the chunks: cut short, too long, lost, of another id, of a change in any
    /// of the first `fixedBytes`, which admit none. Each must be refused.
    template <class Make>
    static void expectDamageRefused(const qvo::zmx::test::ChunkList& sound, size_t fixedBytes, Make make) {
        const auto refused = [&](const qvo::zmx::test::ChunkList& chunks, const std::string& what) {
            ReferenceTarget* const object = make();
            const qvo::zmx::test::ChunkList before = chunksOf(*object);
            qvo::zmx::test::ChunkLoader loader(chunks);
            EXPECT_EQ(object->Load(&loader), IO_ERROR) << what;
            const qvo::zmx::test::ChunkList after = chunksOf(*object);
            ASSERT_EQ(after.size(), before.size()) << what;
            for (size_t i = 0; i < after.size(); ++i)
                EXPECT_EQ(after[i].bytes, before[i].bytes) << what;
            object->MaybeAutoDelete();
        };
        for (size_t i = 0; i < sound.size(); ++i) {
            const std::string name = "chunk " + std::to_string(i);
            for (const size_t length : {size_t{0}, size_t{1}, sound[i].bytes.size() - 1,
                                        sound[i].bytes.size() + 1, 2 * sound[i].bytes.size()}) {
                qvo::zmx::test::ChunkList chunks = sound;
                chunks[i].bytes.resize(length, '\1');
                refused(chunks, name + " of length " + std::to_string(length));
            }
            qvo::zmx::test::ChunkList chunks = sound;
            chunks[i].id = 0x7001;
            refused(chunks, name + " of another id");
            chunks = sound;
            chunks.erase(chunks.begin() + static_cast<std::ptrdiff_t>(i));
            refused(chunks, name + " lost");
        }
        for (size_t at = 0; at < fixedBytes; ++at) {
            for (const char damage : {'\x81', '\x7f'}) {
                qvo::zmx::test::ChunkList chunks = sound;
                chunks[0].bytes[at] = static_cast<char>(chunks[0].bytes[at] ^ damage);
                refused(chunks, "first chunk, byte " + std::to_string(at));
            }
        }
    }

    std::string saved() {
        const std::string path = ::testing::TempDir() + "geometry_objects.zms";
        EXPECT_TRUE(host.save(path)) << host.lastMessage();
        std::ifstream file(path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    }
    /// Saves, opens and saves again: the same bytes must come out.
    void reopen() {
        const std::string before = saved();
        ASSERT_TRUE(host.open(::testing::TempDir() + "geometry_objects.zms")) << host.lastMessage();
        EXPECT_EQ(saved(), before);
        std::remove((::testing::TempDir() + "geometry_objects.zms").c_str());
    }

    HeadlessHost host;
    Interface* const ip = GetCOREInterface();
};

}  // namespace maxhost::test
