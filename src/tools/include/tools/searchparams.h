#pragma once

#include <QString>

/// What a search is restricted to.
struct SearchParams {
  QString name;
  QString searchString; ///< of the value
  QString type;
  QString prop;
  bool regex = false; ///< whether the name is a regular expression; the others always are
  QString formula;    ///< that each candidate must satisfy; empty for none
};
