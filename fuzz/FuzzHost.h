#pragma once

#include "adaptor/max/plugin/PluginClasses.h"
#include "adaptor/max/plugin/UtilityManager.h"
#include "adaptor/max/services/MaxAdaptorInterface.h"
#include "fuzz/Require.h"
#include "maxhost/HeadlessHost.h"
#include "maxhost/win32/Win32Session.h"
#include "util/SingletonCollector.h"

/// A fresh host that knows the plug-in's classes, and a fresh adaptor, for one input. At its end nothing may
/// be left, and the plug-in may not have broken the host's rules.
class FuzzHost {
  public:
    FuzzHost() {
        using namespace qvo::zmx::adaptor::max;
        maxhost::win32::Win32Session::setTickCount(1234);  // controllers store it when they are loaded
        for (int i = 0; i < numberOfClasses(); ++i)
            host.registerPluginClass(classDescriptor(i));
        UtilityManager::instance().options() = OptionStore();
    }

    ~FuzzHost() {
        qvo::zmx::adaptor::max::MaxAdaptorInterface::instance().letGoOfCore();
        host.exit();
        require(host.faults().empty(), "the host's rules are kept");
        qvo::util::SingletonCollector::destroyAll();
        maxhost::win32::Win32Session::reset();
    }

    maxhost::HeadlessHost host;
};
