#include <model/comparison.h>
#include <model/netmetadata.h>
#include <model/quantities.h>
#include <model/titles.h>
#include <model/units.h>

#include <algorithm>
#include <cmath>

namespace {

const QString DifferenceSuffix = QStringLiteral(".diff");
const QString RatioSuffix = QStringLiteral(".ratio");

/// In one order, whatever changes in the elements.
template <typename Visit>
void forEachElement(const NetData &net, const Visit &visit) {
  std::size_t index = 0;
  for (const elements *collection : {&net.nodes(), &net.edges(), &net.assembledSubnets(), &net.textBoxes()}) {
    for (const elements::Entry &entry : *collection)
      visit(entry, index++);
  }
}

/// What is left of two numbers that people would call the same is noise.
double difference(double value, double reference) {
  constexpr double Noise = 1e-12;
  const double found = value - reference;
  return std::abs(found) <= Noise * std::max(std::abs(value), std::abs(reference)) ? 0.0 : found;
}

PropertyText textOf(double number) {
  constexpr int Digits = 8; // as many as fit into the element itself, and more than scenarios tell
  return PropertyText::ofNumber(number, Digits);
}

/// Of a difference only the factor of a unit counts, which its quantity says.
QString quantityOfDifference(const NetMetaData::Attribute &row) {
  QString own = row.quantity + QStringLiteral(" difference");
  if (Quantities::find(own) != nullptr)
    return own;
  const auto isIn = [&row](const char *unit) {
    return Units::conversion(row.displayUnit.isEmpty() ? row.storedUnit : row.displayUnit, QLatin1String(unit)).has_value();
  };
  if (row.quantity.isEmpty() && !row.storedUnit.isEmpty() && isIn("K"))
    return QStringLiteral("temperature difference");
  if (row.quantity.isEmpty() && !row.storedUnit.isEmpty() && isIn("bar"))
    return QStringLiteral("pressure difference");
  return row.quantity;
}

} // namespace

Comparison::Kind Comparison::kindOf(const QString &property) {
  if (property.endsWith(DifferenceSuffix, Qt::CaseInsensitive))
    return Kind::Difference;
  return property.endsWith(RatioSuffix, Qt::CaseInsensitive) ? Kind::Ratio : Kind::None;
}

QString Comparison::property(const QString &compared, Kind kind) {
  if (kind == Kind::None)
    return compared;
  return compared + (kind == Kind::Difference ? DifferenceSuffix : RatioSuffix);
}

QString Comparison::compared(const QString &property) {
  switch (kindOf(property)) {
  case Kind::Difference:
    return property.chopped(DifferenceSuffix.size());
  case Kind::Ratio:
    return property.chopped(RatioSuffix.size());
  case Kind::None:
    break;
  }
  return property;
}

void Comparison::takeReference(const NetData &net, const NetData &reference) {
  const std::size_t count = net.nodes().size() + net.edges().size() + net.assembledSubnets().size() + net.textBoxes().size();
  std::vector<std::size_t> columns; // by spelling, one more than the index; 0 for those not met yet
  m_columns.clear();
  const auto columnOf = [&](PropertyKey key) {
    if (key.index() >= columns.size())
      columns.resize(key.index() + 1, 0);
    if (columns[key.index()] != 0)
      return columns[key.index()] - 1;
    auto found = std::find_if(m_columns.begin(), m_columns.end(), [key](const Column &one) { return one.property == key; });
    if (found == m_columns.end())
      found = m_columns.insert(found, Column{key, {}});
    columns[key.index()] = static_cast<std::size_t>(found - m_columns.begin()) + 1;
    return columns[key.index()] - 1;
  };
  forEachElement(net, [&](const elements::Entry &entry, std::size_t index) {
    const element *of = &net == &reference ? &entry.value : reference.element(entry.id.utf8());
    for (const Property &property : of == nullptr ? element() : *of) {
      const double number = NetData::number(&property.value);
      if (number == NetData::NoValue)
        continue;
      std::vector<double> &values = m_columns[columnOf(property.key)].values;
      if (values.empty())
        values.assign(count, NetData::NoValue);
      values[index] = number;
    }
  });
  const auto isComparison = [](const Column &column) {
    return kindOf(column.property.name()) != Kind::None;
  };
  m_columns.erase(std::remove_if(m_columns.begin(), m_columns.end(), isComparison), m_columns.end());
}

void Comparison::remove(NetData &net) {
  if (m_written.empty())
    return;
  forEachElement(net, [this](const elements::Entry &entry, std::size_t) {
    for (const PropertyKey key : m_written)
      entry.value.erase(key);
  });
  m_written.clear();
  describe(net, {}, QString());
}

void Comparison::apply(NetData &net, const std::set<PropertyKey> &properties, const QString &reference) {
  remove(net);
  std::vector<Keys> keys;
  for (const Column &column : m_columns) {
    if (properties.count(column.property) == 0)
      continue;
    const QString name = column.property.name();
    keys.push_back({column.property, PropertyKey::intern(property(name, Kind::Difference)),
                    PropertyKey::intern(property(name, Kind::Ratio)), &column});
  }
  forEachElement(net, [&keys](const elements::Entry &entry, std::size_t index) {
    element &e = entry.value;
    for (const Keys &key : keys) {
      const double before = key.column->values[index];
      const double now = before == NetData::NoValue ? before : NetData::number(e.find(key.property));
      if (now == NetData::NoValue)
        continue;
      e.set(key.difference, textOf(difference(now, before)));
      if (before != 0.0)
        e.set(key.ratio, textOf(now / before));
    }
  });
  for (const Keys &key : keys) {
    m_written.push_back(key.difference);
    m_written.push_back(key.ratio);
  }
  describe(net, keys, reference);
}

void Comparison::describe(NetData &net, const std::vector<Keys> &keys, const QString &reference) const {
  auto described = std::make_shared<NetMetaData>();
  std::vector<NetMetaData::Attribute> rows;
  for (const NetMetaData::Attribute &row : net.metaData()->attributes()) {
    if (kindOf(row.property) == Kind::None)
      described->add(row);
  }
  for (const Keys &key : keys) {
    const QString name = key.property.name();
    for (const NetMetaData::Attribute &row : net.metaData()->attributes()) {
      if (row.property.compare(name, Qt::CaseInsensitive) == 0)
        rows.push_back(row);
    }
    if (net.metaData()->anyAttribute(name) == nullptr)
      rows.push_back(
          {QStringLiteral("*"), name, name, QStringLiteral("extra"), {}, {}, QStringLiteral("comparison"), false, {}, {}});
  }
  for (NetMetaData::Attribute row : rows) {
    const QString title = Titles::of(row);
    row.favourite = false;
    row.values.clear();
    const NetMetaData::Attribute compared = row;
    row.property = property(compared.property, Kind::Difference);
    row.longName = tr("%1: difference to %2").arg(title, reference);
    row.description = tr("%1 less that of the scenario %2").arg(title, reference);
    row.quantity = quantityOfDifference(compared);
    described->add(row);
    row.property = property(compared.property, Kind::Ratio);
    row.longName = tr("%1: ratio to %2").arg(title, reference);
    row.description = tr("%1 by that of the scenario %2").arg(title, reference);
    row.quantity.clear();
    row.storedUnit.clear();
    row.displayUnit.clear();
    described->add(row);
  }
  net.setMetaData(described);
}
