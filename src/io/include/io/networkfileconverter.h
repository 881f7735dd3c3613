#pragma once

#include <base/finding.h>
#include <io/conversionreport.h>
#include <model/propertykey.h>
#include <model/propertytext.h>

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

/// A property's value as it is written.
struct Value {
  PropertyKey key;
  PropertyText text;
  bool isNumber = false; ///< then the text is a number as JSON writes them
};

/// What is not read from a network file.
struct Record {
  QString name;
  QString type; ///< word, empty for values of elements that are described elsewhere
  std::vector<Value> values;

  const Value *find(PropertyKey key) const; ///< the first of it, null when there is none
};
struct SetPoint {
  QString name;
  Value value;
  QString unit; ///< empty for the stored one
};

/// Writes a file in the form that its name tells; false with the reason.
bool write(const QString &path, const std::vector<Record> &records, QString *reason);
bool write(const QString &path, const std::vector<SetPoint> &setPoints, QString *reason);

/// Reads one file and writes the other; each in the form that its name tells. A file that is there stays as it is unless
/// the new one is complete.
Result convert(const QString &from, const QString &to);

} // namespace NetworkFileConverter
