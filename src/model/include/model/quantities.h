#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// The quantities of which people choose the unit, by their name in the property table, such as "pressure difference". Each
/// has a general setting.
namespace Quantities {

struct Quantity {
  QString name;
  QString setting;   ///< its key
  QStringList units; ///< that are offered
};

const std::vector<Quantity> &all();
/// Null for what is no quantity.
const Quantity *find(const QString &name);
/// Of a difference only the factor is converted: one of 10 K is one of 10 degC.
bool isDifference(const QString &name);

} // namespace Quantities
