#pragma once

#include "core/CExtendable.h"
#include "core/Matrix4.h"

namespace qvo::zmx {

/// A node's transform at one moment, lent by CoreNode::acquireSnapshot until CoreNode::releaseSnapshot.
///
/// World matrices are in core space: Y-up, meters. Local matrices are relative to the parent node and, where
/// there is one, in the host's own space and units; a node at the top level exchanges core-space matrices
/// both ways. What was written reads back to single precision, in which the host keeps it. An exception is a
/// parent without extent in some direction: below it a local matrix reads as the host's world matrix.
///
/// A snapshot whose node is gone reads as the identity.
class CSnapshot : public CExtendable {
  public:
    /// Sets the local transform. Non-zero on success, 0 when the matrix is refused or the node is gone.
    virtual int setLocalTransform(const Matrix4& transform) = 0;  // slot 3

    virtual Matrix4 getLocalTransform() = 0;  // slot 4

    virtual Matrix4 getWorldTransform() = 0;  // slot 5

    /// Sets the world transform. Non-zero on success, 0 when the matrix is refused or the node is gone.
    virtual int setWorldTransform(const Matrix4& transform) = 0;  // slot 6

    /// The moment in seconds, as it was given at acquisition.
    virtual double getTime() = 0;  // slot 7

    virtual ~CSnapshot() = default;  // slot 8

  protected:
    CSnapshot() = default;
    CSnapshot(const CSnapshot&) = default;
    CSnapshot& operator=(const CSnapshot&) = default;
};

}  // namespace qvo::zmx
