#include "messagehandler.h"

#include <base/agrees.h>
#include <base/nivramsg.h>
#include <base/withoutboxes.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QElapsedTimer>
#include <QThread>

#include <atomic>
#include <utility>

namespace NivraMsg {

namespace {

std::atomic<bool> interactiveSwitch{true};

std::atomic<qint64> millisecondsInBoxes{0};

BoxSink &boxSink() {
  static auto *sink = new BoxSink; // never destroyed: static objects may log while they are
  return *sink;
}

Answer waitFor(const Box &box) {
  QElapsedTimer open;
  open.start();
  const Answer answer = boxSink()(box);
  millisecondsInBoxes += open.elapsed();
  return answer;
}

Answer logInstead(Kind kind, const QString &text) {
  MessageHandler::install();
  if (kind == Kind::Information)
    qInfo().noquote() << text;
  else if (kind == Kind::Critical)
    qCritical().noquote() << text;
  else
    MessageHandler::writeLine(text);
  if (kind == Kind::Warning) // written without the message handler, which would have told the recorders
    MessageHandler::record(text);
  return Answer::None;
}

} // namespace

NivraLogger::NivraLogger() {
  if (QCoreApplication::instance())
    moveToThread(QCoreApplication::instance()->thread()); // the first message may come from a short-lived thread
}

NivraLogger &NivraLogger::instance() {
  static auto *logger = new NivraLogger; // never destroyed: static objects may log while they are
  return *logger;
}

void setBoxSink(BoxSink sink) {
  boxSink() = std::move(sink);
}

bool showsBoxes() {
  return QCoreApplication::instance() != nullptr && boxSink() && isInteractive();
}

Answer show(const Box &box) {
  if (!showsBoxes())
    return logInstead(box.kind, box.text);
  QCoreApplication *application = QCoreApplication::instance();
  if (QThread::currentThread() == application->thread())
    return waitFor(box);
  Answer answer = Answer::None;
  QMetaObject::invokeMethod(
      application, [&]() { answer = waitFor(box); }, Qt::BlockingQueuedConnection);
  return answer;
}

Answer message(Kind kind, const QString &text) {
  if (kind == Kind::Question)
    return show({kind, text, {}, {Answer::Yes, Answer::No, Answer::Cancel}, Answer::Cancel});
  return show({kind, text});
}

bool agrees(const QString &question) {
  return show({Kind::Question, question, {}, {Answer::Yes, Answer::No}, Answer::No}) == Answer::Yes;
}

void information(const QString &text) {
  message(Kind::Information, text);
}

void logTimeStamp(const QString &text) {
  MessageHandler::install();
  const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd, hh:mm:ss"));
  emit NivraLogger::instance().msgConsole(QStringLiteral("<i>") + time + QStringLiteral(": </i>") + text);
  qInfo().noquote() << text;
}

void log(const QString &text) {
  MessageHandler::install();
  emit NivraLogger::instance().msgConsole(text);
  qInfo().noquote() << text;
}

void logWarning(const QString &text) {
  MessageHandler::install();
  emit NivraLogger::instance().msgConsole(text);
  qWarning().noquote() << text;
}

void logCritical(const QString &text) {
  MessageHandler::install();
  emit NivraLogger::instance().msgConsole(text);
  qCritical().noquote() << text;
}

void debug(const QString &text) {
  MessageHandler::install();
  qDebug().noquote() << text;
}

qint64 waitedForAnswers() {
  return millisecondsInBoxes;
}

void setInteractive(bool interactive) {
  interactiveSwitch = interactive;
}

WithoutBoxes::WithoutBoxes()
    : m_before(interactiveSwitch.exchange(false)) {}

WithoutBoxes::~WithoutBoxes() {
  interactiveSwitch = m_before;
}

bool isInteractive() {
  return interactiveSwitch && qgetenv("NIVRA_BATCH") != "1" && qgetenv("NIVRA_CUSTOM") != "1";
}

Recorder::Recorder()
    : m_recorded(std::make_unique<RecordedLines>(MaximumLines)) {
  MessageHandler::install();
  MessageHandler::add(m_recorded.get());
}

Recorder::~Recorder() {
  MessageHandler::remove(m_recorded.get());
}

QStringList Recorder::lines() const {
  return MessageHandler::copy(*m_recorded).lines;
}

int Recorder::dropped() const {
  return MessageHandler::copy(*m_recorded).dropped;
}

} // namespace NivraMsg
