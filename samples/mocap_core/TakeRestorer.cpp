#include "samples/mocap_core/TakeRestorer.h"

#include <memory>
#include <utility>

#include "samples/mocap_core/FileError.h"
#include "samples/mocap_core/LentViews.h"
#include "samples/mocap_core/TakeNames.h"
#include "samples/mocap_core/state/ToolElement.h"
#include "util/Log.h"
#include "util/ReturnInto.h"
#include "util/xml/Tag.h"

namespace qvo::zmx::mocap {

using util::Log;
using util::logLine;
using util::xml::Element;

namespace {

constexpr std::size_t kNamesInMessage = 10;

std::string textFor(const std::vector<std::string>& names) {
    std::string text;
    for (std::size_t i = 0; i < names.size() && i < kNamesInMessage; ++i)
        text += (text.empty() ? "" : ", ") + FileError::printable(names[i]);
    return names.size() > kNamesInMessage ? text + ", ..." : text;
}

}  // namespace

void TakeRestorer::restore(const Element& root) {
    for (const Element* const child : root.children) {
        if (!TakeState::isTake(*child)) {
            logLine(Log::kWarning, "The scene holds a tool that this core does not know: ",
                    FileError::printable(child->toString()));
            continue;
        }
        if (std::optional<TakeState> state = TakeState::readFrom(*child))
            restoreTake(std::move(*state));
        else
            logLine(Log::kWarning, "A take in the scene cannot be read and is dropped: ",
                    FileError::printable(child->toString()));
    }
}

void TakeRestorer::restoreTake(TakeState state) {
    if (state.record.name.empty()) state.record.name = "take";
    const std::string name = TakeSet::uniqueName(state.record.name, names_);
    TakeRecord record = state.record;
    record.name = name;
    Take& take = takes_.add(std::make_unique<Take>(std::move(record)));

    const Claims claims = claimNodes(take, state);
    if (claims.claimed == 0) {
        takes_.remove(take);
        const std::string shown = FileError::printable(state.record.name);
        if (ids_.count(state.record.id) == 0)
            logLine(Log::kWarning, "Take \"", shown, "\" is dropped: none of its nodes is left");
        else
            logLine(Log::kNotice, "Take \"", shown, "\" is in the scene already");
        return;
    }
    take.noteSaved(state);
    ids_.insert(state.record.id);
    names_.insert(name);
    if (name != state.record.name) renameNodes(take, state.record.name);
    logLine(Log::kNotice, "Take \"", name, "\" is back with ", claims.claimed, " nodes");
    if (!claims.missing.empty())
        logLine(Log::kWarning, "Take \"", name, "\" is back without ", textFor(claims.missing));
    grid_.restore(take.record());
}

TakeRestorer::Claims TakeRestorer::claimNodes(Take& take, const TakeState& state) {
    std::vector<std::string> wanted;
    Claims claims;
    for (const std::string& name : state.record.nodeNames())
        (state.objects.count(name) != 0 ? wanted : claims.missing).push_back(name);
    const LentViews views(lookUp(state, wanted));
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        core::CoreNode* const view = i < views.all().size() ? views.all()[i] : nullptr;
        core::CoreNode* const node = view ? view->claim(&take, wanted[i]) : nullptr;
        if (node) {
            take.addNode(wanted[i], *node);
            ++claims.claimed;
        } else {
            claims.missing.push_back(wanted[i]);
        }
    }
    return claims;
}

std::vector<core::CoreNode*> TakeRestorer::lookUp(const TakeState& state,
                                                  const std::vector<std::string>& names) {
    util::xml::Tag request("lookup");
    for (const std::string& name : names)
        request.addTag("node").attributes["name"] = state.objects.at(name);
    std::vector<core::CoreNode*> views;
    util::ReturnInto<std::vector<core::CoreNode*>> sink(views);
    adaptor_.lookupNode(state.record.id, request, sink);
    return views;
}

}  // namespace qvo::zmx::mocap
