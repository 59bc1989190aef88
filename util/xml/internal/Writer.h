#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "util/xml/Element.h"

namespace qvo::util::xml {

/// Writes one element tree as text. Keeps the open tags on a stack of its own; linear in the output.
class Writer {
  public:
    /// Both strings must outlive the writer.
    Writer(const std::string& newline, const std::string& indent) : newline_(newline), indent_(indent) {}

    std::string write(const Element& root, const std::string& prefix);

  private:
    struct OpenTag {
        const Element* element;
        std::size_t nextChild;
        bool laidOut;  ///< a child a line; false when the first child is a text
    };

    void begin(const Element& element);
    void beginChild(OpenTag& parent);
    void end();
    void writeStartTag(const Element& tag);
    void writeAttributeValue(const std::string& value);

    const std::string& newline_;
    const std::string& indent_;
    std::string prefix_;  ///< of the element written next: the given one and an indent per open tag
    std::string out_;
    std::vector<OpenTag> open_;
};

}  // namespace qvo::util::xml
