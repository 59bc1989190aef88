// The smallest core that does something: its start button makes one helper node, as one undo step.

#include "core/AdaptorInterface.h"
#include "core/ReservedSlots.h"
#include "util/xml/Tag.h"

#ifdef _WIN32
#define CORE_EXPORT extern "C" __declspec(dllexport)
#else
#define CORE_EXPORT extern "C" __attribute__((visibility("default")))
#endif

namespace {

namespace core = qvo::zmx::core;
namespace xml = qvo::util::xml;

class MinimalCore final : public core::ReservedSlots, private core::Owner {
  public:
    explicit MinimalCore(core::AdaptorInterface& adaptor) : adaptor_(adaptor) {}
    virtual ~MinimalCore() = default;

    void openStudio(void* /*mainWindow*/) override {
        adaptor_.beginUndoGroup("Make a marker");
        if (core::CoreNode* const node = adaptor_.createHelperNode(this, "marker", nullptr, nullptr))
            made_ = node->getName();
        adaptor_.endUndoGroup();
    }
    void saveState(xml::Element& state) override {
        if (made_.empty()) return;
        xml::Tag made("made");
        made.attributes["name"] = made_;
        state.addChild(made);
    }
    void loadState(xml::Element& /*state*/) override {}
    void sceneClosing() override { made_.clear(); }
    void timeChanged(double /*seconds*/) override {}
    bool queryEvent(const void* /*notification*/) override { return false; }
    void handleEvent() override {}
    void start() override {}
    void setOption(unsigned int /*id*/, unsigned int /*value*/) override {}
    void optionChanged(unsigned int /*id*/, const void* /*value*/) override {}

  private:
    const std::string& getName() override { return name_; }
    void writeState(xml::Element& /*masternodes*/) override {}

    core::AdaptorInterface& adaptor_;
    const std::string name_ = "minimal";
    std::string made_;
};

}  // namespace

CORE_EXPORT unsigned int getVersion() {
    return 9201;
}

CORE_EXPORT core::CoreObject* attach(core::AdaptorInterface* adaptor) {
    if (adaptor == nullptr || adaptor->getAdaptorVersion() != getVersion()) return nullptr;
    return new MinimalCore(*adaptor);
}

CORE_EXPORT void detach(core::CoreObject* core) {
    delete static_cast<MinimalCore*>(core);
}
