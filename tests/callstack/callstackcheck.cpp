// Writes its own call stack from nested functions and looks at what was written: 0 when everything is there that the
// platform can tell.

#include <callstack/callstack.h>

#include <cstdio>
#include <initializer_list>
#include <string>

namespace {

constexpr int StandardOutput = 1;

[[gnu::noinline]] void innermost() {
  CallStack::write(StandardOutput);
  std::fputs("written\n", stderr); // no tail call, which would take this function off the stack
}

[[gnu::noinline]] void middle() {
  innermost();
  std::fputs("back\n", stderr);
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
  if (std::freopen(path, "wb", stdout) == nullptr)
    return 2;
  CallStack::prepare();
  middle();
  const std::string text = contents(path);
  std::fputs(text.c_str(), stderr);
#ifdef _WIN32
  const auto expected = {"module 0x", "#2 "}; // the names come from a library of the system that may be missing
#else
  const auto expected = {"module 0x", "#2 ", "innermost", "middle", "callstackcheck.cpp:"};
#endif
  for (const char *part : expected) {
    if (text.find(part) == std::string::npos) {
      std::fprintf(stderr, "missing: %s\n", part);
      return 1;
    }
  }
  return 0;
}
