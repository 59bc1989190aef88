#include "adaptor/max/services/StateBuilder.h"

#include <algorithm>

namespace qvo::zmx::adaptor::max {

using util::xml::Element;

namespace {

/// A builder that has been rendered but for its children, and where it was rendered.
struct Rendered {
    const StateBuilder* builder;
    Element* place;
};

}  // namespace

std::vector<StateBuilder*> StateBuilder::childrenInOrder() const {
    std::vector<StateBuilder*> ordered = getChildren();
    std::stable_sort(ordered.begin(), ordered.end(), [](const StateBuilder* a, const StateBuilder* b) {
        return a->childIndex < b->childIndex;
    });
    return ordered;
}

template <class Append>
void StateBuilder::appendChildren(Element& out, Append append) const {
    std::vector<Rendered> pending{{this, &out}};
    while (!pending.empty()) {
        const Rendered parent = pending.back();
        pending.pop_back();
        for (StateBuilder* const child : parent.builder->childrenInOrder())
            pending.push_back({child, &append(*parent.place, child->element)});
    }
}

void StateBuilder::render(Element& out) const {
    out = element;
    appendChildren(out,
                   [](Element& place, const Element& state) -> Element& { return place.addChild(state); });
}

Element StateBuilder::renderAndEmpty() {
    Element out = std::move(element);
    appendChildren(
        out, [](Element& place, Element& state) -> Element& { return place.adoptChild(std::move(state)); });
    return out;
}

}  // namespace qvo::zmx::adaptor::max
