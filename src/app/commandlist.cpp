#include "commandlist.h"

#include "mnemonics.h"

#include <base/fileaccess.h>
#include <base/index.h>
#include <base/logfiles.h>
#include <base/nivramsg.h>
#include <base/wholefile.h>

#include <QAction>
#include <QActionGroup>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMenu>
#include <QSet>

#include <algorithm>
#include <optional>
#include <tuple>

namespace {

constexpr int RememberedCommands = 30;
const QString MenuSeparator = QStringLiteral(" › ");
const QString ChoiceSeparator = QStringLiteral(": "); // of what is chosen for something

/// Whether it is one of several values that a menu offers, which alone do not say of what: "pressure".
bool isChoice(const QAction &entry) {
  return entry.isCheckable() && entry.actionGroup() != nullptr && entry.actionGroup()->isExclusive();
}

/// Adds what the entries lead to, and what is behind their menus.
void collect(const QList<QAction *> &entries, const QString &path, QSet<const QAction *> &seen,
             std::vector<Command> &commands) {
  for (QAction *entry : entries) {
    if (entry->isSeparator() || !entry->isVisible() || seen.contains(entry))
      continue;
    const QStringList parts = entry->text().split(QLatin1Char('\t'));
    const QString text = Mnemonics::plain(parts.value(0));
    if (QMenu *menu = entry->menu()) {
      emit menu->aboutToShow(); // many are filled then
      collect(menu->actions(), path.isEmpty() ? text : path + MenuSeparator + text, seen, commands);
    } else if (!text.isEmpty()) {
      seen.insert(entry);
      const QString key = entry->shortcut().toString(QKeySequence::NativeText);
      const bool isAnother = key.isEmpty() || std::none_of(commands.begin(), commands.end(), [&](const Command &known) {
                               return known.text == text && known.key == key; // the window's own beside that of a menu
                             });
      if (!isAnother)
        continue;
      commands.push_back({text, path, key.isEmpty() ? parts.value(1) : key, entry});
    }
  }
}

/// Commands of menus within menus whose texts do not say enough begin with their menu: values, and what stands in several.
void nameAfterMenus(std::vector<Command> &commands) {
  QHash<QString, int> timesNamed;
  for (const Command &command : commands)
    ++timesNamed[command.text];
  for (Command &command : commands) {
    if (command.menu.contains(MenuSeparator) && (isChoice(*command.action) || timesNamed.value(command.text) > 1))
      command.text = command.menu.section(MenuSeparator, -1) + ChoiceSeparator + command.text;
  }
}

QString file() {
  return LogFiles::directory() + QStringLiteral("/lastcommands.json");
}

/// How well a command fits: for every word most where the command begins with it, least where only its menu has it. Nothing
/// when a word is nowhere.
std::optional<int> fitOf(const Command &command, const QStringList &words) {
  enum { InMenu = 1, InText, BeginsWord, BeginsText };
  int fit = 0;
  for (const QString &word : words) {
    if (command.text.startsWith(word, Qt::CaseInsensitive) ||
        command.text.contains(ChoiceSeparator + word, Qt::CaseInsensitive))
      fit += BeginsText;
    else if (command.text.contains(QLatin1Char(' ') + word, Qt::CaseInsensitive))
      fit += BeginsWord;
    else if (command.text.contains(word, Qt::CaseInsensitive))
      fit += InText;
    else if (command.menu.contains(word, Qt::CaseInsensitive))
      fit += InMenu;
    else
      return std::nullopt;
  }
  return fit;
}

} // namespace

bool Command::isEnabled() const {
  return action != nullptr && action->isEnabled();
}

bool Command::isChecked() const {
  return action != nullptr && action->isCheckable() && action->isChecked();
}

std::vector<Command> CommandList::of(const QList<QAction *> &menuBar, const QWidget &window) {
  std::vector<Command> commands;
  QSet<const QAction *> seen;
  collect(menuBar, QString(), seen, commands);
  collect(window.actions(), QString(), seen, commands);
  nameAfterMenus(commands);
  return commands;
}

std::vector<int> CommandList::matching(const std::vector<Command> &commands, const QString &query, const QStringList &used) {
  const QStringList words = query.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  using Rank = std::tuple<bool, bool, int, int, int>; // greyed, not its very text, fit, how long ago it was used, place
  std::vector<Rank> ranks;
  for (int i = 0; i < toQt(commands.size()); ++i) {
    const Command &command = commands[fromQt(i)];
    const std::optional<int> fit = fitOf(command, words);
    if (!fit)
      continue;
    const int ago = used.indexOf(command.id());
    const bool isNamed = command.text.compare(query.trimmed(), Qt::CaseInsensitive) == 0;
    ranks.emplace_back(!command.isEnabled(), !isNamed, -*fit, ago < 0 ? used.size() : ago, i);
  }
  std::sort(ranks.begin(), ranks.end());
  std::vector<int> found;
  found.reserve(ranks.size());
  for (const Rank &rank : ranks)
    found.push_back(std::get<4>(rank));
  return found;
}

QStringList CommandList::lastUsed() {
  QString reason; // mostly that there are none yet
  const auto text = FileAccess::readWhole(file(), FileAccess::Source::Trusted, FileAccess::LargestConfiguration, &reason);
  QStringList used;
  const QJsonArray entries = text ? QJsonDocument::fromJson(*text).array() : QJsonArray();
  for (const QJsonValue &entry : entries) {
    if (entry.isString() && used.size() < RememberedCommands)
      used.append(entry.toString());
  }
  return used;
}

void CommandList::remember(const QString &id) {
  QStringList used = lastUsed();
  used.removeAll(id);
  used.prepend(id);
  QString reason;
  const QByteArray text = QJsonDocument(QJsonArray::fromStringList(used.mid(0, RememberedCommands))).toJson();
  if (!WholeFile::write(file(), FileAccess::Source::Trusted, text, &reason))
    NivraMsg::logWarning(reason);
}
