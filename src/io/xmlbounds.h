#pragma once

#include <QString>

/// Judges the text of an XML file in one pass, before a parser works on it.
namespace XmlBounds {

struct Fault {
  QString reason; ///< empty when the text is within the bounds of GasLibXml and has no document type
  int line = 0;
};

/// Other faults are left to the parser.
Fault check(const QString &text);

} // namespace XmlBounds
