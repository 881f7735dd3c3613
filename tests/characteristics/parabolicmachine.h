#pragma once

#include <machines/machinedata.h>

/// A machine that is easily solved by hand: head 1e-6 n^2 - q^2, efficiency 0.8, between lines of flow that grow with the
/// head. Its drive "D" has 2 kW for each turn a minute, and takes 100 kW and 2.5 times what it gives.
namespace ParabolicMachine {

inline TurboCompressor machine() {
  TurboCompressor m;
  m.name = QStringLiteral("M");
  m.drive = QStringLiteral("D");
  m.speedMin = 5000.0;
  m.speedMax = 9000.0;
  m.head = Biquadratic{{0, 0, 1e-6, 0, 0, 0, -1, 0, 0}};
  m.efficiency = Biquadratic{{0.8}};
  m.surge = Quadratic{{0, 30, 0}};
  m.choke = Quadratic{{0, 8, 0}};
  return m;
}

inline MachineData data() {
  MachineData d;
  d.turbos.push_back(machine());
  Drive drive;
  drive.name = QStringLiteral("D");
  drive.power = Biquadratic{{0, 2}};
  drive.energy = Quadratic{{100, 2.5, 0}};
  d.drives.push_back(drive);
  return d;
}

} // namespace ParabolicMachine
