#pragma once

#include <base/finding.h>

#include <QString>

/// Writes a case folder with its scenarios in the other form: network files are converted, other files (configurations,
/// settings, formulas, symbols) copied.
namespace CaseConverter {

struct Result {
  bool ok = false; ///< every file was written
  int files = 0;   ///< network files that were converted
  Findings findings;
};

/// \param to a folder, made when missing; files that are there are replaced
Result convert(const QString &from, const QString &to);

} // namespace CaseConverter
