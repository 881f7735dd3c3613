#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>

/// The other scenarios of the case, for a path's elements alone.
struct PathScenarios {
  /// Numbers by element and property.
  using Values = QHash<QString, QHash<QString, double>>;

  QString current; ///< name of the one that is shown; empty for none
  std::function<QStringList()> names;
  /// The results of the scenario for these elements and properties; nothing, with the reason, when they cannot be read. It
  /// is called in a thread of its own.
  std::function<Values(const QString &scenario, const QSet<QString> &elements, const QSet<QString> &properties,
                       QString *reason)>
      read;
};
