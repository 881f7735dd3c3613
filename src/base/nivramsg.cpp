#include <base/nivramsg.h>

#include <QApplication>
#include <QDateTime>
#include <QDebug>
#include <QIcon>
#include <QMessageBox>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <mutex>
#include <vector>

namespace {

std::atomic<bool> interactive{true};

struct Recording {
  const NivraMsg::Recorder *owner;
  QStringList lines;
  int dropped = 0;
};

std::mutex recordingsMutex;
std::vector<Recording> &recordings() {
  static std::vector<Recording> list;
  return list;
}

void record(const QString &text) {
  const std::lock_guard lock(recordingsMutex);
  for (Recording &recording : recordings()) {
    if (recording.lines.size() < NivraMsg::Recorder::MaximumLines)
      recording.lines.append(text);
    else
      ++recording.dropped;
  }
}

/// True while this thread logs through the service, which has recorded the line already: the toolkit's own warnings come
/// through the handler alone.
thread_local bool recorded = false;

void logAt(QtMsgType type, const QString &text) {
  if (type == QtWarningMsg || type == QtCriticalMsg)
    record(text);
  recorded = true;
  switch (type) {
  case QtDebugMsg:
    qDebug().noquote() << text;
    break;
  case QtWarningMsg:
    qWarning().noquote() << text;
    break;
  case QtCriticalMsg:
    qCritical().noquote() << text;
    break;
  default:
    qInfo().noquote() << text;
    break;
  }
  recorded = false;
}

/// Plain lines on standard error, which is the log file: the toolkit's own handler might send them to a system journal.
void writeLine(QtMsgType type, const QMessageLogContext & /*context*/, const QString &text) {
  if (!recorded && (type == QtWarningMsg || type == QtCriticalMsg))
    record(text);
  std::fprintf(stderr, "%s\n", text.toUtf8().constData());
  if (type == QtFatalMsg)
    std::abort();
}

void installHandler() {
  static std::once_flag once;
  std::call_once(once, [] { qInstallMessageHandler(writeLine); });
}

struct BoxLook {
  QMessageBox::Icon icon;
  QString title;
};

BoxLook look(NivraMsg::Kind kind) {
  const auto tr = [](const char *text) {
    return QCoreApplication::translate("NivraMsg", text);
  };
  switch (kind) {
  case NivraMsg::Kind::Information:
    return {QMessageBox::Information, tr("Information")};
  case NivraMsg::Kind::Warning:
    return {QMessageBox::Warning, tr("Warning")};
  case NivraMsg::Kind::Critical:
    return {QMessageBox::Critical, tr("Critical")};
  case NivraMsg::Kind::Question:
    break;
  }
  return {QMessageBox::Question, tr("Question")};
}

int showBox(NivraMsg::Kind kind, const QString &text) {
  const BoxLook boxLook = look(kind);
  QMessageBox box(boxLook.icon, boxLook.title, text, QMessageBox::Ok, QApplication::activeWindow());
  box.setWindowIcon(QIcon(QStringLiteral(":/icons/nivra.svg")));
  if (kind == NivraMsg::Kind::Question) {
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    box.setDefaultButton(QMessageBox::Cancel);
  }
  return box.exec();
}

bool canShowBoxes() {
  return NivraMsg::isInteractive() && qobject_cast<QApplication *>(QCoreApplication::instance()) != nullptr;
}

} // namespace

NivraMsg::NivraLogger &NivraMsg::NivraLogger::instance() {
  static NivraLogger logger;
  return logger;
}

int NivraMsg::message(Kind kind, const QString &text) {
  if (!canShowBoxes()) {
    if (kind == Kind::Information)
      log(text);
    else if (kind == Kind::Critical)
      logCritical(text);
    else
      std::fprintf(stderr, "%s\n", text.toUtf8().constData());
    return 0;
  }
  if (QThread::currentThread() == qApp->thread())
    return showBox(kind, text);
  int button = 0;
  QMetaObject::invokeMethod(
      qApp, [&] { button = showBox(kind, text); }, Qt::BlockingQueuedConnection);
  return button;
}

void NivraMsg::information(const QString &text) {
  message(Kind::Information, text);
}

void NivraMsg::logTimeStamp(const QString &text) {
  installHandler();
  const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd, hh:mm:ss"));
  emit NivraLogger::instance().msgConsole(QStringLiteral("<i>") + time + QStringLiteral(": </i>") + text);
  logAt(QtInfoMsg, text);
}

void NivraMsg::log(const QString &text) {
  installHandler();
  emit NivraLogger::instance().msgConsole(text);
  logAt(QtInfoMsg, text);
}

void NivraMsg::logWarning(const QString &text) {
  installHandler();
  emit NivraLogger::instance().msgConsole(text);
  logAt(QtWarningMsg, text);
}

void NivraMsg::logCritical(const QString &text) {
  installHandler();
  emit NivraLogger::instance().msgConsole(text);
  logAt(QtCriticalMsg, text);
}

void NivraMsg::debug(const QString &text) {
  installHandler();
  logAt(QtDebugMsg, text);
}

void NivraMsg::setInteractive(bool on) {
  interactive = on;
}

bool NivraMsg::isInteractive() {
  return interactive && qgetenv("NIVRA_BATCH") != "1" && qgetenv("NIVRA_CUSTOM") != "1";
}

NivraMsg::Recorder::Recorder() {
  installHandler();
  const std::lock_guard lock(recordingsMutex);
  recordings().push_back({this, {}, 0});
}

NivraMsg::Recorder::~Recorder() {
  const std::lock_guard lock(recordingsMutex);
  auto &list = recordings();
  list.erase(std::remove_if(list.begin(), list.end(), [this](const Recording &r) { return r.owner == this; }), list.end());
}

QStringList NivraMsg::Recorder::lines() const {
  const std::lock_guard lock(recordingsMutex);
  for (const Recording &recording : recordings()) {
    if (recording.owner == this)
      return recording.lines;
  }
  return {};
}

int NivraMsg::Recorder::dropped() const {
  const std::lock_guard lock(recordingsMutex);
  for (const Recording &recording : recordings()) {
    if (recording.owner == this)
      return recording.dropped;
  }
  return 0;
}
