#pragma once

#include <app/commandline.h>

/// The command line without a window: --info and --export.
namespace Batch {

/// Writes answers to the real standard output, reasons of a failure to the real standard error; the exit status.
int run(const CommandLine &line);

} // namespace Batch
