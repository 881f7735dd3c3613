#include <callstack/callstack.h>

#include <backtrace.h>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <cxxabi.h>
#include <dlfcn.h>
#include <link.h>
#include <unistd.h>

namespace {

constexpr const char *Unknown = "-unknown-";
constexpr const char *NoSymbols = "-nosymbols-";

backtrace_state *state = nullptr;

struct Writer {
  int descriptor;
  int frame = 0;
};

template <typename... Values>
void put(int descriptor, const char *format, Values... values) {
  char line[2048];
  const int length = std::snprintf(line, sizeof line, format, values...);
  if (length <= 0)
    return;
  const auto size = static_cast<std::size_t>(length) < sizeof line ? static_cast<std::size_t>(length) : sizeof line - 1;
  const ssize_t written = ::write(descriptor, line, size);
  static_cast<void>(written);
}

void ignoreError(void * /*data*/, const char * /*message*/, int /*number*/) {}

int writeModule(dl_phdr_info *info, std::size_t /*size*/, void *data) {
  const char *name = info->dlpi_name != nullptr && *info->dlpi_name != '\0' ? info->dlpi_name : "(program)";
  put(*static_cast<int *>(data), "module %#014lx %s\n", static_cast<unsigned long>(info->dlpi_addr), name);
  return 0;
}

const char *moduleOf(std::uintptr_t address) {
  Dl_info info{};
  if (dladdr(reinterpret_cast<void *>(address), &info) == 0 || info.dli_fname == nullptr)
    return Unknown;
  const char *slash = std::strrchr(info.dli_fname, '/');
  return slash == nullptr ? info.dli_fname : slash + 1;
}

void writeFrame(Writer &writer, std::uintptr_t address, const char *symbol, const char *file, int line) {
  int status = -1;
  char *readable = symbol == nullptr ? nullptr : abi::__cxa_demangle(symbol, nullptr, nullptr, &status);
  const char *name = readable != nullptr ? readable : symbol != nullptr ? symbol : NoSymbols;
  if (file != nullptr)
    put(writer.descriptor, "#%d %#lx %s %s %s:%d\n", writer.frame, static_cast<unsigned long>(address), moduleOf(address),
        name, file, line);
  else
    put(writer.descriptor, "#%d %#lx %s %s %s\n", writer.frame, static_cast<unsigned long>(address), moduleOf(address), name,
        Unknown);
  ++writer.frame;
  std::free(readable);
}

struct Symbol {
  const char *name = nullptr;
};

int onFrame(void *data, std::uintptr_t address, const char *file, int line, const char *function) {
  Symbol symbol{function};
  if (function == nullptr)
    backtrace_syminfo(
        state, address,
        [](void *found, std::uintptr_t /*pc*/, const char *name, std::uintptr_t /*value*/, std::uintptr_t /*size*/) {
          static_cast<Symbol *>(found)->name = name;
        },
        ignoreError, &symbol);
  writeFrame(*static_cast<Writer *>(data), address, symbol.name, file, line);
  return 0;
}

} // namespace

void CallStack::prepare() {
  if (state == nullptr)
    state = backtrace_create_state(nullptr, 1, ignoreError, nullptr);
  // One step of the unwinder loads what it needs. The debugging information of the modules would take longer to read than
  // the program needs to start; write() reads it, into memory that the library maps for itself and not from the heap.
  if (state != nullptr)
    backtrace_simple(
        state, 0, [](void *, std::uintptr_t) { return 1; }, ignoreError, nullptr);
}

void CallStack::write(int fileDescriptor, int skip) {
  put(fileDescriptor, "Call stack:\n");
  if (state == nullptr)
    prepare();
  Writer writer{fileDescriptor};
  if (state != nullptr)
    backtrace_full(state, skip + 1, onFrame, ignoreError, &writer);
  if (writer.frame == 0)
    put(fileDescriptor, "%s\n", NoSymbols);
  put(fileDescriptor, "Loaded modules:\n");
  dl_iterate_phdr(writeModule, &fileDescriptor);
}
