#include <model/displayformat.h>
#include <model/netmetadata.h>

#include <QCoreApplication>

#include <array>
#include <cmath>
#include <machines/machinelimits.h>
#include <memory>

namespace {

constexpr double Percent = 100.0;
constexpr double MegawattsPerKilowatt = 1e-3;
constexpr int Digits = 10;

struct Limit {
  const char *property;
  const char *name;
  const char *description;
  const char *unit;
  const char *quantity;
  std::optional<double> MachineMargins::*margin;
  double factor; ///< to the unit
};

constexpr std::array<Limit, 5> Limits{
    {{"surgemargin", QT_TRANSLATE_NOOP("Attribute", "distance to surge"),
      QT_TRANSLATE_NOOP("Attribute",
                        "How much less flow brings the machine to its surge line at the same speed, in percent of "
                        "the flow; negative beyond the line; of a station that of the machine with the least"),
      "%", "", &MachineMargins::surge, Percent},
     {"turndown", QT_TRANSLATE_NOOP("Attribute", "turndown"),
      QT_TRANSLATE_NOOP("Attribute",
                        "How much less flow brings the machine to its surge line at the same head, in percent of "
                        "the flow; negative beyond the line; of a station that of the machine with the least"),
      "%", "", &MachineMargins::turndown, Percent},
     {"chokemargin", QT_TRANSLATE_NOOP("Attribute", "distance to choke"),
      QT_TRANSLATE_NOOP("Attribute",
                        "How much more flow brings the machine to its choke line at the same speed, in percent of "
                        "the flow; negative beyond the line; of a station that of the machine with the least"),
      "%", "", &MachineMargins::choke, Percent},
     {"speedreserve", QT_TRANSLATE_NOOP("Attribute", "speed reserve"),
      QT_TRANSLATE_NOOP("Attribute",
                        "How much faster the machine may turn, in percent of its largest speed; negative above it; "
                        "of a station that of the machine with the least"),
      "%", "", &MachineMargins::speed, Percent},
     {"powerreserve", QT_TRANSLATE_NOOP("Attribute", "power reserve"),
      QT_TRANSLATE_NOOP("Attribute",
                        "Largest power of the drive at this speed and ambient temperature less the power at the "
                        "shaft; of a station that of the machine with the least"),
      "MW", "power", &MachineMargins::power, MegawattsPerKilowatt}}};

} // namespace

/// Drives have the last two.
void MachineLimits::describe() {
  constexpr std::size_t OfDrives = 3;
  if (m_written.empty() ||
      m_net.metaData()->attribute(QStringLiteral("c"), QLatin1String(Limits.front().property)) != nullptr)
    return;
  auto metaData = std::make_shared<NetMetaData>(*m_net.metaData());
  for (std::size_t i = 0; i < Limits.size(); ++i) {
    NetMetaData::Attribute row;
    row.property = QLatin1String(Limits[i].property);
    row.longName = QLatin1String(Limits[i].name);
    row.description = QLatin1String(Limits[i].description);
    row.group = QStringLiteral("results");
    row.storedUnit = row.displayUnit = QLatin1String(Limits[i].unit);
    row.category = QStringLiteral("function");
    row.quantity = QLatin1String(Limits[i].quantity);
    for (const char *type : {"c", "d"}) {
      row.type = QLatin1String(type);
      if (row.type == QLatin1String("c") || i >= OfDrives)
        metaData->add(row);
    }
  }
  m_net.setMetaData(metaData);
}

std::vector<ElementChange> MachineLimits::write(const std::vector<NetworkMachines::Nearness> &machines) {
  auto before = std::move(m_written);
  m_written.clear();
  std::vector<ElementChange> changes(Limits.size());
  for (std::size_t i = 0; i < Limits.size(); ++i) {
    const Limit &limit = Limits[i];
    const auto property = machines.empty() ? PropertyKey::find(limit.property) : PropertyKey::intern(limit.property);
    changes[i].property = property;
    for (const NetworkMachines::Nearness &machine : machines) {
      const std::optional<double> &margin = machine.margins.*limit.margin;
      element *target = m_net.element(machine.element);
      const bool isOurs = before.erase({machine.element, i}) > 0;
      if (target == nullptr || !(margin && std::isfinite(*margin)) || (!isOurs && target->find(property) != nullptr)) {
        if (isOurs)
          before.insert({machine.element, i}); // to go
        continue;
      }
      const PropertyText text = PropertyText::ofNumber(*margin * limit.factor, Digits);
      const PropertyText *present = target->find(property);
      if (present == nullptr || *present != text) {
        target->set(property, text);
        changes[i].elements.append(machine.element);
      }
      m_written.insert({machine.element, i});
    }
  }
  for (const auto &[name, i] : before) {
    element *target = m_net.element(name);
    if (target != nullptr && target->erase(changes[i].property))
      changes[i].elements.append(name);
  }
  describe();
  return changes;
}
