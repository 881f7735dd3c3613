#pragma once

#include <model/propertytext.h>
#include <model/units.h>

#include <QString>

#include <optional>

/// The numbers of public network instances, in units of ours.
namespace GasLibUnits {

struct Number {
  PropertyText text; ///< as it stands in the file where the unit is ours, so that no letter of it is lost
  double value = 0.0;
  bool isConverted = false;

  /// The same with the other sign; there is no negative zero.
  Number negated() const;
};

/// The number that a text states; nothing when it states none.
std::optional<Number> read(const QString &text);
/// \param given as the format names units, empty for the wanted one \param wanted as UDUNITS-2 writes it, empty for any
/// \return nothing when the one cannot be converted to the other
std::optional<Number> convert(const Number &number, const QString &given, const QString &wanted, const Units::Gas &gas);

} // namespace GasLibUnits
