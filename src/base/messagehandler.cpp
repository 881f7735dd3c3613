#include "messagehandler.h"

#include <QtGlobal>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <mutex>
#include <vector>

namespace {

std::atomic<QtMessageHandler> foreignHandler{nullptr};
thread_local bool insideHandler = false;

// None of these is ever destroyed: static objects may log while they are.
std::mutex &foreignMutex() {
  static auto *mutex = new std::mutex;
  return *mutex;
}

std::mutex &recorderMutex() {
  static auto *mutex = new std::mutex;
  return *mutex;
}

std::vector<NivraMsg::RecordedLines *> &recorders() {
  static auto *list = new std::vector<NivraMsg::RecordedLines *>;
  return *list;
}

void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &text) {
  if (type == QtWarningMsg || type == QtCriticalMsg || type == QtFatalMsg)
    NivraMsg::MessageHandler::record(text);
  const QtMessageHandler foreign = foreignHandler.load();
  if (!foreign || insideHandler) { // a foreign handler may pass the message on to the handler that it found: to us
    NivraMsg::MessageHandler::writeLine(text);
    return;
  }
  const std::lock_guard lock(foreignMutex()); // not every handler is made for several threads
  insideHandler = true;
  foreign(type, context, text);
  insideHandler = false;
}

/// Qt hands out its default handler only as the predecessor of another one.
QtMessageHandler defaultHandler() {
  static const QtMessageHandler handler = []() {
    const QtMessageHandler current = qInstallMessageHandler(nullptr);
    return qInstallMessageHandler(current);
  }();
  return handler;
}

} // namespace

namespace NivraMsg {

void MessageHandler::install() {
  const QtMessageHandler standard = defaultHandler();
  const QtMessageHandler previous = qInstallMessageHandler(handleMessage);
  if (previous != handleMessage)
    foreignHandler = previous == standard ? nullptr : previous;
}

void MessageHandler::writeLine(const QString &text) {
  const QByteArray line = text.toUtf8() + '\n';
  std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stderr); // a full disk loses the line, not the program
}

void MessageHandler::record(const QString &text) {
  const std::lock_guard<std::mutex> lock(recorderMutex());
  for (RecordedLines *recorder : recorders()) {
    if (recorder->lines.size() < recorder->maximum)
      recorder->lines.append(text);
    else
      ++recorder->dropped;
  }
}

void MessageHandler::add(RecordedLines *recorder) {
  const std::lock_guard<std::mutex> lock(recorderMutex());
  recorders().push_back(recorder);
}

void MessageHandler::remove(RecordedLines *recorder) {
  const std::lock_guard<std::mutex> lock(recorderMutex());
  auto &list = recorders();
  list.erase(std::remove(list.begin(), list.end(), recorder), list.end());
}

RecordedLines MessageHandler::copy(const RecordedLines &recorder) {
  const std::lock_guard<std::mutex> lock(recorderMutex());
  return recorder;
}

} // namespace NivraMsg
