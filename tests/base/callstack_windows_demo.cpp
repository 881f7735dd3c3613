// Writes its own call stack from nested functions and looks at what was written: 0 when the stack names something.

#include "callstack.h"

#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <string>
#include <sys/stat.h>

namespace {

[[gnu::noinline]] void innermost(int descriptor) {
  CallStack::write(descriptor);
  std::puts("written"); // no tail call, which would take this function off the stack
}

[[gnu::noinline]] void middle(int descriptor) {
  innermost(descriptor);
  std::puts("back");
}

std::string contents(const char *path) {
  std::string text;
  if (std::FILE *file = std::fopen(path, "rb")) {
    char block[4096];
    for (size_t size = 0; (size = std::fread(block, 1, sizeof block, file)) > 0;)
      text.append(block, size);
    std::fclose(file);
  }
  return text;
}

} // namespace

int main(int argc, char **argv) {
  const char *path = argc > 1 ? argv[1] : "callstack.txt";
  CallStack::prepare();
  const int descriptor = _open(path, _O_CREAT | _O_TRUNC | _O_WRONLY | _O_BINARY, _S_IREAD | _S_IWRITE);
  if (descriptor < 0)
    return 2;
  middle(descriptor);
  _close(descriptor);
  const std::string text = contents(path);
  std::fputs(text.c_str(), stdout);
  const bool complete = text.find("module 0x") != std::string::npos && text.find("#2 ") != std::string::npos;
  return complete ? 0 : 1;
}
