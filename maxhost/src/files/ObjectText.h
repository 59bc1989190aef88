#pragma once

#include <max.h>

#include <string>

namespace maxhost {

/// An object for messages: "object of class (0x.., 0x..) in super class 0x..".
std::string objectText(SClass_ID superClass, Class_ID classId);

}  // namespace maxhost
