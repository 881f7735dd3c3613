#pragma once

#include "gerg2008.h"

#include <machines/gasdata.h>

/// Which shares of methane, heavier hydrocarbons, nitrogen, carbon dioxide and hydrogen give a gas its density and calorific
/// value. As in ISO 12213-3 (2006), which states the compression factor by the same values: what is not told apart by them
/// hardly matters for it.
namespace GasComposition {

struct Inferred {
  Gerg2008::Composition shares{};
  bool isTold = false; ///< by more than the density alone
  QString basis;       ///< what it was inferred from
  QStringList remarks; ///< what does not fit
};

/// Nothing when density and molar mass are missing, or no such gas has these values.
std::optional<Inferred> infer(const GasData &gas);

/// Inferior calorific value in MJ/m3 at norm conditions: as stated, else by the superior one and the shares, of which the
/// water that burning makes stays vapour; of methane where nothing is known.
double lowerCalorificValue(const GasData &gas);

} // namespace GasComposition
