#include "maxhost/src/files/ObjectText.h"

#include <cstdio>

namespace maxhost {

std::string objectText(SClass_ID superClass, Class_ID classId) {
    char text[80];
    std::snprintf(text, sizeof text, "object of class (0x%x, 0x%x) in super class 0x%x",
                  static_cast<unsigned>(classId.PartA()), static_cast<unsigned>(classId.PartB()),
                  static_cast<unsigned>(superClass));
    return text;
}

}  // namespace maxhost
