#include <model/displayformat.h>
#include <model/names.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <machines/compression.h>

namespace {

constexpr double KiloPascalPerBar = 100.0;
constexpr double NormFlowsPerSecond = 1000.0 / 3600.0; // from 1000 m3/h

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(Compression)
};

double value(const NetData &net, const element &e, const char *property) {
  const double number = net.value(e, PropertyKey::find(property));
  return number == NetData::NoValue ? 0.0 : number;
}

/// That feeds the drive, where the compressor or its drive name one.
const element *fuelNode(const NetData &net, const element &compressor) {
  const PropertyKey property = PropertyKey::find("gasnode");
  if (const element *own = net.nodes().find(compressor.value(property)))
    return own;
  const element *drive = net.nodes().find(compressor.value(Names::all().drive));
  return drive == nullptr ? nullptr : net.nodes().find(drive->value(property));
}

void judgeDensity(Compression &c) {
  constexpr double Near = 0.01;
  const double computed = c.gas->at(c.inletPressure, c.inletTemperature).density;
  if (c.inletDensity > 0.0 && std::abs(c.inletDensity / computed - 1.0) > Near)
    c.remarks.append(
        Texts::tr("The density %1 kg/m³ that the network states at the inlet parts from that of the gas law, %2 kg/m³")
            .arg(DisplayFormat::number(c.inletDensity, 5), DisplayFormat::number(computed, 5)));
}

} // namespace

std::optional<Compression> Compression::of(const NetData &net, const element &compressor, const GasSource &gases) {
  const element *inlet = net.nodes().find(compressor.value(Names::all().node1));
  const element *outlet = net.nodes().find(compressor.value(Names::all().node2));
  if (inlet == nullptr || outlet == nullptr)
    return std::nullopt;
  Compression c;
  const double losses = std::max(0.0, value(net, compressor, "dpin"));
  c.inletPressure = value(net, *inlet, "p") - losses;
  const double outside = value(net, *outlet, "p");
  c.outletPressure = outside + std::max(0.0, value(net, compressor, "dpout"));
  c.inletTemperature = gases.temperatureAt(*inlet, &c.remarks);
  const double stated = value(net, *inlet, "rho");
  if (stated > 0.0 && c.inletPressure > 0.0)
    c.inletDensity = stated * c.inletPressure / (c.inletPressure + losses);
  const GasSource::Gas gas = gases.at(*inlet);
  c.gas = gas.law;
  c.gasOrigin = gas.origin;
  const element *fuel = fuelNode(net, compressor);
  c.fuelValue = fuel == nullptr ? gas.fuelValue : gases.at(*fuel).fuelValue;
  c.massFlow = value(net, compressor, "m");
  if (c.massFlow == 0.0)
    c.massFlow = value(net, compressor, "q") * NormFlowsPerSecond * gas.normDensity;
  c.isReversed = c.massFlow < 0.0;
  c.massFlow = std::abs(c.massFlow);
  if (!(c.massFlow > 0.0 && c.inletPressure > 0.0 && outside > 0.0))
    return std::nullopt;
  c.remarks += c.gas->remarks();
  judgeDensity(c);
  return c;
}

double Compression::density() const {
  return inletDensity > 0.0 ? inletDensity : gas->at(inletPressure, inletTemperature).density;
}

double Compression::realGasFactor() const {
  const GasLaw::State state = gas->at(inletPressure, inletTemperature);
  return inletDensity > 0.0 ? state.realGasFactor * state.density / inletDensity : state.realGasFactor;
}

double Compression::volumeFlow() const {
  return massFlow / density();
}

double Compression::exponent() const {
  const GasLaw::State inlet = gas->at(inletPressure, inletTemperature);
  constexpr double Flat = 1e-6; // ratios nearer to 1 tell no mean
  const auto behind = gas->temperatureByEntropy(outletPressure, inlet.entropy);
  if (std::abs(ratio() - 1.0) < Flat || !behind)
    return inlet.exponent;
  const double work = inletPressure * KiloPascalPerBar / inlet.density;
  const double wanted = (gas->at(outletPressure, *behind).enthalpy - inlet.enthalpy) / work;
  if (!std::isfinite(wanted))
    return inlet.exponent;
  // (ratio^k - 1) / k grows with k.
  double low = 0.01;
  double high = 0.7;
  constexpr int Halvings = 60;
  for (int i = 0; i < Halvings; ++i) {
    const double k = 0.5 * (low + high);
    ((std::pow(ratio(), k) - 1.0) / k > wanted ? high : low) = k;
  }
  return 1.0 / (1.0 - low);
}

double Compression::adiabaticHead(double meanExponent) const {
  const double kappa = meanExponent;
  const double k = (kappa - 1.0) / kappa;
  return inletPressure * KiloPascalPerBar / density() / k * (std::pow(ratio(), k) - 1.0);
}

double Compression::ratioOf(double head) const {
  const double kappa = exponent();
  const double k = (kappa - 1.0) / kappa;
  return std::pow(1.0 + head * k * density() / (inletPressure * KiloPascalPerBar), 1.0 / k);
}

std::optional<double> Compression::outletTemperature(double efficiency, double head) const {
  if (!(efficiency > 0.0))
    return std::nullopt;
  const double enthalpy = gas->at(inletPressure, inletTemperature).enthalpy + head / efficiency;
  return gas->temperatureByEnthalpy(outletPressure, enthalpy);
}

Compression Compression::withRatio(double flow, double ratio) const {
  Compression other = *this;
  other.massFlow = flow * density();
  other.isReversed = false;
  other.outletPressure = inletPressure * ratio;
  return other;
}

/// The ratio hardly changes the exponent, so that a few turns are enough.
Compression Compression::withHead(double flow, double head) const {
  constexpr int Turns = 8;
  constexpr double Near = 1e-12;
  Compression other = withRatio(flow, std::max(1.0, ratio()));
  for (int i = 0; i < Turns; ++i) {
    const double next = other.ratioOf(head);
    const bool isFound = !std::isfinite(next) || std::abs(next - other.ratio()) < Near * next;
    if (std::isfinite(next))
      other.outletPressure = inletPressure * next;
    if (isFound)
      break;
  }
  return other;
}
