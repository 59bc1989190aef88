#include "adaptor/max/services/CSetTimeRestoreObj.h"

#include "adaptor/max/services/MaxAdaptorInterface.h"

namespace qvo::zmx::adaptor::max {

void CSetTimeRestoreObj::restore(bool isUndo) {
    core::AdaptorInterface& adaptor = MaxAdaptorInterface::instance();
    const double present = adaptor.getTime();
    adaptor.setTime(savedTime_);
    if (isUndo) savedTime_ = present;
}

}  // namespace qvo::zmx::adaptor::max
