// Starts like the program and then crashes in the way that its argument names.

#include <base/crashguard.h>
#include <base/nivramsg.h>

#include <QCoreApplication>

#include <csignal>
#include <cstdio>
#include <stdexcept>

namespace {

// The sanitizers would report the fault instead of letting it happen.
[[gnu::noinline, gnu::no_sanitize("address", "undefined")]] void crashByBadAccess() {
  volatile int *volatile nowhere = nullptr;
  *nowhere = 1; // NOLINT(clang-analyzer-core.NullDereference): the purpose of this program
  std::puts("still here");
}

[[gnu::noinline]] void crashByArithmetic() {
  std::raise(SIGFPE); // what a division by zero does on processors that trap it
  std::puts("still here");
}

[[gnu::noinline]] void crashByException() {
  throw std::runtime_error("nobody catches this");
}

volatile bool endless = true; // the compiler cannot see that the recursion has no end

[[gnu::noinline]] int crashByEndlessRecursion(volatile char *previous) {
  volatile char here[4096];
  here[0] = previous == nullptr ? 'x' : previous[0];
  const int below = endless ? crashByEndlessRecursion(here) : 0;
  return below + here[0];
}

} // namespace

int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  CrashGuard::setUp(LogFiles::Run::Window);
  NivraMsg::log(QStringLiteral("started"));
  const QByteArray how = argc > 1 ? QByteArray(argv[1]) : QByteArray();
  if (how == "access")
    crashByBadAccess();
  else if (how == "arithmetic")
    crashByArithmetic();
  else if (how == "exception")
    crashByException();
  else if (how == "recursion")
    return crashByEndlessRecursion(nullptr);
  return 0;
}
