#include "samples/mocap_core/Take.h"

#include "samples/mocap_core/Guarded.h"
#include "util/xml/Tag.h"

namespace qvo::zmx::mocap {

void Take::writeState(util::xml::Element& masternodes) {
    guarded("writeState", [&] {
        util::xml::Tag masternode("masternode");
        util::xml::Element& plugin = masternode.addTag("ZMK_Plugin");
        plugin.addTextTag("name", record_.name);
        plugin.addChild(record_.toElement());
        masternode.addTag("parent");
        masternode.addTextTag("childindex", "0");
        masternodes.addChild(masternode);
    });
}

void Take::removed(core::CoreNode* node) {
    present_.erase(node);
}

void Take::restored(core::CoreNode* node) {
    guarded("restored", [&] { present_.insert(node); });
}

}  // namespace qvo::zmx::mocap
