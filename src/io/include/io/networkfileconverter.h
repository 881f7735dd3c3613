#pragma once

#include <base/finding.h>
#include <io/conversionreport.h>
#include <io/networkrecord.h>

#include <QString>

#include <vector>

/// Writes network files in the other of their two forms: JSON (".jsn") and text. The names before that suffix tell what they
/// hold: ".geom", ".gas" elements, ".scen", ".fix" set points, ".res", ".gaspar", ".res.sub" values. Numbers pass letter by
/// letter, and a text that looks like a number stays a text.
namespace NetworkFileConverter {

struct Result {
  bool ok = false; ///< the file was written, whole
  int records = 0; ///< elements, set points or elements with values
  Findings findings;
  ConversionReport report; ///< by type word, by property of set points, and what was dropped
};

/// Whether the name is that of a network file, in either form.
bool isNetworkFile(const QString &name);
/// The name of the file in the other form.
QString otherForm(const QString &name);

/// Writes a file in the form that its name tells; false with the reason, also when the form cannot say all of it.
bool write(const QString &path, const std::vector<NetworkRecord> &records, QString *reason);
bool write(const QString &path, const std::vector<NetworkSetPoint> &setPoints, QString *reason);

/// Reads one file and writes the other; each in the form that its name tells. A file that is there stays as it is unless
/// the new one is complete.
Result convert(const QString &from, const QString &to);

} // namespace NetworkFileConverter
