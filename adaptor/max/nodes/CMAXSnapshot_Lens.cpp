#include "adaptor/max/nodes/CMAXSnapshot_Lens.h"

#include "adaptor/max/Boundary.h"

namespace qvo::zmx::adaptor::max {
namespace {

constexpr double kRadiansPerDegree = 0.017453292519943295;
constexpr double kDegreesPerRadian = 57.29577951308232;

}  // namespace

void CMAXNode::CMAXSnapshot_Lens::setFieldOfView(double degrees) {
    guarded("setFieldOfView", [&] {
        if (GenCamera* const camera = usableObject())
            camera->SetFOV(ticks, static_cast<float>(degrees * kRadiansPerDegree));
    });
}

double CMAXNode::CMAXSnapshot_Lens::getFieldOfView() {
    return guarded("getFieldOfView", 0.0, [&] {
        GenCamera* const camera = usableObject();
        Interval valid(0, 0);
        return camera ? camera->GetFOV(ticks, valid) * kDegreesPerRadian : 0.0;
    });
}

int CMAXNode::CMAXSnapshot_Lens::getFieldOfViewType() {
    return guarded("getFieldOfViewType", 0, [&] {
        GenCamera* const camera = usableObject();
        return camera ? camera->GetFOVType() : 0;
    });
}

void CMAXNode::CMAXSnapshot_Lens::setFieldOfViewType(int type) {
    guarded("setFieldOfViewType", [&] {
        if (type != FOV_W && type != FOV_H && type != FOV_D) return;
        if (GenCamera* const camera = usableObject()) camera->SetFOVType(type);
    });
}

void CMAXNode::CMAXSnapshot_Lens::setTargetDistance(double distance) {
    guarded("setTargetDistance", [&] {
        if (GenCamera* const camera = usableObject()) camera->SetTDist(ticks, static_cast<float>(distance));
    });
}

double CMAXNode::CMAXSnapshot_Lens::getTargetDistance() {
    return guarded("getTargetDistance", 0.0, [&] {
        GenCamera* const camera = usableObject();
        Interval valid(0, 0);
        return camera ? static_cast<double>(camera->GetTDist(ticks, valid)) : 0.0;
    });
}

}  // namespace qvo::zmx::adaptor::max
