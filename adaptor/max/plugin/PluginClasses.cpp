#include "adaptor/max/plugin/PluginClasses.h"

#include "adaptor/max/plugin/HelperClassDesc.h"
#include "adaptor/max/plugin/ScalarControlClassDesc.h"
#include "adaptor/max/plugin/TransformControlClassDesc.h"
#include "adaptor/max/plugin/UtilityClassDesc.h"
#include "adaptor/max/plugin/UtilityObjClassDesc.h"

namespace qvo::zmx::adaptor::max {

namespace {

constexpr int kClassCount = 5;

}  // namespace

const TCHAR* pluginDescription() {
    return "Zorva Kestrel Studio v9.2";
}

int numberOfClasses() {
    return kClassCount;
}

ClassDesc* classDescriptor(int index) {
    static UtilityClassDesc utility;
    static HelperClassDesc helper;
    static TransformControlClassDesc transformControl;
    static ScalarControlClassDesc scalarControl;
    static UtilityObjClassDesc utilityObj;

    ClassDesc* const descriptors[kClassCount] = {&utility, &utilityObj, &helper, &transformControl,
                                                 &scalarControl};
    return index >= 0 && index < kClassCount ? descriptors[index] : nullptr;
}

ULONG hostVersion() {
    return VERSION_3DSMAX;
}

}  // namespace qvo::zmx::adaptor::max
