#pragma once

#include <max.h>

#include <vector>

#include "maxhost/src/files/Bytes.h"

namespace maxhost {

/// What a placeholder keeps of an object whose class is not there: its ids, its references and its chunks, so
/// that a save writes them again. Numbers of other targets that the object has stored inside its own chunks
/// are not renumbered.
///
/// To the scene a placeholder shows ids of its own and never those that it keeps: by them a plug-in would
/// take it for its own object and use it as one.
class Placeholder {
  public:
    Placeholder(SClass_ID superClass, Class_ID classId, ByteSpan chunks, size_t referenceCount)
        : references_(referenceCount, nullptr),
          superClass_(superClass),
          classId_(classId),
          chunks_(chunks.data, chunks.data + chunks.size) {}
    virtual ~Placeholder() = default;

    SClass_ID keptSuperClass() const { return superClass_; }
    Class_ID keptClassId() const { return classId_; }
    const Bytes& keptChunks() const { return chunks_; }

    /// The placeholder that an object is, null for an ordinary object.
    static Placeholder* of(ReferenceTarget& target);
    static Class_ID shownClassId() { return Class_ID(0x4d495353, 0); }

  protected:
    std::vector<RefTargetHandle> references_;

  private:
    const SClass_ID superClass_;
    const Class_ID classId_;
    const Bytes chunks_;
};

/// The parts of a reference target that are the same for every base class.
template <class Base>
class PlaceholderOf : public Base, public Placeholder {
  public:
    using Placeholder::Placeholder;

    void DeleteThis() override { delete this; }
    void GetClassName(TSTR& s) override { s = _T("Missing class"); }
    Class_ID ClassID() override { return shownClassId(); }
    RefResult NotifyRefChanged(Interval, RefTargetHandle, PartID&, RefMessage) override {
        return REF_SUCCEED;
    }
    int NumRefs() override { return static_cast<int>(references_.size()); }
    RefTargetHandle GetReference(int i) override {
        return i < 0 || i >= NumRefs() ? nullptr : references_[static_cast<size_t>(i)];
    }
    void SetReference(int i, RefTargetHandle target) override {
        if (i >= 0 && i < NumRefs()) references_[static_cast<size_t>(i)] = target;
    }

  protected:
    ~PlaceholderOf() override = default;
};

/// Stands for a target that is neither a controller nor an object.
using PlaceholderTarget = PlaceholderOf<ReferenceTarget>;

/// Has no effect: transforms stay those of the parent, other values neutral. Setting does nothing.
class PlaceholderControl final : public PlaceholderOf<Control> {
  public:
    using PlaceholderOf<Control>::PlaceholderOf;

    /// That of the missing controller: it says what kind of value is expected, and this one has it.
    SClass_ID SuperClassID() override { return keptSuperClass(); }
    void GetValue(TimeValue t, void* val, Interval& valid, GetSetMethod method = CTRL_ABSOLUTE) override;
    void SetValue(TimeValue, void*, int = 1, GetSetMethod = CTRL_ABSOLUTE) override {}
    void Copy(Control*) override {}
    IOResult Save(ISave*) override { return IO_OK; }
    IOResult Load(ILoad*) override { return IO_OK; }
};

/// Shows nothing. A helper, whatever the missing object was: it has not the operations of a shape or a
/// camera.
class PlaceholderObject final : public PlaceholderOf<HelperObject> {
  public:
    using PlaceholderOf<HelperObject>::PlaceholderOf;

    ObjectState Eval(TimeValue) override { return ObjectState(this); }
    CreateMouseCallBack* GetCreateMouseCallBack() override { return nullptr; }
};

/// Super classes of which a scene file may hold instances.
bool isSavedSuperClass(SClass_ID superClass);

/// A placeholder fit for the super class, which must be one of those. Owned by nobody.
ReferenceTarget* makePlaceholder(SClass_ID superClass, Class_ID classId, ByteSpan chunks,
                                 size_t referenceCount);

}  // namespace maxhost
