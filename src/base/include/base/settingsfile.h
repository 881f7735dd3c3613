#pragma once

#include <QByteArrayList>
#include <QString>

/// The user's file of general settings as text, to change single values in it: comments, unknown keys, lines that cannot be
/// understood and the order of all stay as somebody wrote them.
class SettingsFile {
public:
  /// A file that is not there is empty; false with the reason when there is one that cannot be read.
  bool read(const QString &path, QString *reason);
  /// Puts the value into the last line of the key, which is the one that counts, or into a new one at the end. The key must
  /// be one of the built-in table. A line break in the value becomes a blank.
  void set(const QString &key, const QString &value);
  /// Takes the lines of the key away.
  void remove(const QString &key);
  /// Whole or not at all; makes the folder where there is none.
  bool write(const QString &path, QString *reason) const;

private:
  QByteArrayList m_lines; ///< each with its end
};
