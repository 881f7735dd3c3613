#pragma once

#include <QDockWidget>

class QTextBrowser;

/// Shows the message log while the program runs.
class ConsoleDock : public QDockWidget {
  Q_OBJECT
public:
  explicit ConsoleDock(QWidget *parent = nullptr);

private:
  void append(const QString &text);

  QTextBrowser *m_text;
};
