// Makes the compiler lay out every class of the boundary: a table is computed where an operation of its class
// is called. The program that compares the layouts reads what the compiler prints of them.

#include "core/AdaptorInterface.h"
#include "core/CoreObject.h"
#include "core/OptionGroup.h"
#include "util/Composite_Dynamic.h"
#include "util/Log.h"
#include "util/Message.h"
#include "util/MessageNode.h"
#include "util/ReturnValue.h"
#include "util/xml/Element.h"

using namespace qvo;

void layOut(zmx::CExtendable& x) {
    x.getExtensions();
}
void layOut(zmx::CNode& x) {
    x.show();
}
void layOut(zmx::core::CoreNode& x) {
    x.destroy();
}
void layOut(zmx::CSnapshot& x) {
    x.getTime();
}
void layOut(zmx::CSnapshot_Mesh& x) {
    x.getMesh();
}
void layOut(zmx::core::CoreNode::Snapshot_Mesh& x, util::ReturnValue<util::CMesh>& sink) {
    x.getMesh(sink);
}
void layOut(zmx::CSnapshot_Shape& x) {
    x.getCurve();
}
void layOut(zmx::CSnapshot_Lens& x) {
    x.getTime();
}
void layOut(zmx::CSnapshot_Helper& x) {
    x.setWireframe(true);
}
void layOut(zmx::CUndo& x) {
    x.redo();
}
void layOut(zmx::NodeListener& x) {
    x.removed(nullptr);
}
void layOut(zmx::core::Owner& x) {
    x.getName();
}
void layOut(zmx::core::OwnerList& x) {
    x.getOwners();
}
void layOut(zmx::core::AdaptorInterface& x) {
    x.redrawViews();
}
void layOut(zmx::core::CoreObject& x) {
    x.start();
}
void layOut(zmx::core::OptionElement& x) {
    x.getId();
}
void layOut(zmx::core::OptionCheck& x) {
    x.getValue();
}
void layOut(zmx::core::OptionGroup& x) {
    x.findElement(0);
}
void layOut(util::ReturnValue<util::CMesh>& x) {
    x.set({});
}
void layOut(util::CMesh& x) {
    x = util::CMesh();
}
void layOut(util::Message& x) {
    x.~Message();
}
void layOut(util::MessageNode& x) {
    x.getName();
}
void layOut(util::SingletonReference& x) {
    x.release();
}
void layOut(util::Log& x) {
    x.log({}, 0);
}
void layOut(util::xml::Element& x) {
    x.setValue({});
}
