#pragma once

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {

class TransformControl;

/// Between the plug-in's controllers and the host's own.
///
/// A conversion makes a controller of the host's default class with a key for every key of ours, and puts it
/// everywhere the old one is used. It is one undo entry of its own unless the host is holding already. The
/// old controller may be gone when the call returns. A controller that nothing uses, for instance one that
/// only undo keeps alive, is left alone; so is everything when the host cannot make the new one. Nothing
/// throws.

void convertToPRS(TransformControl& controller);

/// All controllers of the process, the newest first.
void convertAllTransformControls();
void convertAllScalarControls();

/// False for null.
bool isTransformControl(Control* control);

/// Converts the node's transform controller if it is ours.
void convertNodeTransform(INode& node);

/// Converts our controllers in the groups named "Parameters" of the node's object, below its modifiers.
void convertNodeScalars(INode& node);

/// Gives the node our transform controller. The node stays where it is; its former animation is dropped and
/// no key arises. The installed controller, which is the present one if that is ours already; null, and the
/// node as it was, when the host cannot make one.
TransformControl* installTransformControl(INode& node);

}  // namespace qvo::zmx::adaptor::max
