#pragma once

#include <QString>

class QStatusBar;

/// How the status bar looks after an opening, by the general settings "status bar style sheet ...".
namespace OutcomeStyle {

enum class Outcome {
  Failed,     ///< nothing could be read
  Stopped,    ///< by the user
  Acceptable, ///< with warnings
  Successful
};

/// Has the status bar tell the outcome, until clear().
void show(QStatusBar &bar, Outcome outcome);
void clear(QStatusBar &bar);
/// What it tells in other colours: the desktop's have changed.
void refresh(QStatusBar &bar);

/// A style sheet for a QStatusBar. A workspace's settings may come from anybody, so only colours and the weight of letters
/// are taken, and nothing that names a file; what is left out is logged.
QString sheet(Outcome outcome);

} // namespace OutcomeStyle
