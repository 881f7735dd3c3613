#include "messagehandler.h"

#include <base/logo.h>
#include <base/nivramsg.h>

#include <QApplication>
#include <QDateTime>
#include <QDebug>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScreen>
#include <QTextBlock>
#include <QThread>

#include <algorithm>
#include <atomic>

namespace NivraMsg {

namespace {

std::atomic<bool> interactiveSwitch{true};

std::atomic<qint64> millisecondsInBoxes{0};

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

bool isLong(const QString &text) {
  constexpr int MostLines = 12;
  constexpr int MostCharacters = 1000;
  return text.size() > MostCharacters || text.count(QLatin1Char('\n')) >= MostLines;
}

/// Shows the box's text in an area that scrolls, as large as the text or half of the screen, whichever is smaller.
void scrollText(QMessageBox &box) {
  auto *label = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
  auto *grid = qobject_cast<QGridLayout *>(box.layout());
  if (label == nullptr || grid == nullptr)
    return;
  auto *area = new QPlainTextEdit(box.text());
  area->setReadOnly(true);
  area->setTabChangesFocus(true);
  const QFontMetrics metrics = area->fontMetrics();
  const QSize available = box.screen()->availableSize() / 2;
  const int lines = area->document()->blockCount();
  int widest = 0;
  for (QTextBlock block = area->document()->firstBlock(); block.isValid() && widest < available.width();
       block = block.next())
    widest = std::max(widest, metrics.horizontalAdvance(block.text()));
  constexpr int Smallest = 320; // pixels
  constexpr int Frame = 40;     // with the scroll bar
  area->setFixedSize(qBound(Smallest, widest + Frame, std::max(Smallest, available.width())),
                     qBound(Smallest / 2, (lines + 2) * metrics.lineSpacing(), std::max(Smallest / 2, available.height())));
  int row = 0;
  int column = 0;
  int rows = 0;
  int columns = 0;
  grid->getItemPosition(grid->indexOf(label), &row, &column, &rows, &columns);
  label->hide();
  grid->addWidget(area, row, column, rows, columns);
}

int showBox(Kind kind, const QString &text) {
  QWidget *parent = QApplication::activeModalWidget() ? QApplication::activeModalWidget() : QApplication::activeWindow();
  QElapsedTimer open;
  open.start();
  // On the heap, because the parent may be deleted while the box is open.
  const QPointer<QMessageBox> box = new QMessageBox(parent);
  box->setTextFormat(Qt::PlainText); // names of a workspace are in it
  box->setIcon(boxIcon(kind));
  box->setWindowTitle(boxTitle(kind));
  box->setText(text);
  box->setStandardButtons(QMessageBox::Ok);
  box->setWindowIcon(productLogo());
  if (isLong(text))
    scrollText(*box);
  if (kind == Kind::Question) {
    box->setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    box->setDefaultButton(QMessageBox::Cancel);
  }
  const int result = box->exec();
  delete box.data();
  millisecondsInBoxes += open.elapsed();
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

qint64 waitedForAnswers() {
  return millisecondsInBoxes;
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
