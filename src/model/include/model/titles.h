#pragma once

#include <model/elementtypes.h>
#include <model/netmetadata.h>

#include <QString>

/// What people call types of elements and properties, in the language of the program. Files, formulas and tables for other
/// programs have the codes and names.
namespace Titles {

QString of(const ElementType &type);        ///< "pipe"
QString ofSeveral(const ElementType &type); ///< "pipes"

QString of(const NetMetaData::Attribute &attribute); ///< "pressure"
QString description(const NetMetaData::Attribute &attribute);

} // namespace Titles
