#include "messagehandler.h"

#include <base/logo.h>
#include <base/nivramsg.h>

#include <QApplication>
#include <QDateTime>
#include <QDebug>
#include <QMessageBox>
#include <QPointer>
#include <QThread>

#include <atomic>

namespace NivraMsg {

namespace {

std::atomic<bool> interactiveSwitch{true};

/// A box cannot lay out a text of any length; the log takes the rest.
constexpr int LongestBoxText = 4000;

QString boxTitle(Kind kind) {
  switch (kind) {
  case Kind::Information:
    return QCoreApplication::translate("NivraMsg", "Information");
  case Kind::Warning:
    return QCoreApplication::translate("NivraMsg", "Warning");
  case Kind::Critical:
    return QCoreApplication::translate("NivraMsg", "Critical");
  case Kind::Question:
    break;
  }
  return QCoreApplication::translate("NivraMsg", "Question");
}

QMessageBox::Icon boxIcon(Kind kind) {
  switch (kind) {
  case Kind::Information:
    return QMessageBox::Information;
  case Kind::Warning:
    return QMessageBox::Warning;
  case Kind::Critical:
    return QMessageBox::Critical;
  case Kind::Question:
    break;
  }
  return QMessageBox::Question;
}

QString boxText(const QString &text) {
  if (text.size() <= LongestBoxText)
    return text;
  log(text);
  return text.left(LongestBoxText) + QStringLiteral(" …\n") +
         QCoreApplication::translate("NivraMsg", "(The whole message is in the log.)");
}

int showBox(Kind kind, const QString &text) {
  QWidget *parent = QApplication::activeModalWidget() ? QApplication::activeModalWidget() : QApplication::activeWindow();
  // On the heap, because the parent may be deleted while the box is open.
  const QPointer<QMessageBox> box = new QMessageBox(boxIcon(kind), boxTitle(kind), boxText(text), QMessageBox::Ok, parent);
  box->setWindowIcon(productLogo());
  if (kind == Kind::Question) {
    box->setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    box->setDefaultButton(QMessageBox::Cancel);
  }
  const int result = box->exec();
  delete box.data();
  return result;
}

int logInstead(Kind kind, const QString &text) {
  MessageHandler::install();
  if (kind == Kind::Information)
    qInfo().noquote() << text;
  else if (kind == Kind::Critical)
    qCritical().noquote() << text;
  else
    MessageHandler::writeLine(text);
  if (kind == Kind::Warning) // written without the message handler, which would have told the recorders
    MessageHandler::record(text);
  return 0;
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

int message(Kind kind, const QString &text) {
  auto *application = qobject_cast<QApplication *>(QCoreApplication::instance());
  if (!application || !isInteractive())
    return logInstead(kind, text);
  if (QThread::currentThread() == application->thread())
    return showBox(kind, text);
  int result = 0;
  QMetaObject::invokeMethod(
      application, [&]() { result = showBox(kind, text); }, Qt::BlockingQueuedConnection);
  return result;
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

void setInteractive(bool interactive) {
  interactiveSwitch = interactive;
}

bool isInteractive() {
  return interactiveSwitch && qgetenv("NIVRA_BATCH") != "1" && qgetenv("NIVRA_CUSTOM") != "1";
}

Recorder::Recorder()
    : m_recorded(std::make_unique<RecordedLines>()) {
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
