#pragma once

#include <unordered_map>

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {

/// Triangle objects that were made from other objects, one for each node, shared by that node's mesh
/// snapshots for the length of a key batch. Owns the objects. An entry counts only while node and handle both
/// match.
class ConvertedObjects {
  public:
    ConvertedObjects() = default;
    ~ConvertedObjects() { clear(); }
    ConvertedObjects(const ConvertedObjects&) = delete;
    ConvertedObjects& operator=(const ConvertedObjects&) = delete;

    /// The node's converted object, or null.
    TriObject* find(INode& node) const;

    /// Takes `object` over as the node's converted object.
    void store(INode& node, TriObject* object);

    /// The node is being deleted.
    void remove(INode& node);

    void clear();

    /// Deletes an object that nothing refers to, without a trace in the host's undo list.
    static void destroy(TriObject* object);

  private:
    struct Entry {
        ULONG handle;
        TriObject* object;  ///< owned
    };

    std::unordered_map<INode*, Entry> entries_;
};

}  // namespace qvo::zmx::adaptor::max
