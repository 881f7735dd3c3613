#include <machines/machinemargins.h>

namespace {

std::optional<double> reserve(double speed, double largest) {
  return largest > 0.0 ? std::optional<double>((largest - speed) / largest) : std::nullopt;
}

/// The flow at which the surge line has the head; its rising branch counts.
std::optional<double> surgeFlow(const Quadratic &surge, double head) {
  for (const double flow : Fits::solve(surge, head)) {
    if (flow > 0.0 && surge.c[1] + 2.0 * surge.c[2] * flow > 0.0)
      return flow;
  }
  return std::nullopt;
}

} // namespace

MachineMargins MachineMargins::of(const TurboCompressor &machine, double flow, double head, double speed) {
  MachineMargins margins;
  margins.speed = reserve(speed, machine.speedMax);
  if (!(flow > 0.0))
    return margins;
  const auto flows = machine.flows(speed);
  if (machine.surge && flows)
    margins.surge = (flow - flows->first) / flow;
  if (machine.choke && flows)
    margins.choke = (flows->second - flow) / flow;
  if (const auto turned = machine.surge ? surgeFlow(*machine.surge, head) : std::nullopt)
    margins.turndown = (flow - *turned) / flow;
  return margins;
}

MachineMargins MachineMargins::of(const PistonCompressor &machine, double speed) {
  MachineMargins margins;
  margins.speed = reserve(speed, machine.speedMax);
  return margins;
}

void MachineMargins::takeNearer(const MachineMargins &other) {
  for (const auto margin : {&MachineMargins::surge, &MachineMargins::turndown, &MachineMargins::choke,
                            &MachineMargins::speed, &MachineMargins::power}) {
    std::optional<double> &own = this->*margin;
    const std::optional<double> &its = other.*margin;
    if (its && (!own || *its < *own))
      own = its;
  }
}
