#include "consoledock.h"

#include <base/nivramsg.h>

#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextCursor>

ConsoleDock::ConsoleDock(const QStringList &before, QWidget *parent)
    : QDockWidget(tr("Messages"), parent)
    , m_text(new QPlainTextEdit(this)) {
  setObjectName(QStringLiteral("consoleDock")); // by this name the window keeps its place
  constexpr int KeptLines = 10000;
  m_text->setReadOnly(true);
  m_text->setAccessibleName(tr("Messages"));
  m_text->setUndoRedoEnabled(false);
  m_text->setMaximumBlockCount(KeptLines);
  m_text->setPlaceholderText(tr("Messages of the program appear here."));
  setWidget(m_text);
  for (const QString &text : before)
    append(text);
  // Messages come from any thread; the queue brings them to this one.
  connect(&NivraMsg::NivraLogger::instance(), &NivraMsg::NivraLogger::msgConsole, this, &ConsoleDock::append);
}

// Names of elements stand in messages, hence a message is plain text. Of markup there is only what the program itself
// writes: the time before a message, and line ends in the list of the consistency check.
void ConsoleDock::append(const QString &text) {
  static const QRegularExpression timeStamp(QStringLiteral("^<i>([-0-9]{10}, [:0-9]{8}: )</i>"));
  const QRegularExpressionMatch match = timeStamp.match(text);
  QString message = text.mid(match.capturedLength());
  message.replace(QStringLiteral("<br/>"), QStringLiteral("\n"));
  QScrollBar *bar = m_text->verticalScrollBar();
  const bool isAtEnd = bar->value() == bar->maximum();
  QTextCursor cursor(m_text->document());
  cursor.movePosition(QTextCursor::End);
  if (!m_text->document()->isEmpty())
    cursor.insertBlock();
  QTextCharFormat italic;
  italic.setFontItalic(true);
  cursor.insertText(match.captured(1), italic);
  cursor.insertText(message, QTextCharFormat());
  if (isAtEnd) // who reads further up stays there
    bar->setValue(bar->maximum());
}
