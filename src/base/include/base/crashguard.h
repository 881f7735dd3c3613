#pragma once

#include <base/logfiles.h>

#include <functional>

/// Detects and records crashes. The handlers use only what was prepared beforehand, because the heap may be broken.
namespace CrashGuard {

/// Opens a file with the desktop's default viewer.
using Viewer = std::function<void(const QString &path)>;

/// The start-up of the process, called before the window exists: sets NIVRAHOME, reports an earlier crash (where messages
/// become boxes with one and the crash log in the viewer, with a log line otherwise), redirects the standard streams into
/// the log, installs the handlers. A run of the command line leaves the notice, the marker and the log to the window.
void setUp(LogFiles::Run run, const Viewer &viewer = {});

/// SIGSEGV, SIGFPE and the terminate handler: marker (where it has a path), reason, call stack, end of the process.
void installHandlers(const QString &marker);

} // namespace CrashGuard
