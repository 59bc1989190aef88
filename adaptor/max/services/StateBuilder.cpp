#include "adaptor/max/services/StateBuilder.h"

#include <algorithm>
#include <utility>
#include <vector>

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

void StateBuilder::render(Element& out) const {
    out = element;
    std::vector<Rendered> pending{{this, &out}};
    while (!pending.empty()) {
        const Rendered parent = pending.back();
        pending.pop_back();
        for (const StateBuilder* const child : parent.builder->childrenInOrder())
            pending.push_back({child, &parent.place->addChild(child->element)});
    }
}

Element StateBuilder::renderAndEmpty() {
    Element out = std::move(element);
    std::vector<Rendered> pending{{this, &out}};
    while (!pending.empty()) {
        const Rendered parent = pending.back();
        pending.pop_back();
        for (StateBuilder* const child : parent.builder->childrenInOrder())
            pending.push_back({child, &parent.place->adoptChild(std::move(child->element))});
    }
    return out;
}

}  // namespace qvo::zmx::adaptor::max
