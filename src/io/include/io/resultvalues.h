#pragma once

#include <QHash>
#include <QSet>
#include <QString>

/// Numbers out of the result file of a scenario, for a few elements and without a network: several threads may read at once,
/// beside the network that is shown.
namespace ResultValues {

/// By element and property, as they were asked for.
using Numbers = QHash<QString, QHash<QString, double>>;

/// What the results beside a scenario file say of these elements and properties, in the units in which they are stored.
/// Lines that cannot be read are left out; empty, with the reason, when the whole file cannot. A scenario without results
/// says nothing. \param scenario path of the scenario file, in either form
Numbers read(const QString &scenario, const QSet<QString> &elements, const QSet<QString> &properties, QString *reason);

} // namespace ResultValues
