#pragma once

#include <base/settingstable.h>

#include <QString>
#include <QStringList>

#include <vector>

/// What the settings dialog knows of a general setting beyond the table: what it does, for people, and how it is edited.
struct SettingDescription {
  enum class Kind { Switch, Number, Choice, Colour, Path, Text };
  enum class Takes { AtOnce, AtNextOpening, AtNextStart, Never };

  QString key;
  QString group; ///< under which it is listed
  QString text;  ///< what it does
  Kind kind = Kind::Text;
  Takes takes = Takes::AtOnce;                         ///< effect
  QStringList options;                                 ///< of a choice and of a switch, there off and on
  QStringList titles;                                  ///< of the options
  const SettingsTable::NumberBounds *bounds = nullptr; ///< of a number; null for any

  /// Of all settings in the order of the table, those of a group together.
  static std::vector<SettingDescription> all();

  /// A value as people read it: "on" for "1", "Shift" for the number of its key.
  QString shown(const QString &value) const;
  /// Whether an editor may say this value; the bounds are narrower than what files may say.
  bool allows(const QString &value) const;
  QString whenItTakes() const;
  /// "0 to 60000 ms", empty without bounds.
  QString boundsText() const;
};
