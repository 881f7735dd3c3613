#pragma once

#include <base/finding.h>
#include <model/element.h>

#include <QString>

#include <vector>

/// Writes network files in the other of their two forms: JSON (".jsn") and text. The names before that suffix tell what they
/// hold: ".geom", ".gas" elements, ".scen", ".fix" set points, ".res", ".gaspar", ".res.sub" values.
namespace NetworkFileConverter {

struct Result {
  bool ok = false; ///< the file was written, whole
  int records = 0; ///< elements, set points or elements with values
  Findings findings;
};

/// Whether the name is that of a network file, in either form.
bool isNetworkFile(const QString &name);
/// The name of the file in the other form.
QString otherForm(const QString &name);

/// What is not read from a network file.
struct Record {
  QString name;
  QString type; ///< word, empty for values of elements that are described elsewhere
  std::vector<Property> values;
};
struct SetPoint {
  QString name;
  QString property;
  PropertyText value;
  QString unit; ///< empty for the stored one
};

/// Writes a file in the form that its name tells; false with the reason.
bool write(const QString &path, const std::vector<Record> &records, QString *reason);
bool write(const QString &path, const std::vector<SetPoint> &setPoints, QString *reason);

/// Reads one file and writes the other; each in the form that its name tells.
Result convert(const QString &from, const QString &to);

} // namespace NetworkFileConverter
