#pragma once

#include <model/units.h>

#include <QString>

#include <vector>

/// A quantity of maps: computed in a unit of its own, shown in the one that people chose.
class MapQuantity {
public:
  /// \param unit in which machines are computed, as people write it: "m³/s", "kJ/kg", "1/min", "kW", "°C", "1000 m³/h"
  /// (norm); any other, such as "%" or none, is shown as it stands
  explicit MapQuantity(const QString &unit = QString());

  const Units::Linear &toDisplay() const { return m_toDisplay; }
  const QString &unit() const { return m_unit; } ///< as people write it
  QString title(const QString &name) const;      ///< of an axis: "speed [1/min]"
  QString number(double value, int digits = 4) const;
  QString text(double value, int digits = 4) const; ///< with the unit
  /// The same for differences, of which only the factor is converted.
  MapQuantity ofDifferences() const;
  QString difference(double value, int digits) const { return ofDifferences().number(value, digits); } ///< without the unit
  /// Both ends of a range and numbers between them that are round as they are shown, about half a dozen.
  std::vector<double> roundValues(double from, double to) const;

private:
  QString m_unit;
  Units::Linear m_toDisplay;
};
