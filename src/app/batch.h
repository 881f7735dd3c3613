#pragma once

#include "commandline.h"

/// The command line without a window: --info and --export.
class Batch {
  Q_DECLARE_TR_FUNCTIONS(Batch)
public:
  /// Writes answers to the real standard output, reasons of a failure to the real standard error. Ends the process when all
  /// went well; otherwise returns the exit status.
  static int run(const CommandLine &line);

  /// Says so without asking for more of it; the exit status.
  static int outOfMemory();
};
