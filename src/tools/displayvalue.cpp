#include <tools/displayvalue.h>

const DisplayValue::Conversion &DisplayValue::find(const QString &type, PropertyKey property) {
  const QPair<QString, int> key(type, static_cast<int>(property.index()));
  const auto known = m_conversions.constFind(key);
  if (known != m_conversions.constEnd())
    return *known;
  Conversion found;
  const NetMetaData::Attribute *attribute = m_metaData.attribute(type, property.name());
  if (attribute != nullptr && !attribute->displayUnit.isEmpty()) {
    found.unit = attribute->displayUnit;
    if (const auto conversion = Units::conversion(attribute->storedUnit, attribute->displayUnit)) {
      found.converts = attribute->storedUnit != attribute->displayUnit;
      found.toDisplay = *conversion;
    } else {
      found.unit = attribute->storedUnit; // shown as stored
    }
  }
  return *m_conversions.insert(key, found);
}

DisplayValue::Shown DisplayValue::of(const QString &type, PropertyKey property, const PropertyText &text) {
  constexpr int Digits = 10; // what a conversion adds beyond is noise
  const Conversion &conversion = find(type, property);
  const std::optional<double> number = conversion.converts ? text.toDouble() : std::nullopt;
  if (!number)
    return {text.toString(), conversion.unit};
  return {QString::fromStdString(formatNumber(conversion.toDisplay(*number), Digits)), conversion.unit};
}
