#pragma once

#include "helppages.h"

#include <QSplitter>

class QListWidget;
class QTextBrowser;

/// The window that shows the guide: its pages on the left, one of them on the right.
class HelpWindow : public QSplitter {
  Q_OBJECT
public:
  explicit HelpWindow(QWidget *parent = nullptr);

  /// The page of a tool, the first one when there is none of this name.
  void showPage(const QString &name);
  const HelpPages &pages() const { return m_pages; }

protected:
  void changeEvent(QEvent *event) override;

private:
  void show(int page);
  void follow(const QUrl &link);

  HelpPages m_pages;
  QListWidget *m_list;
  QTextBrowser *m_text;
};
