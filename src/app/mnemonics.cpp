#include "mnemonics.h"

#include <QAction>
#include <QEvent>
#include <QMenu>
#include <QSet>

namespace {

constexpr QChar Marker = QLatin1Char('&');

/// A text without its marker, and where that stood.
struct Marked {
  QString plain;
  int position = -1;

  explicit Marked(const QString &text) {
    for (int i = 0; i < text.size(); ++i) {
      if (text[i] == Marker && i + 1 < text.size()) {
        ++i; // two of them stand for one
        if (text[i] != Marker)
          position = plain.size();
      }
      plain += text[i];
    }
  }

  QString text() const {
    QString marked;
    for (int i = 0; i < plain.size(); ++i) {
      if (i == position)
        marked += Marker;
      marked += plain[i];
      if (plain[i] == Marker)
        marked += Marker;
    }
    return marked;
  }
};

/// Positions at which the letter may stand, the best first. What follows a tabulator is no part of the name.
QList<int> candidates(const QString &plain) {
  QList<int> initials;
  QList<int> others;
  for (int i = 0; i < plain.size() && plain[i] != QLatin1Char('\t'); ++i) {
    if (plain[i].isLetterOrNumber())
      (i == 0 || !plain[i - 1].isLetterOrNumber() ? initials : others).append(i);
  }
  return initials + others;
}

} // namespace

QString Mnemonics::plain(const QString &text) {
  return Marked(text).plain;
}

QChar Mnemonics::of(const QString &text) {
  const Marked marked(text);
  return marked.position < 0 ? QChar() : marked.plain[marked.position].toLower();
}

void Mnemonics::assign(const QList<QAction *> &entries) {
  QSet<QChar> taken;
  QList<QAction *> without;
  for (QAction *entry : entries) {
    if (entry->isSeparator() || !entry->isVisible())
      continue;
    const QChar letter = of(entry->text());
    if (letter.isNull() || taken.contains(letter))
      without.append(entry);
    else
      taken.insert(letter);
  }
  for (QAction *entry : qAsConst(without)) {
    Marked marked(entry->text());
    marked.position = -1;
    for (const int position : candidates(marked.plain)) {
      if (taken.contains(marked.plain[position].toLower()))
        continue;
      marked.position = position;
      taken.insert(marked.plain[position].toLower());
      break;
    }
    entry->setText(marked.text());
  }
}

bool Mnemonics::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::Show) {
    if (const auto *menu = qobject_cast<const QMenu *>(watched))
      assign(menu->actions());
  }
  return false;
}
