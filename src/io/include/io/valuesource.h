#pragma once

#include <io/scenariosummary.h>
#include <model/netdata.h>
#include <model/units.h>

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

/// Where the network files that were read give a property of an element.
namespace ValueSource {

struct Place {
  QString file;
  int line = 0;
  QString value; ///< as the file has it
  QString unit;  ///< that stands beside it; empty for none
};

/// Those of the files that hold elements or values for them, in the order in which they are read: of several places the
/// last counts.
QStringList networkFiles(const QStringList &files);

/// Goes over the files line by line, which a network of 100,000 elements takes some tenths of a second for; it may run
/// beside other work. Files that cannot be read are passed over.
/// \param goesOn asked now and then; false stops
std::vector<Place> find(const QStringList &files, const QString &element, const QString &property,
                        const std::function<bool()> &goesOn);

/// The gas by which set points of the element are converted.
Units::Gas gasAt(const element &e, const NetData &net, const GasTable &gases);

} // namespace ValueSource
