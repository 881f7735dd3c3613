#include <base/crashguard.h>
#include <base/logfiles.h>
#include <base/nivramsg.h>
#include <callstack/callstack.h>

#include <QCoreApplication>
#include <QFile>

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <typeinfo>
#include <unistd.h>

namespace {

constexpr std::size_t PathCapacity = 4096;
char markerPath[PathCapacity];                              // empty where a crash leaves no marker
constexpr std::size_t StackSize = std::size_t(1024) * 1024; // the call stack writer reads debugging information on it
alignas(16) char handlerStack[StackSize];

int personsError = STDERR_FILENO; // where the person who called a command line looks; the log otherwise

void put(const char *text) {
  ssize_t written = ::write(STDERR_FILENO, text, std::strlen(text));
  if (personsError != STDERR_FILENO)
    written = ::write(personsError, text, std::strlen(text));
  static_cast<void>(written); // there is nobody left to tell
}

void putNumber(int number) {
  char digits[16];
  char *position = digits + sizeof digits - 1;
  *position = '\0';
  do {
    *--position = static_cast<char>('0' + number % 10);
    number /= 10;
  } while (number > 0);
  put(position);
}

void createMarker() {
  if (markerPath[0] == '\0')
    return;
  const int file = ::open(markerPath, O_WRONLY | O_CREAT | O_TRUNC, 0644);
  if (file >= 0)
    ::close(file);
}

extern "C" void signalHandler(int number) {
  createMarker();
  put("signalHandler detected signal ");
  putNumber(number);
  put("\n");
  CallStack::write(STDERR_FILENO);
  _exit(number);
}

[[noreturn]] void terminateHandler() {
  createMarker();
  put("terminate called\n");
  if (const std::exception_ptr exception = std::current_exception()) {
    try {
      std::rethrow_exception(exception);
    } catch (const std::exception &error) {
      put(typeid(error).name());
      put(": ");
      put(error.what());
      put("\n");
    } catch (...) {
      put("an exception of unknown type\n");
    }
  }
  CallStack::write(STDERR_FILENO);
  std::abort();
}

void showNotice(const CrashGuard::Viewer &viewer) {
  const QString text = QCoreApplication::translate("CrashGuard", "It seems that the application crashed last time. Please "
                                                                 "report the logfile to the developers:\n") +
                       LogFiles::crashLog();
  const bool isShown = NivraMsg::showsBoxes();
  NivraMsg::show({NivraMsg::Kind::Information, text, QCoreApplication::translate("CrashGuard", "Crash detected")});
  if (isShown && viewer)
    viewer(LogFiles::crashLog());
}

} // namespace

void CrashGuard::setUp(LogFiles::Run run, const Viewer &viewer) {
  qputenv("NIVRAHOME", QCoreApplication::applicationDirPath().toUtf8());
  const bool isWindow = run == LogFiles::Run::Window;
  if (isWindow && LogFiles::takeCrash())
    showNotice(viewer);
  if (!LogFiles::redirectStreams(run))
    NivraMsg::logWarning(
        QCoreApplication::translate("CrashGuard", "The log file %1 cannot be written; messages go to standard error.")
            .arg(LogFiles::logOf(run)));
  if (!isWindow)
    personsError = LogFiles::realStandardError();
  installHandlers(isWindow ? LogFiles::crashMarker() : QString());
}

void CrashGuard::installHandlers(const QString &marker) {
  const QByteArray path = QFile::encodeName(marker);
  qstrncpy(markerPath, path.constData(), PathCapacity);
  CallStack::prepare();
  stack_t stack{};
  stack.ss_sp = handlerStack;
  stack.ss_size = StackSize;
  sigaltstack(&stack, nullptr);
  struct sigaction action {};
  action.sa_handler = signalHandler;
  action.sa_flags = static_cast<int>(SA_ONSTACK | SA_RESETHAND); // a fault inside the handler ends the process
  sigemptyset(&action.sa_mask);
  sigaction(SIGSEGV, &action, nullptr);
  sigaction(SIGFPE, &action, nullptr);
  std::set_terminate(terminateHandler);
}
