#include "samples/mocap_core/PropBuilder.h"

#include <stdexcept>
#include <utility>

#include "samples/mocap_core/BorrowedSnapshot.h"
#include "samples/mocap_core/FileError.h"
#include "samples/mocap_core/FilePath.h"
#include "samples/mocap_core/TakeChange.h"
#include "samples/mocap_core/TakeNames.h"

namespace qvo::zmx::mocap {

namespace {

constexpr double kTakeStart = 0.0;  // seconds

Matrix4 scaling(double factor) {
    return {{{factor, 0, 0, 0}, {0, factor, 0, 0}, {0, 0, factor, 0}, {0, 0, 0, 1}}};
}

}  // namespace

void addProp(core::AdaptorInterface& adaptor, Take& take, const PreparedProp& prop) {
    FileError::concerning(prop.path, [&] {
        TakeRecord record = take.record();
        const std::string joint = prop.joint.empty() ? record.joints.front() : prop.joint;
        core::CoreNode* const parent = take.node(joint);
        if (!parent) throw std::runtime_error("take \"" + record.name + "\" has no joint \"" + joint + "\"");
        const std::string name = uniqueNodeName(take, path::stem(prop.path));
        record.props.push_back({name, prop.path, joint});
        TakeChange::make(adaptor, take, std::move(record));

        core::CoreNode* const node = adaptor.createMeshNode(&take, name, parent, prop.mesh, &take);
        if (!node) throw std::runtime_error("the host made no node for the model");
        take.addNode(name, *node);
        if (!BorrowedSnapshot(*node, kTakeStart).setLocalTransform(scaling(prop.metresPerUnit)))
            throw std::runtime_error("the host refused the model's place at joint \"" + joint + "\"");
    });
}

}  // namespace qvo::zmx::mocap
