#pragma once

#include "plugapi.h"

/// Descriptor that can carry parameter block descriptions.
/// Simplified: this host has no parameter blocks, so nothing is added to ClassDesc.
class ClassDesc2 : public ClassDesc {};
