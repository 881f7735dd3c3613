#include "why/valuereasons.h"

#include "networkloader.h"

#include <model/displayformat.h>
#include <model/names.h>
#include <model/netmetadata.h>
#include <tools/displayvalue.h>

#include <QDir>

#include <algorithm>
#include <cmath>

namespace {

QString placed(const QString &file, int line) {
  return QStringLiteral("%1:%2").arg(file).arg(line);
}

const NetMetaData::Attribute *attributeOf(const NetData &net, const element &e, PropertyKey property) {
  return net.metaData()->attribute(e.value(Names::all().type), property.name());
}

/// "× 0.1 + 273.15"
QString written(const Units::Linear &conversion) {
  const auto factor = static_cast<double>(conversion.factor);
  const auto offset = static_cast<double>(conversion.offset);
  QString text = QStringLiteral("× ") + DisplayFormat::number(factor, 9);
  if (offset != 0.0)
    text += (offset < 0.0 ? QStringLiteral(" − ") : QStringLiteral(" + ")) + DisplayFormat::number(std::abs(offset), 9);
  return text;
}

} // namespace

QString ValueReasons::fileName(const QString &path) const {
  const QString relative = QDir(m_loader.workspace().root()).relativeFilePath(path);
  return relative.startsWith(QLatin1String("..")) ? path : relative;
}

QString ValueReasons::shown(const element &e, PropertyKey property, const PropertyText &text) const {
  const DisplayValue::Shown shown = DisplayValue(*m_net.metaData()).of(e.value(Names::all().type), property, text);
  const QString value = DisplayFormat::shown(shown.value, !shown.unit.isEmpty());
  return shown.unit.isEmpty() ? value : value + QLatin1Char(' ') + Units::written(shown.unit);
}

QString ValueReasons::shown(const element &e, PropertyKey property) const {
  const PropertyText *text = e.find(property);
  return text == nullptr ? tr("no value") : shown(e, property, *text);
}

QString ValueReasons::title(const element &e, PropertyKey property) const {
  const NetMetaData::Attribute *attribute = attributeOf(m_net, e, property);
  const QString name = attribute == nullptr ? QString() : attribute->longName;
  const QString plain = tr("%1 of %2: %3").arg(property.name(), e.value(Names::all().name), shown(e, property));
  return name.isEmpty() || name == property.name() ? plain : tr("%1 – %2").arg(plain, name);
}

std::vector<Reason> ValueReasons::known(const element &e, PropertyKey property) const {
  std::vector<Reason> reasons;
  std::vector<FormulaUse> uses = m_loader.formulas().usesOf(e, property);
  std::stable_partition(uses.begin(), uses.end(), [](const FormulaUse &use) { return !use.definition.isConstraint; });
  reasons.reserve(uses.size() + 1);
  for (const FormulaUse &use : uses)
    reasons.push_back(reasonOf(use, e, property));
  addUnit(e, property, reasons);
  return reasons;
}

Reason ValueReasons::reasonOf(const FormulaUse &use, const element &e, PropertyKey property) const {
  const FormulaDefinition &definition = use.definition;
  Reason reason;
  reason.where = placed(fileName(definition.file), definition.line);
  const auto bound = [&](const std::optional<double> &value) {
    return value ? shown(e, property, PropertyText::ofNumber(*value)) : tr("none");
  };
  if (definition.isConstraint) {
    reason.text = tr("Held between %1 and %2")
                      .arg(definition.lower.isEmpty() ? tr("nothing") : definition.lower,
                           definition.upper.isEmpty() ? tr("nothing") : definition.upper);
    reason.value = tr("%1 to %2").arg(bound(use.lower), bound(use.upper));
  } else {
    const QString unit =
        definition.unit.isEmpty() ? QString() : QStringLiteral(" [%1]").arg(Units::written(definition.unit));
    reason.text = tr("Formula: %1%2 = %3").arg(property.name(), unit, definition.expression);
    reason.value = use.isMaker ? shown(e, property) : tr("no value: one that it needs is missing");
  }
  for (const FormulaUse::Input &input : use.inputs) {
    Reason part;
    part.text = input.element.isEmpty() ? tr("%1: no such element").arg(input.written)
                                        : tr("%1 – %2 of %3").arg(input.written, input.property.name(), input.element);
    if (const element *read = m_net.element(input.element)) {
      part.value = shown(*read, input.property);
      part.element = input.element;
      part.property = input.property;
    }
    reason.parts.push_back(std::move(part));
  }
  return reason;
}

void ValueReasons::addUnit(const element &e, PropertyKey property, std::vector<Reason> &reasons) const {
  const NetMetaData::Attribute *attribute = attributeOf(m_net, e, property);
  if (attribute == nullptr || attribute->storedUnit.isEmpty())
    return;
  DisplayValue display(*m_net.metaData());
  const QString type = e.value(Names::all().type);
  const QString unit = display.unit(type, property);
  const auto conversion = display.conversion(type, property);
  const QString stored = Units::written(attribute->storedUnit);
  Reason reason;
  if (!conversion || unit == attribute->storedUnit) {
    reason.text = tr("Unit: stored and shown in %1").arg(stored);
  } else {
    reason.text = tr("Unit: stored in %1, shown in %2: value %3").arg(stored, Units::written(unit), written(*conversion));
    reason.value = shown(e, property);
  }
  reasons.push_back(std::move(reason));
}

std::vector<Reason> ValueReasons::ofFiles(const element &e, PropertyKey property,
                                          const std::vector<ValueSource::Place> &places) const {
  std::vector<Reason> reasons;
  reasons.reserve(places.size() + 1);
  for (std::size_t i = 0; i < places.size(); ++i) {
    const ValueSource::Place &place = places[i];
    const QString unit = place.unit.isEmpty() ? QString() : QLatin1Char(' ') + Units::written(place.unit);
    Reason reason;
    reason.text = i + 1 < places.size() ? tr("Given, but replaced below") : tr("Given by the file");
    reason.value = place.value + unit;
    reason.where = placed(fileName(place.file), place.line);
    if (Reason conversion = conversionOf(e, property, place); !conversion.text.isEmpty())
      reason.parts.push_back(std::move(conversion));
    reasons.push_back(std::move(reason));
  }
  if (places.empty()) {
    Reason none;
    none.text = tr("No network file gives it: the program made it, or a template of a subnet");
    reasons.push_back(std::move(none));
  }
  return reasons;
}

/// Of a value with another unit than the stored one.
Reason ValueReasons::conversionOf(const element &e, PropertyKey property, const ValueSource::Place &place) const {
  Reason reason;
  const NetMetaData::Attribute *attribute = attributeOf(m_net, e, property);
  if (attribute == nullptr || place.unit.isEmpty() || place.unit == attribute->storedUnit)
    return reason;
  const Units::Gas gas = ValueSource::gasAt(e, m_net, m_loader.gases());
  const auto alone = Units::conversion(place.unit, attribute->storedUnit);
  const auto withGas = Units::conversion(place.unit, attribute->storedUnit, gas);
  const QString units = tr("%1 to %2").arg(Units::written(place.unit), Units::written(attribute->storedUnit));
  if (!withGas) {
    reason.text = tr("%1: cannot be converted").arg(units);
    return reason;
  }
  reason.text = tr("%1: value %2").arg(units, written(*withGas));
  if (alone)
    return reason;
  QStringList facts;
  if (gas.normDensity)
    facts.append(tr("norm density %1 kg/m³").arg(DisplayFormat::number(*gas.normDensity)));
  if (gas.calorificValue)
    facts.append(tr("calorific value %1 MJ/m³").arg(DisplayFormat::number(*gas.calorificValue)));
  reason.value = tr("by the gas there: %1").arg(facts.join(tr(", ")));
  return reason;
}
