#include <model/displayunits.h>
#include <model/quantities.h>
#include <tools/displayvalue.h>

const DisplayValue::Conversion &DisplayValue::find(const QString &type, PropertyKey property) {
  if (m_lastType == nullptr || *m_lastType != type) {
    auto entry = m_conversions.try_emplace(type).first;
    m_lastType = &entry->first;
    m_last = &entry->second;
  }
  if (property.index() >= m_last->size())
    m_last->resize(property.index() + 1);
  std::optional<Conversion> &known = (*m_last)[property.index()];
  if (known)
    return *known;
  Conversion found;
  const NetMetaData::Attribute *attribute = m_metaData.attribute(type, property.name());
  if (attribute != nullptr && !attribute->displayUnit.isEmpty()) {
    const DisplayUnits::Shown shown = DisplayUnits::of(*attribute);
    found = {shown.unit != attribute->storedUnit, Quantities::isDifference(attribute->quantity), shown.toDisplay,
             shown.unit};
  }
  known = found;
  return *known;
}

DisplayValue::Shown DisplayValue::of(const QString &type, PropertyKey property, const PropertyText &text) {
  constexpr int Digits = 10; // what a conversion adds beyond is noise
  const Conversion &conversion = find(type, property);
  const std::optional<double> number = conversion.converts ? text.toDouble() : std::nullopt;
  if (!number)
    return {text.toString(), conversion.unit, conversion.isDifference};
  return {QString::fromStdString(formatNumber(conversion.toDisplay(*number), Digits)), conversion.unit,
          conversion.isDifference};
}
