#pragma once

namespace qvo::util {

/// A caller's place for a result of variable size. The callee calls `set` once and the caller's side copies,
/// so that nothing allocated on one side of the core boundary is freed on the other.
/// Instances in use: std::string, std::vector<std::string>, CMesh, vectors of node pointers.
template <class T>
class ReturnValue {
  public:
    virtual ~ReturnValue() = default;      // slot 0
    virtual void set(const T& value) = 0;  // slot 1; copies `value`, may throw what the copy throws
};

}  // namespace qvo::util
