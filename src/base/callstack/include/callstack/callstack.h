#pragma once

/// Writes the current thread's call stack: the loaded modules and, per frame, module, symbol, file and line as far as the
/// debugging information gives them. Plain C++ without the toolkit, safe enough to be called from a signal handler.
namespace CallStack {

/// Loads what the writer needs of libraries while the process is still sound; cheap, as every start pays for it. Symbols and
/// lines are read by write().
void prepare();

/// Writes to an open file descriptor; skip leaves out as many innermost frames.
void write(int fileDescriptor, int skip = 0);

} // namespace CallStack
