#pragma once

#include <QList>
#include <QObject>

class QAction;

/// Gives the entries of every menu a letter to be chosen by, no two of a menu the same: the one that an entry has already
/// where it is free, else the beginning of one of its words, else any of its letters. A filter for the application's events,
/// which sees menus that are shown; the entries of a menu bar are to be given theirs once.
class Mnemonics : public QObject {
  Q_OBJECT
public:
  using QObject::QObject;

  static void assign(const QList<QAction *> &entries);
  /// What a person reads of a text with such a letter.
  static QString plain(const QString &text);
  /// The letter, in lower case; null when there is none.
  static QChar of(const QString &text);

  bool eventFilter(QObject *watched, QEvent *event) override;
};
