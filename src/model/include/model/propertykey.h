#pragma once

#include <QString>

#include <string>
#include <string_view>

/// An interned property name. Names are one key regardless of case; a key remembers the spelling it was made with, so
/// "X" and "x" are equal keys that print differently. Making a key counts as a change of the network (see NetData on
/// threads); looking one up does not.
class PropertyKey {
public:
  /// All spellings of one name share its group; the groups stand in alphabetical order, spaced so that a new one mostly
  /// fits between its neighbours without renumbering the others.
  struct Group {
    unsigned long long rank = 0;
  };
  struct Spelling {
    std::string utf8;
    QString name;
    Group *group = nullptr;
    std::size_t index = 0;
  };

  PropertyKey() = default; ///< the null key, equal to no interned one

  static PropertyKey intern(std::string_view utf8);
  static PropertyKey intern(const char *utf8) { return intern(std::string_view(utf8)); }
  static PropertyKey intern(const QString &name);
  /// The null key when no property of this name was ever made.
  static PropertyKey find(std::string_view utf8);
  static PropertyKey find(const char *utf8) { return find(std::string_view(utf8)); }
  static PropertyKey find(const QString &name);

  bool isNull() const noexcept { return m_spelling == nullptr; }
  QString name() const;
  std::string_view utf8() const noexcept;
  /// Number of the spelling, from 0 without gaps, for tables beside the keys. Not for the null key.
  std::size_t index() const noexcept { return m_spelling->index; }

  /// Equal and spelled alike: a quick answer to what mostly holds, less than operator==.
  bool isSameSpelling(PropertyKey other) const noexcept { return m_spelling == other.m_spelling; }

  friend bool operator==(PropertyKey a, PropertyKey b) noexcept { return a.group() == b.group(); }
  friend bool operator!=(PropertyKey a, PropertyKey b) noexcept { return !(a == b); }
  /// Case-insensitive alphabetical order, as QString::compare gives it.
  friend bool operator<(PropertyKey a, PropertyKey b) noexcept { return a.rank() < b.rank(); }

private:
  explicit PropertyKey(const Spelling *spelling)
      : m_spelling(spelling) {}
  const Group *group() const noexcept { return m_spelling == nullptr ? nullptr : m_spelling->group; }
  unsigned long long rank() const noexcept { return m_spelling == nullptr ? 0 : m_spelling->group->rank; }

  const Spelling *m_spelling = nullptr;
};
