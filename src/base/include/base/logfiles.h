#pragma once

#include <QString>

/// The log directory and the files in it, and the start-up steps that move them.
namespace LogFiles {

enum class Run {
  Window, ///< logs into currentLog()
  Batch   ///< a command line, which may run beside an open window and must not touch its log
};

QString directory();  ///< the application's writable local data location, created when absent; absolute
QString currentLog(); ///< directory() + "/NivraViewer.log"
QString batchLog();   ///< directory() + "/NivraViewerBatch.log"
QString logOf(Run run);
QString crashLog();    ///< directory() + "/NivraViewerCrash.log"
QString crashMarker(); ///< directory() + "/crash"

/// A crash of the previous run, noticed by its marker: deletes the marker and renames the current log to the crash log
/// (an older crash log stays). True when there was a marker.
bool takeCrash();

/// Reopens standard output and standard error, in that order, onto the log file of the run (truncated, line-buffered).
/// False when the file cannot be written: the streams then stay as they were and the program goes on.
bool redirectStreams(Run run);

/// A duplicate of the standard output as it was before redirectStreams(), for the answers of the command line; likewise
/// standard error. The plain stream while nothing is redirected.
int realStandardOutput();
int realStandardError();

} // namespace LogFiles
