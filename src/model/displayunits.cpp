#include <base/generalsettings.h>
#include <model/displayunits.h>
#include <model/quantities.h>

#include <QHash>

namespace DisplayUnits {

namespace {

/// What a unit measures when nobody says: properties of formulas, and tables without the field. Units of several quantities
/// are not here.
QString guessed(const QString &unit) {
  static const QHash<QString, QString> known{{QStringLiteral("bar"), QStringLiteral("pressure")},
                                             {QStringLiteral("degC"), QStringLiteral("temperature")},
                                             {QStringLiteral("1000 m3/h"), QStringLiteral("norm volume flow")},
                                             {QStringLiteral("kg/s"), QStringLiteral("mass flow")},
                                             {QStringLiteral("km"), QStringLiteral("length")},
                                             {QStringLiteral("mm"), QStringLiteral("diameter")},
                                             {QStringLiteral("m/s"), QStringLiteral("velocity")},
                                             {QStringLiteral("kg/m3"), QStringLiteral("density")},
                                             {QStringLiteral("kWh/m3"), QStringLiteral("calorific value")},
                                             {QStringLiteral("1000 m3"), QStringLiteral("gas volume")},
                                             {QStringLiteral("1/min"), QStringLiteral("speed")},
                                             {QStringLiteral("kJ/kg"), QStringLiteral("head")}};
  return known.value(unit);
}

/// The unit that people chose; that of the table when they chose none.
QString chosen(const QString &quantity, const QString &otherwise) {
  const Quantities::Quantity *known = Quantities::find(quantity);
  const QString unit = known == nullptr ? QString() : GeneralSettings::instance().value(known->setting);
  return unit.isEmpty() ? otherwise : unit;
}

/// What a formula yields in bar may as well be a difference, which has no gauge.
QString chosenForGuess(const QString &unit) {
  const QString quantity = guessed(unit);
  const QString wanted = chosen(quantity, unit);
  const bool isGauge =
      quantity == QLatin1String("pressure") && Units::conversion(unit, wanted, {}).value_or(Units::Linear()).offset != 0.0L;
  return isGauge ? unit : wanted;
}

Shown converted(const QString &stored, const QString &wanted, const QString &otherwise, bool ofDifference) {
  for (const QString &unit : {wanted, otherwise}) {
    std::optional<Units::Linear> line = Units::conversion(stored, unit);
    if (!line)
      continue;
    if (ofDifference)
      line->offset = 0.0L;
    return {unit, *line};
  }
  return {stored, Units::Linear()};
}

} // namespace

Shown of(const NetMetaData::Attribute &attribute) {
  if (attribute.storedUnit.isEmpty() || attribute.displayUnit.isEmpty())
    return {attribute.storedUnit, Units::Linear()};
  const QString wanted = attribute.quantity.isEmpty() ? chosenForGuess(attribute.displayUnit)
                                                      : chosen(attribute.quantity, attribute.displayUnit);
  return converted(attribute.storedUnit, wanted, attribute.displayUnit, Quantities::isDifference(attribute.quantity));
}

Shown ofTable(const NetMetaData::Attribute &attribute) {
  return converted(attribute.storedUnit, attribute.displayUnit, attribute.displayUnit,
                   Quantities::isDifference(attribute.quantity));
}

Shown of(const NetMetaData::Attribute *attribute) {
  return attribute == nullptr ? Shown() : of(*attribute);
}

Shown between(const QString &quantity, const QString &from, const QString &to) {
  return converted(from, to, from, Quantities::isDifference(quantity));
}

Shown of(const QString &quantity, const QString &unit) {
  return converted(unit, chosen(quantity, unit), unit, Quantities::isDifference(quantity));
}

} // namespace DisplayUnits
