#pragma once

#include <base/finding.h>
#include <io/conversionreport.h>

#include <QString>

/// Writes a case folder with its scenarios in the other form: network files are converted, other files (configurations,
/// settings, formulas, symbols) copied.
namespace CaseConverter {

struct Result {
  bool ok = false; ///< every file was written; otherwise none was
  int files = 0;   ///< network files that were converted
  Findings findings;
  ConversionReport report;
};

/// Pipes, devices and links that lead out of the case are left out, and told.
/// \param to a folder, made when missing \param overwrites whether files that are there and differ may be replaced
Result convert(const QString &from, const QString &to, bool overwrites = false);

} // namespace CaseConverter
