#pragma once

#include <QLineEdit>
#include <QStringList>

#include <functional>

class NetData;

/// Type-ahead for a field that takes a name: while one types, names that begin so are offered below.
namespace NameAid {

constexpr int MaximumNames = 30; ///< offered at once

/// \param names that begin with a text, in order, at most so many
void attach(QLineEdit &field, std::function<QStringList(const QString &beginning, int most)> names);

/// Names of elements, of every kind, regardless of case.
QStringList elementNames(const NetData &net, const QString &beginning, int most);
/// Names of properties that elements of the network have.
QStringList propertyNames(NetData &net, const QString &beginning, int most);

} // namespace NameAid
