#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

/// The text of an INI file as the toolkit's settings class writes it, without that class's reading: that one turns texts
/// such as "@Variant(...)" into objects of any kind, and a hostile one ends the program.
///
/// What holds: every line of the text is kept as it stands, in its order, until its key is set; keys of one group stand
/// behind that group's line; a key that stands twice counts with its last value.
class IniText {
public:
  IniText() = default;
  explicit IniText(const QByteArray &text);

  /// The value as text, escapes resolved; an unquoted comma stays one. Nothing when the group has no such key. The group of
  /// keys without one is "General".
  /// \param isObject set when the value is of the form "@Name(...)" rather than a text
  std::optional<QString> value(const QByteArray &group, const QByteArray &key, bool *isObject = nullptr) const;

  /// Puts every key of the other text in place of its own; keys and groups that the other does not have stay.
  void merge(const IniText &other);
  /// Takes the key away, of whatever group.
  void remove(const QByteArray &key);
  QByteArray toText() const;

private:
  struct Line {
    QByteArray group;
    QByteArray key; ///< empty: a comment, a blank, the line of a group, or what is none of these
    QByteArray text;
  };

  const Line *find(const QByteArray &group, const QByteArray &key) const;

  std::vector<Line> m_lines;
};
