#pragma once

namespace qvo::zmx::adaptor::max {

class UtilityManager;

/// Registers the handlers of the host's events, each with the manager as parameter. The handlers tell an
/// attached core and the adaptor what happens to the scene, and end the connection when the host exits.
void registerHostEvents(UtilityManager& manager);

/// Withdraws the registrations, except those for import and export: they stay for the life of the process,
/// and without a core their handlers do nothing.
void unregisterHostEvents(UtilityManager& manager);

}  // namespace qvo::zmx::adaptor::max
