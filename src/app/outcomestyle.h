#pragma once

#include <QString>

/// How the status bar looks after an opening, by the general settings "status bar style sheet ...".
namespace OutcomeStyle {

enum class Outcome {
  Failed,     ///< nothing could be read
  Stopped,    ///< by the user
  Acceptable, ///< with warnings
  Successful
};

/// A style sheet for a QStatusBar. A workspace's settings may come from anybody, so only colours and the weight of letters
/// are taken, and nothing that names a file; what is left out is logged.
QString sheet(Outcome outcome);

} // namespace OutcomeStyle
