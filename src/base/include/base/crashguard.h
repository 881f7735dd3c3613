#pragma once

#include <base/logfiles.h>

/// Detects and records crashes. The handlers use only what was prepared beforehand, because the heap may be broken.
namespace CrashGuard {

/// The start-up of the process, called before the window exists: sets NIVRAHOME, reports an earlier crash (a box and
/// the crash log in the desktop's viewer in interactive mode, a log line otherwise), redirects the standard streams
/// into the log, installs the handlers. A run of the command line leaves the notice, the marker and the log to the window.
void setUp(LogFiles::Run run);

/// SIGSEGV, SIGFPE and the terminate handler: marker (where it has a path), reason, call stack, end of the process.
void installHandlers(const QString &marker);

} // namespace CrashGuard
