#pragma once

#include <QString>

/// "png" of a file dialog's filter "Portable Network Graphics (*.png)"; empty of one for any file. Save dialogs give it to
/// names without one.
inline QString suffixOfFilter(const QString &filter) {
  return filter.section(QLatin1Char('.'), 1).remove(QLatin1Char(')'));
}
