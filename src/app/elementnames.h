#pragma once

#include <QStringList>

class NetData;

/// Elements by what a person remembers of their names.
namespace ElementNames {

/// Names in which the text is, regardless of case: the name itself, then those that begin with it, then the others, each in
/// the order of names; at most so many. Looks at all names of a network where it must.
QStringList namesWith(const NetData &net, const QString &text, int most);

} // namespace ElementNames
