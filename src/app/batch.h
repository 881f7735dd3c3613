#pragma once

#include "commandline.h"

/// The command line without a window.
class Batch {
  Q_DECLARE_TR_FUNCTIONS(Batch)
public:
  enum Status { Done = 0, Failed = 1, WrongUsage = 2, HasFindings = 3, ViolatesBounds = 4 };

  /// Writes answers to the real standard output, reasons of a failure to the real standard error. The exit status, unless a
  /// network was opened: then it ends the process itself.
  static int run(const CommandLine &line);
  /// Those of a file, one after the other; the exit status.
  static int runJobs(const CommandLine &line);

  /// Says so without asking for more of it; the exit status.
  static int outOfMemory();
};
