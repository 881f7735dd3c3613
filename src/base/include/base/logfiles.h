#pragma once

#include <QString>

/// The log directory and the three files in it, and the start-up steps that move them.
namespace LogFiles {

QString directory();   ///< the application's writable local data location, created when absent; absolute
QString currentLog();  ///< directory() + "/NivraViewer.log"
QString crashLog();    ///< directory() + "/NivraViewerCrash.log"
QString crashMarker(); ///< directory() + "/crash"

/// A crash of the previous run, noticed by its marker: deletes the marker and renames the current log to the crash log
/// (an older crash log stays). True when there was a marker.
bool takeCrash();

/// Reopens standard output and standard error, in that order, onto the current log file (truncated, line-buffered).
/// False when the file cannot be written: the streams then stay as they were and the program goes on.
bool redirectStreams();

/// A duplicate of the standard output as it was before redirectStreams(), for the answers of the command line; likewise
/// standard error. The plain stream while nothing is redirected.
int realStandardOutput();
int realStandardError();

} // namespace LogFiles
