#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace qvo::util::xml {

/// The one node type of an XML document held in memory: 8-bit text, numeric character references only, no
/// namespaces, no DTD. Any depth of nesting is fine: nothing here recurses.
///
/// Ownership: an element owns its `children` and deletes them; none is null and each was made by `new
/// Element`. Reading through the vector is free to all; to change it use the operations.
///
/// Two modules: an element made by the other module (plug-in or core) is changed only through assign,
/// setValue and addChild and the helpers built on them (addTag, addTextTag), which allocate where the element
/// lives. There is no virtual destructor; derived classes add no fields.
class Element {
  public:
    enum Kind : std::uint32_t { kNothing = 0, kTag = 1, kText = 2, kComment = 4 };

    /// Results of parse, read and readFile.
    enum ParseResult : int {
        kParsed = 0,
        kFileNotOpened = 1,
        kNoElement = 2,  ///< no token, the first is no start tag, or an end tag where an element should start
        kUnclosed = 3,   ///< the text ran out before an element's end tag
        kWrongEndTag = 4,  ///< an end tag that differs from the open element's name
        kMalformed = 5,    ///< a malformed attribute list, or nothing after the declaration
    };

    Element() = default;
    /// Parses `text`; whatever the parser filled before a fault stays, the result is not reported.
    explicit Element(const std::string& text);
    Element(const Element& other);
    Element(Element&& other) noexcept;
    Element& operator=(const Element& other) { return assign(other); }
    Element& operator=(Element&& other) noexcept;
    ~Element();

    /// Becomes a deep copy of `other`, which may be this element, a descendant or an ancestor.
    virtual Element& assign(const Element& other);  // slot 0
    /// Replaces `value` and returns it as stored.
    virtual const std::string& setValue(const std::string& text);  // slot 1
    /// Appends a deep copy of `child` (which may be this element) and returns the copy.
    virtual Element& addChild(const Element& child);  // slot 2

    /// Removes attributes, children and value; `kind` stays.
    void clear();

    // Reading. The element is cleared first. On a fault the element keeps what was complete by then: its own
    // name and attributes and those children that had been read to their end.
    /// `text` may lie in this element.
    int parse(const std::string& text);
    /// Line ends, with or without a carriage return, are dropped, not turned into blanks.
    int read(std::istream& stream);
    int readFile(const std::string& path);

    // Writing.
    /// `newline` and `indent` lay out tags whose first child is no text; `prefix` starts the first line.
    /// No newline follows the last closing tag. All empty: one line.
    std::string toString(const std::string& newline = std::string(),
                         const std::string& indent = std::string(),
                         const std::string& prefix = std::string()) const;
    /// An XML declaration and the element, one tag a line, indented by tabs. False if it cannot be written.
    bool writeFile(const std::string& path) const;

    /// Keeps ASCII letters, digits, blanks and punctuation except "&" and "<"; every other byte becomes a
    /// decimal reference ("&#38;"). Quotes and ">" stay, so a ">" in an attribute value does not read back.
    static std::string escape(const std::string& text);
    /// Resolves "&#38;" and "&#x26;" to one byte (modulo 256). The one character after the digits is skipped,
    /// whatever it is; a reference without digits adds nothing; named entities stay as they are.
    static std::string unescape(const std::string& text);

    // Helpers for callers.
    /// The first child that is a tag named `name`, or null.
    const Element* findTag(const std::string& name) const;
    Element* findTag(const std::string& name);
    /// The value of the first child that is a text, or an empty string.
    const std::string& text() const;
    /// text() of the first child tag named `name`, or an empty string.
    const std::string& textOf(const std::string& name) const;
    std::string attribute(const std::string& name, const std::string& fallback = std::string()) const;
    /// Appends a tag without content and returns it.
    Element& addTag(const std::string& name);
    /// Appends a tag whose only child is `text` and returns the tag.
    Element& addTextTag(const std::string& name, const std::string& text);
    /// Appends `child` by moving its contents; for elements of this module. Returns the appended element.
    Element& adoptChild(Element&& child);
    /// Takes the child at `index` (below children.size()) out and returns it; for elements of this module.
    Element takeChild(std::size_t index);

    std::map<std::string, std::string> attributes;  ///< written in ascending byte order of the names
    std::vector<Element*> children;                 ///< document order; owned
    std::string value;                              ///< a tag's name, a text's or comment's text
    std::uint32_t kind = kNothing;                  ///< a Kind; any other writes as nothing

  protected:
    Element(Kind elementKind, const std::string& elementValue);

  private:
    friend class Parser;

    Element& appendOwned(std::unique_ptr<Element> child);
    void copyInto(Element& target) const;
    void swap(Element& other) noexcept;
    void destroyChildren() noexcept;
};

}  // namespace qvo::util::xml
