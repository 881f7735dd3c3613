#pragma once

#include <model/elementkinds.h>

#include <QString>

#include <vector>

/// One row of the element type table.
struct ElementType {
  QString code;     ///< what an element's "type" holds, such as "p"
  QString word;     ///< what a network file's "obj_type" holds, such as "pipe"
  QString longName; ///< for a person, such as "pipe"
  QString plural;   ///< such as "pipes"
  ElementKinds::EleType kind = ElementKinds::Unknown;
};

namespace ElementTypes {

/// All rows in the order in which they are listed.
const std::vector<ElementType> &all();
/// Null when there is no such row. Words and codes are compared exactly.
const ElementType *byWord(const QString &word);
const ElementType *byCode(const QString &code);
/// Whether elements of the type are machines, for which there may be characteristics: compressors and drives.
bool hasCharacteristics(const QString &code);

/// English plural as the type lists show it: "supply" gives "supplies", "tBox" "tBoxes", "pipe" "pipes".
QString pluralised(const QString &typeName);

} // namespace ElementTypes
