// The debugging support library and the module functions are loaded at run time: a system may lack any of them, and the
// program must start all the same.

#include <callstack/callstack.h>

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <cwchar>
#include <initializer_list>

// The system's other headers need <windows.h> before them.
// clang-format off
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#include <dbghelp.h>
#include <io.h>
#include <psapi.h>
#include <tlhelp32.h>
// clang-format on

namespace {

constexpr const char *UnknownText = "-unknown-";
constexpr const char *NoSymbolsText = "-nosymbols-";
constexpr const char *ExportedText = "-exported-";
constexpr int MostFrames = 256; // an endless recursion would fill the disk
constexpr DWORD LongestSymbol = 1024;
constexpr DWORD MostModules = 1024;

void put(int descriptor, const char *format, ...) {
  char line[3072];
  va_list arguments;
  va_start(arguments, format);
  const int length = std::vsnprintf(line, sizeof line, format, arguments);
  va_end(arguments);
  if (length <= 0)
    return;
  const auto longest = static_cast<int>(sizeof line) - 1;
  const int written = _write(descriptor, line, static_cast<unsigned>(length < longest ? length : longest));
  static_cast<void>(written); // there is nobody left to tell
}

/// False, and a null pointer, when the library lacks the function.
template <typename Function>
bool resolve(HMODULE library, const char *name, Function &function) {
  const FARPROC address = library == nullptr ? nullptr : GetProcAddress(library, name);
  static_assert(sizeof function == sizeof address, "both are code pointers");
  std::memcpy(&function, &address, sizeof function);
  return function != nullptr;
}

/// The functions of dbghelp.dll.
struct DebugHelp {
  decltype(&::SymInitialize) symInitialize = nullptr;
  decltype(&::SymGetOptions) symGetOptions = nullptr;
  decltype(&::SymSetOptions) symSetOptions = nullptr;
  decltype(&::SymLoadModule64) symLoadModule = nullptr;
  decltype(&::SymGetModuleInfo64) symGetModuleInfo = nullptr;
  decltype(&::SymGetModuleBase64) symGetModuleBase = nullptr;
  decltype(&::SymFunctionTableAccess64) symFunctionTableAccess = nullptr;
  decltype(&::SymGetSymFromAddr64) symGetSymFromAddr = nullptr;
  decltype(&::SymGetLineFromAddr64) symGetLineFromAddr = nullptr;
  decltype(&::StackWalk64) stackWalk = nullptr;
  bool ready = false;
};

DebugHelp debugHelp;

HMODULE loadBesideProgram() {
  wchar_t path[MAX_PATH + 16];
  const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
  if (length == 0 || length >= MAX_PATH)
    return nullptr;
  wchar_t *slash = std::wcsrchr(path, L'\\');
  if (slash == nullptr)
    return nullptr;
  std::wcscpy(slash, L"\\dbghelp.dll");
  return LoadLibraryW(path);
}

HMODULE loadFromProgramFiles() {
  wchar_t programFiles[MAX_PATH];
  const DWORD length = GetEnvironmentVariableW(L"ProgramFiles", programFiles, MAX_PATH);
  if (length == 0 || length >= MAX_PATH)
    return nullptr;
  for (const wchar_t *place :
       {L"\\Debugging Tools for Windows (x64)\\dbghelp.dll", L"\\Debugging Tools for Windows\\dbghelp.dll",
        L"\\Debugging Tools for Windows 64-Bit\\dbghelp.dll"}) {
    wchar_t path[MAX_PATH + 64];
    std::wcscpy(path, programFiles);
    std::wcscat(path, place);
    if (const HMODULE library = LoadLibraryW(path))
      return library;
  }
  return nullptr;
}

HMODULE loadDebugHelp() {
  if (const HMODULE library = loadBesideProgram())
    return library;
  if (const HMODULE library = loadFromProgramFiles())
    return library;
  return LoadLibraryW(L"dbghelp.dll");
}

bool resolveAll(HMODULE library) {
  return resolve(library, "SymInitialize", debugHelp.symInitialize) &&
         resolve(library, "SymGetOptions", debugHelp.symGetOptions) &&
         resolve(library, "SymSetOptions", debugHelp.symSetOptions) &&
         resolve(library, "SymLoadModule64", debugHelp.symLoadModule) &&
         resolve(library, "SymGetModuleInfo64", debugHelp.symGetModuleInfo) &&
         resolve(library, "SymGetModuleBase64", debugHelp.symGetModuleBase) &&
         resolve(library, "SymFunctionTableAccess64", debugHelp.symFunctionTableAccess) &&
         resolve(library, "SymGetSymFromAddr64", debugHelp.symGetSymFromAddr) &&
         resolve(library, "SymGetLineFromAddr64", debugHelp.symGetLineFromAddr) &&
         resolve(library, "StackWalk64", debugHelp.stackWalk);
}

const char *symbolKind(SYM_TYPE type) {
  switch (type) {
  case SymNone:
    return NoSymbolsText;
  case SymExport:
    return ExportedText;
  case SymCoff:
    return "COFF";
  case SymCv:
    return "CV";
  case SymPdb:
    return "PDB";
  case SymDia:
    return "DIA";
  case SymSym:
    return "SYM";
  case SymDeferred:
    return "-deferred-";
  default:
    return UnknownText;
  }
}

bool moduleInfo(DWORD64 address, IMAGEHLP_MODULE64 &info) {
  std::memset(&info, 0, sizeof info);
  info.SizeOfStruct = sizeof info;
  return debugHelp.ready && debugHelp.symGetModuleInfo(GetCurrentProcess(), address, &info) != FALSE;
}

/// Makes the module known to the debugging support and writes its line.
void writeModule(int descriptor, const char *path, const char *name, DWORD64 base, DWORD size) {
  const char *kind = NoSymbolsText;
  IMAGEHLP_MODULE64 info;
  if (debugHelp.ready) {
    debugHelp.symLoadModule(GetCurrentProcess(), nullptr, path, name, base, size);
    kind = moduleInfo(base, info) ? symbolKind(info.SymType) : UnknownText;
  }
  put(descriptor, "module %#014llx %s %s %s\n", static_cast<unsigned long long>(base), name, kind, path);
}

bool writeModulesBySnapshot(int descriptor) {
  decltype(&::CreateToolhelp32Snapshot) createSnapshot = nullptr;
  decltype(&::Module32First) first = nullptr;
  decltype(&::Module32Next) next = nullptr;
  const HMODULE kernel = GetModuleHandleW(L"kernel32.dll");
  if (!resolve(kernel, "CreateToolhelp32Snapshot", createSnapshot) || !resolve(kernel, "Module32First", first) ||
      !resolve(kernel, "Module32Next", next))
    return false;
  const HANDLE snapshot = createSnapshot(TH32CS_SNAPMODULE, GetCurrentProcessId());
  if (snapshot == INVALID_HANDLE_VALUE)
    return false;
  MODULEENTRY32 entry;
  std::memset(&entry, 0, sizeof entry);
  entry.dwSize = sizeof entry;
  bool any = false;
  for (BOOL more = first(snapshot, &entry); more != FALSE; more = next(snapshot, &entry)) {
    writeModule(descriptor, entry.szExePath, entry.szModule, reinterpret_cast<DWORD64>(entry.modBaseAddr),
                entry.modBaseSize);
    any = true;
  }
  CloseHandle(snapshot);
  return any;
}

bool writeModulesByProcessStatus(int descriptor) {
  decltype(&::EnumProcessModules) enumerate = nullptr;
  decltype(&::GetModuleInformation) information = nullptr;
  decltype(&::GetModuleFileNameExA) fileName = nullptr;
  decltype(&::GetModuleBaseNameA) baseName = nullptr;
  const HMODULE library = LoadLibraryW(L"psapi.dll");
  if (!resolve(library, "EnumProcessModules", enumerate) || !resolve(library, "GetModuleInformation", information) ||
      !resolve(library, "GetModuleFileNameExA", fileName) || !resolve(library, "GetModuleBaseNameA", baseName))
    return false;
  static HMODULE modules[MostModules]; // off the stack, which may be nearly used up
  DWORD bytes = 0;
  if (enumerate(GetCurrentProcess(), modules, sizeof modules, &bytes) == FALSE)
    return false;
  DWORD count = bytes / sizeof(HMODULE);
  if (count > MostModules)
    count = MostModules;
  for (DWORD i = 0; i < count; ++i) {
    MODULEINFO info{};
    char path[MAX_PATH] = "";
    char name[MAX_PATH] = "";
    if (information(GetCurrentProcess(), modules[i], &info, sizeof info) == FALSE)
      continue;
    fileName(GetCurrentProcess(), modules[i], path, MAX_PATH);
    baseName(GetCurrentProcess(), modules[i], name, MAX_PATH);
    writeModule(descriptor, path, name, reinterpret_cast<DWORD64>(info.lpBaseOfDll), info.SizeOfImage);
  }
  return count > 0;
}

const char *fileOf(const char *path) {
  const char *name = path;
  for (const char *c = path; *c != '\0'; ++c) {
    if (*c == '\\' || *c == '/')
      name = c + 1;
  }
  return name;
}

void writeFrame(int descriptor, int number, DWORD64 address) {
  const HANDLE process = GetCurrentProcess();
  const DWORD64 call = address - 1; // every frame here is a return address, which may belong to the next line already
  IMAGEHLP_MODULE64 info;
  const bool known = moduleInfo(call, info);
  const char *module = known ? fileOf(info.ImageName) : UnknownText;

  alignas(IMAGEHLP_SYMBOL64) char storage[sizeof(IMAGEHLP_SYMBOL64) + LongestSymbol] = {};
  auto *symbol = reinterpret_cast<IMAGEHLP_SYMBOL64 *>(storage);
  symbol->SizeOfStruct = sizeof(IMAGEHLP_SYMBOL64);
  symbol->MaxNameLength = LongestSymbol - 1;
  DWORD64 offset = 0;
  const bool named = debugHelp.symGetSymFromAddr(process, call, &offset, symbol) != FALSE;
  const char *name = named ? symbol->Name : known && info.SymType == SymNone ? NoSymbolsText : UnknownText;

  IMAGEHLP_LINE64 line;
  std::memset(&line, 0, sizeof line);
  line.SizeOfStruct = sizeof line;
  DWORD lineOffset = 0;
  if (debugHelp.symGetLineFromAddr(process, call, &lineOffset, &line) != FALSE && line.FileName != nullptr)
    put(descriptor, "#%d %#llx %s %s %s:%lu\n", number, static_cast<unsigned long long>(address), module, name,
        line.FileName, line.LineNumber);
  else
    put(descriptor, "#%d %#llx %s %s %s\n", number, static_cast<unsigned long long>(address), module, name,
        known && info.SymType == SymExport ? ExportedText : UnknownText);
}

/// Where the walk starts, and the processor type that StackWalk64 wants.
DWORD startFrame(const CONTEXT &context, STACKFRAME64 &frame) {
  std::memset(&frame, 0, sizeof frame);
  frame.AddrPC.Mode = frame.AddrFrame.Mode = frame.AddrStack.Mode = AddrModeFlat;
#if defined(_M_X64) || defined(__x86_64__)
  frame.AddrPC.Offset = context.Rip;
  frame.AddrFrame.Offset = context.Rbp;
  frame.AddrStack.Offset = context.Rsp;
  return IMAGE_FILE_MACHINE_AMD64;
#elif defined(_M_ARM64) || defined(__aarch64__)
  frame.AddrPC.Offset = context.Pc;
  frame.AddrFrame.Offset = context.Fp;
  frame.AddrStack.Offset = context.Sp;
  return IMAGE_FILE_MACHINE_ARM64;
#else
  frame.AddrPC.Offset = context.Eip;
  frame.AddrFrame.Offset = context.Ebp;
  frame.AddrStack.Offset = context.Esp;
  return IMAGE_FILE_MACHINE_I386;
#endif
}

int writeFrames(int descriptor, CONTEXT &context, int skip) {
  STACKFRAME64 frame;
  const DWORD machine = startFrame(context, frame);
  for (int i = 0; i < skip + MostFrames; ++i) {
    const bool more = debugHelp.stackWalk(machine, GetCurrentProcess(), GetCurrentThread(), &frame, &context, nullptr,
                                          debugHelp.symFunctionTableAccess, debugHelp.symGetModuleBase, nullptr) != FALSE;
    if (!more || frame.AddrPC.Offset == 0)
      return i - skip;
    if (i >= skip)
      writeFrame(descriptor, i - skip, frame.AddrPC.Offset);
  }
  put(descriptor, "... further frames are left out\n");
  return MostFrames;
}

} // namespace

void CallStack::prepare() {
  if (debugHelp.ready || !resolveAll(loadDebugHelp()))
    return;
  debugHelp.symSetOptions(debugHelp.symGetOptions() | SYMOPT_LOAD_LINES | SYMOPT_UNDNAME | SYMOPT_FAIL_CRITICAL_ERRORS);
  debugHelp.ready = debugHelp.symInitialize(GetCurrentProcess(), nullptr, FALSE) != FALSE;
}

void CallStack::write(int fileDescriptor, int skip) {
  CONTEXT context;
  RtlCaptureContext(&context);
  prepare();
  put(fileDescriptor, "Loaded modules:\n");
  if (!writeModulesBySnapshot(fileDescriptor) && !writeModulesByProcessStatus(fileDescriptor))
    put(fileDescriptor, "%s\n", UnknownText);
  put(fileDescriptor, "Call stack:\n");
  if (!debugHelp.ready || writeFrames(fileDescriptor, context, skip + 1) <= 0)
    put(fileDescriptor, "%s\n", NoSymbolsText);
}
