#pragma once

#include <QString>

/// Judges the text of an XML file in one pass, before a parser works on it: the parser compares every attribute of an
/// element with all others, and looks through all namespaces and all elements around.
namespace XmlBounds {

struct Limits {
  int attributes = 100; ///< of an element
  int nesting = 50;
  int namespaces = 50; ///< declared in the whole text
  bool hasDocumentType = false;
};

struct Fault {
  QString reason; ///< a sentence without its full stop; empty when the text is within the limits
  int line = 0;
};

/// Other faults are left to the parser.
Fault check(const QString &text, const Limits &limits);

} // namespace XmlBounds
