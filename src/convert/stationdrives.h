#pragma once

#include "gaslibnetwork.h"
#include "gaslibstations.h"

#include <vector>

/// Gives compressors their machines.
namespace StationDrives {

/// The drives of all stations as elements, several of one behind one another; the compressors are told of theirs. Stations
/// that the network lacks are told.
std::vector<NetworkRecord> make(GasLibNetwork &net, GasLibStations &machines);

} // namespace StationDrives
