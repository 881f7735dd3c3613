#pragma once

#include <io/scenariosummary.h>
#include <model/netdata.h>
#include <model/units.h>

#include <QString>

/// Brings set points into the units in which properties are stored.
class SetPointUnits {
public:
  enum class Outcome {
    AsItIs,    ///< no unit, the stored unit, or no number: the text is untouched
    Converted, ///< the shortest text of the converted number
    NeedsGas,  ///< between volume, mass and energy: what the gas must tell is not known
    Impossible ///< the units do not fit
  };

  SetPointUnits();

  /// \param storedUnit empty for a property without one
  Outcome convert(PropertyText &value, const QString &unit, const QString &storedUnit,
                  const Units::Gas &gas = Units::Gas()) const;

  /// The gas at an element: what the node (for an edge its first end node that knows) says itself in "rhon" and "hs", else
  /// the gas that it names in "gas", else the only one of the scenario.
  static Units::Gas gasAt(const element &e, const NetData &net, const GasTable &gases);

private:
  double m_tiny; ///< what is smaller once it is converted is noise of the conversion
};
