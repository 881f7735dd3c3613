#pragma once

#include "commandline.h"

/// The command line without a window: --info and --export.
namespace Batch {

/// Writes answers to the real standard output, reasons of a failure to the real standard error. Ends the process when all
/// went well; otherwise returns the exit status.
int run(const CommandLine &line);

/// Says so without asking for more of it; the exit status.
int outOfMemory();

} // namespace Batch
