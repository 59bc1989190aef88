#pragma once

#include "util/xml/Data.h"

namespace qvo::util::xml {

/// A tag whose only child is `data`: TagWithData("type", "x") writes as <type>x</type>.
class TagWithData : public Element {
  public:
    TagWithData(const std::string& name, const std::string& data) : Element(kTag, name) {
        adoptChild(Data(data));
    }
};

}  // namespace qvo::util::xml
