#include <model/elementstate.h>
#include <model/names.h>
#include <model/subnetstate.h>
#include <model/topology.h>

namespace {

bool hasNumber(const element &e, const char *property) {
  return NetData::number(e.find(PropertyKey::find(property))) != NetData::NoValue;
}

bool isStation(const element &e) {
  const QString type = e.value(Names::all().type);
  return type == QLatin1String("c") || type == QLatin1String("r");
}

const element *mainElement(const NetData &net, const element &subnet) {
  const QString name = subnet.value(QStringLiteral("main_element"));
  if (!name.isEmpty()) {
    for (const QString &candidate : {name, subnet.value(Names::all().name) + QLatin1Char('_') + name}) {
      if (const element *found = net.element(candidate))
        return found;
    }
  }
  for (const QString &inner : Topology::listed(subnet, Names::all().elements)) {
    const element *found = net.element(inner);
    if (found != nullptr && isStation(*found))
      return found;
  }
  return nullptr;
}

/// What a station at work holds, by its word for it, else by the set points that it has.
QString controlOf(const element &station) {
  const QString control = station.value(QStringLiteral("control")).trimmed().toLower();
  const bool holdsPressure = hasNumber(station, "poutset") || hasNumber(station, "pinset") || hasNumber(station, "pset");
  const bool holdsFlow = hasNumber(station, "qset") || hasNumber(station, "mset");
  if (control.startsWith(QLatin1Char('p')) || (control.isEmpty() && holdsPressure && !holdsFlow))
    return QStringLiteral("pressure control");
  if (control.startsWith(QLatin1Char('q')) || control.startsWith(QLatin1Char('m')) ||
      control.contains(QLatin1String("flow")) || (control.isEmpty() && holdsFlow && !holdsPressure))
    return QStringLiteral("flow control");
  return QStringLiteral("maybe in control");
}

/// What the main element says.
QString derived(const NetData &net, const element &subnet) {
  const element *main = mainElement(net, subnet);
  if (main == nullptr)
    return QString();
  const PropertyText *said = main->find(Names::all().state);
  const QString state = said == nullptr ? QString() : said->toString().trimmed();
  const bool isAtWork = state.isEmpty() || ElementState::saysAtWork(said); // a station without a state works
  return isStation(*main) && isAtWork ? controlOf(*main) : state;
}

} // namespace

PropertyKey SubnetState::key() {
  static const PropertyKey key = PropertyKey::intern("substate");
  return key;
}

QString SubnetState::of(const NetData &net, const element &subnet) {
  const PropertyText *own = subnet.find(key());
  return own == nullptr ? derived(net, subnet) : own->toString();
}
