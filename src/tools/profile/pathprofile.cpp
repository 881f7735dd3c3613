#include "profile/pathprofile.h"

#include <model/displayunits.h>
#include <model/elementstate.h>
#include <model/names.h>
#include <model/titles.h>

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

/// Positive from node1 to node2.
bool isDirected(const QString &property) {
  static const QStringList directed{QStringLiteral("q"),   QStringLiteral("m"),  QStringLiteral("v"),
                                    QStringLiteral("pow"), QStringLiteral("dp"), QStringLiteral("dt")};
  return directed.contains(property, Qt::CaseInsensitive);
}

QString withUnit(const QString &title, const QString &unit) {
  return unit.isEmpty() ? title : title + QStringLiteral(" [") + unit + QLatin1Char(']');
}

} // namespace

PathProfile::PathProfile(const NetData &net, const NetworkPath &path)
    : m_metaData(net.metaData()) {
  const DisplayUnits::Shown kilometres = DisplayUnits::of(QStringLiteral("length"), QStringLiteral("km"));
  m_lengthUnit = Units::written(kilometres.unit);
  if (path.isEmpty())
    return;
  const auto add = [this](const elements::Entry &entry, double from, double to, bool isNode, bool isForward) {
    const QString type = entry.value.value(Names::all().type);
    m_rows.push_back(
        {&entry, entry.name(), type, from, to, isNode, isForward, !isNode && ElementState::isOutOfUse(entry.value)});
    if (!m_byName.contains(entry.name()))
      m_byName.insert(entry.name(), toIndex(m_rows.size() - 1));
  };
  m_rows.reserve(2 * path.steps.size() + 1);
  add(*path.start, 0.0, 0.0, true, true);
  double sum = 0.0;
  for (const NetworkPath::Step &step : path.steps) {
    const double from = kilometres.toDisplay(sum);
    sum += step.length;
    const double to = kilometres.toDisplay(sum);
    add(*step.edge, from, to, false, step.isForward);
    add(*step.node, to, to, true, true);
  }
}

int PathProfile::stations() const {
  return static_cast<int>(
      std::count_if(m_rows.begin(), m_rows.end(), [](const Row &row) { return !row.isNode && !(row.to > row.from); }));
}

const Units::Linear &PathProfile::toDisplay(const QString &type, PropertyKey property) const {
  const QString key = type + QLatin1Char('\n') + property.name();
  auto known = m_conversions.constFind(key);
  if (known == m_conversions.constEnd()) {
    const NetMetaData::Attribute *attribute = m_metaData->attribute(type, property.name());
    known = m_conversions.insert(key, DisplayUnits::of(attribute).toDisplay);
  }
  return *known;
}

double PathProfile::stored(const Row &row, PropertyKey property) {
  const PropertyText *text = row.entry->value.find(property);
  return text == nullptr ? NetData::NoValue : NetData::number(text);
}

double PathProfile::value(const Row &row, const ProfileQuantity &quantity, PropertyKey property,
                          const ValueOf &valueOf) const {
  if (row.isNode != quantity.isOfNodes || property.isNull())
    return NetData::NoValue;
  const double found = valueOf(row, property);
  if (found == NetData::NoValue)
    return found;
  const double shown = toDisplay(row.type, property)(found);
  return row.isForward || !isDirected(property.name()) ? shown : -shown;
}

double PathProfile::value(const Row &row, const ProfileQuantity &quantity) const {
  return value(row, quantity, quantity.property, stored);
}

void PathProfile::addQuantities(const QStringList &types, bool ofNodes, std::vector<ProfileQuantity> &found) const {
  for (const NetMetaData::Attribute &attribute : m_metaData->attributes()) {
    const PropertyKey property = PropertyKey::find(attribute.property);
    if (attribute.category != QLatin1String("function") || property.isNull() ||
        (attribute.type != QLatin1String("*") && !types.contains(attribute.type)))
      continue;
    if (std::any_of(found.begin(), found.end(),
                    [&](const ProfileQuantity &known) { return known.property == property && known.isOfNodes == ofNodes; }))
      continue;
    const QString unit = Units::written(DisplayUnits::of(attribute).unit);
    ProfileQuantity quantity{property, withUnit(Titles::of(attribute), unit), withUnit(attribute.property, unit), unit,
                             ofNodes};
    const auto has = [this, &quantity](PropertyKey key) {
      return !key.isNull() && std::any_of(m_rows.begin(), m_rows.end(), [&](const Row &row) {
        return row.isNode == quantity.isOfNodes && stored(row, key) != NetData::NoValue;
      });
    };
    if (!has(property))
      continue;
    if (ofNodes) {
      quantity.lower = PropertyKey::find(attribute.property + QStringLiteral("min"));
      quantity.upper = PropertyKey::find(attribute.property + QStringLiteral("max"));
      quantity.hasBounds = has(quantity.lower) || has(quantity.upper);
    }
    found.push_back(quantity);
  }
}

std::vector<ProfileQuantity> PathProfile::quantities() const {
  std::vector<ProfileQuantity> found;
  for (const bool ofNodes : {true, false}) {
    QStringList types;
    for (const Row &row : m_rows) {
      if (row.isNode == ofNodes && !types.contains(row.type))
        types.append(row.type);
    }
    addQuantities(types, ofNodes, found);
  }
  const auto isPressure = [](const ProfileQuantity &quantity) {
    return quantity.isOfNodes && quantity.property == PropertyKey::find("p");
  };
  std::stable_partition(found.begin(), found.end(), isPressure);
  return found;
}

PathProfile::Curve PathProfile::curve(const ProfileQuantity &quantity, PropertyKey property, const ValueOf &valueOf) const {
  Curve curve;
  bool isBroken = true;
  for (const Row &row : m_rows) {
    if (row.isNode != quantity.isOfNodes)
      continue;
    const double shown = value(row, quantity, property, valueOf);
    if (shown == NetData::NoValue) {
      isBroken = isBroken || row.isNode || row.to > row.from; // a valve says no velocity
      continue;
    }
    if (isBroken)
      curve.emplace_back();
    isBroken = false;
    curve.back().append(QPointF(row.from, shown));
    if (row.to > row.from)
      curve.back().append(QPointF(row.to, shown));
  }
  return curve;
}

PathProfile::Curve PathProfile::curve(const ProfileQuantity &quantity, const ValueOf &valueOf) const {
  return curve(quantity, quantity.property, valueOf);
}

PathProfile::Curve PathProfile::curve(const ProfileQuantity &quantity, PropertyKey property) const {
  return curve(quantity, property, stored);
}

QVector<QPointF> PathProfile::violations(const ProfileQuantity &quantity) const {
  constexpr double Rounding = 1e-6; // relative, of stored texts
  QVector<QPointF> points;
  for (const Row &row : m_rows) {
    const double own = value(row, quantity);
    if (own == NetData::NoValue || !quantity.hasBounds)
      continue;
    const double lower = value(row, quantity, quantity.lower, stored);
    const double upper = value(row, quantity, quantity.upper, stored);
    const double margin = Rounding * std::abs(own);
    if ((lower != NetData::NoValue && own < lower - margin) || (upper != NetData::NoValue && own > upper + margin))
      points.append(QPointF(row.from, own));
  }
  return points;
}

int PathProfile::rank(const QString &type) {
  static const QString byImportance = QStringLiteral("crwkgfv");
  const int found = type.isEmpty() ? -1 : byImportance.indexOf(type.at(0));
  return found < 0 ? byImportance.size() : found;
}

Index PathProfile::rowAt(double length, double reach) const {
  // Rows ascend by where they end.
  auto begin = std::lower_bound(m_rows.begin(), m_rows.end(), length - reach,
                                [](const Row &row, double place) { return row.to < place; });
  Index best = NoIndex;
  double nearest = reach;
  Index around = NoIndex;
  for (auto row = begin; row != m_rows.end() && row->from <= length + reach; ++row) {
    const auto index = toIndex(static_cast<std::size_t>(row - m_rows.begin()));
    const bool isPoint = !(row->to > row->from);
    const double distance = std::abs(row->from - length);
    if (!isPoint && row->from <= length && length <= row->to && around == NoIndex)
      around = index;
    if (!isPoint || distance > nearest)
      continue;
    // Of what lies at one point the most important station is meant, rather than its ends.
    const auto rankOf = [](const Row &one) {
      return std::pair(one.isNode, rank(one.type));
    };
    if (best == NoIndex || distance < nearest || rankOf(*row) < rankOf(m_rows[best])) {
      best = index;
      nearest = distance;
    }
  }
  return best == NoIndex ? around : best;
}
