#include "style/boundload.h"

#include <model/netdata.h>

#include <cmath>

namespace {

constexpr double Percent = 100.0;

struct Keys {
  PropertyKey flow = PropertyKey::intern("q");
  PropertyKey leastFlow = PropertyKey::intern("qmin");
  PropertyKey mostFlow = PropertyKey::intern("qmax");
  PropertyKey pressure = PropertyKey::intern("p");
  PropertyKey leastPressure = PropertyKey::intern("pmin");
  PropertyKey mostPressure = PropertyKey::intern("pmax");

  static const Keys &all() {
    static const Keys keys;
    return keys;
  }
};

double numberOf(const element &source, PropertyKey property) {
  return NetData::number(source.find(property));
}

} // namespace

bool BoundLoad::isKnown() {
  const auto isThere = [](const char *name) {
    return !PropertyKey::find(name).isNull();
  };
  return (isThere("q") && isThere("qmax")) || (isThere("p") && isThere("pmin") && isThere("pmax"));
}

double BoundLoad::ofEdge(const element &edge) {
  const double flow = numberOf(edge, Keys::all().flow);
  double bound = numberOf(edge, Keys::all().mostFlow);
  if (flow < 0.0) {
    const double backwards = numberOf(edge, Keys::all().leastFlow);
    bound = backwards != NetData::NoValue && backwards < 0.0 ? -backwards : bound; // else as large as forwards
  }
  if (flow == NetData::NoValue || !(bound > 0.0))
    return NetData::NoValue;
  return Percent * std::abs(flow) / bound;
}

double BoundLoad::ofNode(const element &node) {
  const double pressure = numberOf(node, Keys::all().pressure);
  const double least = numberOf(node, Keys::all().leastPressure);
  const double most = numberOf(node, Keys::all().mostPressure);
  if (pressure == NetData::NoValue || least == NetData::NoValue || !(most > least))
    return NetData::NoValue;
  const double middle = least * 0.5 + most * 0.5;
  return Percent * std::abs(pressure - middle) / (most - middle);
}
