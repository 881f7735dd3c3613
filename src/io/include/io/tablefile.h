#pragma once

#include <base/finding.h>
#include <model/element.h>

#include <QString>

#include <vector>

/// A file of text tables, as network files in the text form are, read as it stands.
namespace TableFile {

struct Row {
  QString type; ///< of the table, as written in square brackets
  QString name;
  element values;
  int line = 0;
};
struct Contents {
  bool ok = false; ///< the file could be read
  std::vector<Row> rows;
  Findings findings; ///< faulty lines, which are left out
};

Contents read(const QString &path);

} // namespace TableFile
