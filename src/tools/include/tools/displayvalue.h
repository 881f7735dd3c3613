#pragma once

#include <model/netdata.h>
#include <model/netmetadata.h>
#include <model/units.h>

#include <QString>

#include <map>
#include <optional>
#include <vector>

/// Values and units as people read them, from what the property data say. The conversions are looked up once.
class DisplayValue {
public:
  struct Shown {
    QString value;
    QString unit;              ///< the display unit, empty when there is none
    bool isDifference = false; ///< between two values: in another unit it has no other zero
  };

  explicit DisplayValue(const NetMetaData &metaData)
      : m_metaData(metaData) {}

  Shown of(const QString &type, PropertyKey property, const PropertyText &text);
  /// The display unit of the property, empty when it is shown as stored.
  QString unit(const QString &type, PropertyKey property) { return find(type, property).unit; }

  /// How stored numbers become shown ones; nothing when they are shown as stored.
  std::optional<Units::Linear> conversion(const QString &type, PropertyKey property) {
    const Conversion &found = find(type, property);
    return found.converts ? std::make_optional(found.toDisplay) : std::nullopt;
  }

private:
  struct Conversion {
    bool converts = false;
    bool isDifference = false;
    Units::Linear toDisplay;
    QString unit;
  };

  const Conversion &find(const QString &type, PropertyKey property);

  const NetMetaData &m_metaData;
  using OfType = std::vector<std::optional<Conversion>>; ///< by number of the property's spelling

  std::map<QString, OfType> m_conversions;
  const QString *m_lastType = nullptr; ///< of m_conversions, for rows of one type follow one another
  OfType *m_last = nullptr;
};
