#pragma once

#include "control.h"
#include "istdplug.h"
