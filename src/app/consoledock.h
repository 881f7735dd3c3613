#pragma once

#include <QDockWidget>

class QPlainTextEdit;

/// Shows the message log while the program runs; as plain text, for a workspace's words are in it.
class ConsoleDock : public QDockWidget {
  Q_OBJECT
public:
  /// before are the messages that came when there was no dock yet.
  explicit ConsoleDock(const QStringList &before = {}, QWidget *parent = nullptr);

private:
  void append(const QString &text);

  QPlainTextEdit *m_text;
};
