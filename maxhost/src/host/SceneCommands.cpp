#include "maxhost/src/host/SceneCommands.h"

#include <hold.h>
#include <notify.h>

#include <cstdint>

#include "maxhost/src/scene/Timing.h"
#include "maxhost/src/scene/Units.h"
#include "maxhost/src/undo/UndoRecorder.h"

namespace maxhost {

namespace {

/// Replaces the node's transform controller by one without animation, at the place where the node is at `t`.
void dropAnimation(Node& node, TimeValue t) {
    Matrix3 tm = node.GetNodeTM(t);
    node.SetTMController(NewDefaultMatrix3Controller());
    node.SetNodeTM(t, tm);
}

}  // namespace

bool SceneCommands::newScene(NewOption option) {
    std::int32_t parameter = option;
    BroadcastNotification(NOTIFY_SYSTEM_PRE_NEW, &parameter);
    if (option == kKeepObjects || option == kKeepObjectsAndHierarchy) {
        const HoldSuspend unrecorded;
        UndoRecorder::instance().flush();
        host_.scene().selection().clear();
        const TimeValue t = Timing::instance().time();
        for (Node* node : host_.scene().nodesInOrder()) {
            if (option == kKeepObjects) node->Detach(t, 1);
            dropAnimation(*node, t);
        }
    } else {
        host_.replaceScene(std::make_unique<Scene>());
    }
    BroadcastNotification(NOTIFY_SYSTEM_POST_NEW, &parameter);
    return true;
}

bool SceneCommands::reset() {
    BroadcastNotification(NOTIFY_SYSTEM_PRE_RESET);
    host_.replaceScene(std::make_unique<Scene>());
    Timing::instance().setDefaults();
    Units::instance().setDefaults();
    BroadcastNotification(NOTIFY_SYSTEM_POST_RESET);
    return true;
}

}  // namespace maxhost
