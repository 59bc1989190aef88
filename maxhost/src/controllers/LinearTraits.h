#pragma once

#include <cmath>

#include <control.h>

namespace maxhost {

/// What the linear controllers differ in. For each value type:
/// `read` and `write` translate the untyped argument of SetValue and GetValue (CTRL_RELATIVE: a change to be
/// combined with `combine`, and an incoming value to be combined with); `shifted` moves one key by the
/// difference of two values; `between` interpolates, f from 0 to 1.
///
/// Here what the values have in common whose changes are sums.
template <class T>
struct SummedTraits {
    using Value = T;

    static Value read(const void* val, GetSetMethod) { return *static_cast<const T*>(val); }
    static void write(const Value& v, void* val, GetSetMethod method) {
        T& out = *static_cast<T*>(val);
        out = method == CTRL_RELATIVE ? out + v : v;
    }
    static Value combine(const Value& v, const Value& change) { return v + change; }
    static Value shifted(const Value& v, const Value& from, const Value& to) { return v + (to - from); }
    static Value between(const Value& a, const Value& b, float f) { return a + (b - a) * f; }
    static bool equal(const Value& a, const Value& b) { return a == b; }
};

struct FloatTraits : SummedTraits<float> {
    static constexpr SClass_ID kSuperClass = CTRL_FLOAT_CLASS_ID;
    static constexpr ULONG kClass = LININTERP_FLOAT_CLASS_ID;
    static constexpr const TCHAR* kName = _T("Linear Float");

    static Value neutral() { return 0; }
    static bool isFinite(const Value& v) { return std::isfinite(v); }
};

struct PositionTraits : SummedTraits<Point3> {
    static constexpr SClass_ID kSuperClass = CTRL_POSITION_CLASS_ID;
    static constexpr ULONG kClass = LININTERP_POSITION_CLASS_ID;
    static constexpr const TCHAR* kName = _T("Linear Position");

    static Value neutral() { return Point3(0, 0, 0); }
    static bool isFinite(const Value& v) {
        return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
    }
};

struct RotationTraits {
    using Value = Quat;
    static constexpr SClass_ID kSuperClass = CTRL_ROTATION_CLASS_ID;
    static constexpr ULONG kClass = LININTERP_ROTATION_CLASS_ID;
    static constexpr const TCHAR* kName = _T("Linear Rotation");

    static Value neutral() { return Quat(); }
    static Value read(const void* val, GetSetMethod method) {
        if (method == CTRL_RELATIVE) return Quat(*static_cast<const AngAxis*>(val));
        return Normalize(*static_cast<const Quat*>(val));
    }
    static void write(const Value& v, void* val, GetSetMethod method) {
        Quat& out = *static_cast<Quat*>(val);
        out = method == CTRL_RELATIVE ? v * out : v;
    }
    static Value combine(const Value& v, const Value& change) { return Normalize(v * change); }
    static Value shifted(const Value& v, const Value& from, const Value& to) {
        return Normalize(v * Inverse(from) * to);
    }
    /// On the shorter arc.
    static Value between(const Value& a, const Value& b, float f) { return Slerp(a, b, f); }
    static bool isFinite(const Value& v) {
        return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z) && std::isfinite(v.w);
    }
    static bool equal(const Value& a, const Value& b) { return a == b; }
};

struct ScaleTraits {
    using Value = ScaleValue;
    static constexpr SClass_ID kSuperClass = CTRL_SCALE_CLASS_ID;
    static constexpr ULONG kClass = LININTERP_SCALE_CLASS_ID;
    static constexpr const TCHAR* kName = _T("Linear Scale");

    static Value neutral() { return ScaleValue(); }
    static Value read(const void* val, GetSetMethod) { return *static_cast<const ScaleValue*>(val); }
    static void write(const Value& v, void* val, GetSetMethod method) {
        ScaleValue& out = *static_cast<ScaleValue*>(val);
        out = method == CTRL_RELATIVE ? ScaleValue(out.s * v.s, v.q) : v;
    }
    static Value combine(const Value& v, const Value& change) { return ScaleValue(v.s * change.s, v.q); }
    static Value shifted(const Value& v, const Value& from, const Value& to) {
        return ScaleValue(v.s + (to.s - from.s), to.q);
    }
    static Value between(const Value& a, const Value& b, float f) {
        return ScaleValue(a.s + (b.s - a.s) * f, Slerp(a.q, b.q, f));
    }
    static bool isFinite(const Value& v) {
        return PositionTraits::isFinite(v.s) && RotationTraits::isFinite(v.q);
    }
    static bool equal(const Value& a, const Value& b) { return a.s == b.s && a.q == b.q; }
};

}  // namespace maxhost
