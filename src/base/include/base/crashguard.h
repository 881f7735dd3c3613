#pragma once

/// Detects and records crashes. The handlers use only what was prepared beforehand, because the heap may be broken.
namespace CrashGuard {

/// The start-up of the process, called before the window exists: sets NIVRAHOME, reports an earlier crash (a box and
/// the crash log in the desktop's viewer in interactive mode, a log line otherwise), redirects the standard streams
/// into the log, installs the handlers.
void setUp();

/// SIGSEGV, SIGFPE and the terminate handler: marker, reason, call stack, end of the process.
void installHandlers();

} // namespace CrashGuard
