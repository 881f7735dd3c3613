#pragma once

#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <vector>

class QAction;
class QMenu;
class QWidget;

/// A command of the window as a list of commands shows it.
struct Command {
  QString text;
  QString menu; ///< where it stands, such as "Drawing › Edge colour"
  QString key;
  QPointer<QAction> action;

  /// By which it is remembered: the same in the next session.
  QString id() const { return menu.isEmpty() ? text : menu + QLatin1Char('/') + text; }
  bool isEnabled() const;
  bool isChecked() const;
};

namespace CommandList {

/// What stands in the menus, which are filled as if they were about to be shown, then the other actions of the window; each
/// once.
std::vector<Command> of(const QList<QAction *> &menuBar, const QWidget &window);
/// Indices of the commands that have every word of the query in their text or menu, regardless of case: first those whose
/// words begin so, among them those used last; at the end what cannot be done now. \param used ids, the latest first
std::vector<int> matching(const std::vector<Command> &commands, const QString &query, const QStringList &used);

/// The commands used last, kept for the person in "lastcommands.json", the latest first.
QStringList lastUsed();
void remember(const QString &id);

} // namespace CommandList
