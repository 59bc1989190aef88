#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "util/Composite_Dynamic.h"
#include "util/xml/Element.h"

namespace qvo::zmx::adaptor::max {

/// One saved component of the core on its way from the flat list of the tags into nested XML: its state, its
/// place among its parent's children, and its children. Owned by the gathering that made it.
class StateBuilder : public util::Composite_Dynamic<StateBuilder> {
  public:
    /// Takes the component's "ZMK_Plugin" element over.
    explicit StateBuilder(util::xml::Element&& state) : element(std::move(state)) {}

    void operate() override {}

    /// `out` becomes a copy of the state with the renderings of the children appended in ascending child
    /// index; equal indices keep the order of attaching. Any depth is fine; linear in the size of the result.
    void render(util::xml::Element& out) const;

    /// The same for a tree that is done with: moves the states out and leaves them empty.
    util::xml::Element renderAndEmpty();

    std::int32_t childIndex = 0;  ///< the place that the component asks for among its parent's children
    util::xml::Element element;   ///< the component's state

  private:
    std::vector<StateBuilder*> childrenInOrder() const;

    /// Puts the descendants' states below `out`; `append(place, state)` puts one there and returns it.
    template <class Append>
    void appendChildren(util::xml::Element& out, Append append) const;
};

}  // namespace qvo::zmx::adaptor::max
