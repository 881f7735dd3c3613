#pragma once

#include <model/netmetadata.h>
#include <model/units.h>

#include <QString>

/// In which unit people read a value: that of the property table, or the one that they chose for its quantity in the
/// general settings (Quantities). Values stay as they are stored.
namespace DisplayUnits {

struct Shown {
  QString unit;            ///< empty for plain numbers
  Units::Linear toDisplay; ///< from the stored unit; the identity where the units do not fit
};

/// A property's unit. What the units of the table cannot convert is shown as stored.
Shown of(const NetMetaData::Attribute &attribute);
/// The same, with a plain number for null.
Shown of(const NetMetaData::Attribute *attribute);
/// The unit of the table, whatever was chosen: for what files say in it.
Shown ofTable(const NetMetaData::Attribute &attribute);
/// A value of a quantity in some unit, which is shown unless another one was chosen.
Shown of(const QString &quantity, const QString &unit);

/// A value of a quantity from one unit to another.
Shown between(const QString &quantity, const QString &from, const QString &to);

} // namespace DisplayUnits
