#pragma once

#include <string>

namespace qvo::zmx::adaptor::max {

/// A folder of the installation, as the registry of the local machine names it ("path" of the product's key;
/// at most 1024 bytes). Slashes stay as they are, none is added at the end.
///
/// The keys "data", "plugin", "doc" and "prm" give that folder, "" and "zmx" the product's own, and any other
/// the bare value. Empty when the registry has no such text.
std::string installPath(const std::string& key);

/// The folder of the core library: below the installation, backslashes throughout, absolute-looking but
/// useless when there is no installation.
std::string coreFolder();

/// The product's folder among the user's documents; empty when the registry does not say where those are.
std::string documentsFolder();

/// The support switch: the file that the log is to be mirrored into, from the string value "log" beside
/// "path". An installation has no such value; support has users add it. Empty when it is absent.
std::string logMirrorFile();

}  // namespace qvo::zmx::adaptor::max
