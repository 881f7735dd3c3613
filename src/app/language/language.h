#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

/// The languages that the program speaks. Its texts are written in English, which needs no translation; those of another
/// language are in the program, those of the toolkit with the toolkit where it has them.
class Language {
public:
  static constexpr const char *English = "en";
  static constexpr const char *German = "de";
  static constexpr const char *Desktop = "desktop"; ///< in the settings: whichever the desktop has

  /// That in which the program is to start: what the command line asked for, else the user's setting, else the desktop's
  /// as far as the program has it. What a workspace says of the language counts for nothing.
  static QString toStartWith(const QString &asked);
  /// The first of these codes (such as "de-AT") that the program has, English when there is none.
  static QString firstKnown(const QStringList &codes);
  static bool isKnown(const QString &code);
  /// The code of the language in which texts are made now.
  static QString spoken();

  /// The texts of what is made from now on are in this language, as long as this object lives.
  explicit Language(const QString &code);
  ~Language();
  Language(const Language &) = delete;
  Language &operator=(const Language &) = delete;

private:
  void install(const QString &file, const QString &folder);

  std::vector<std::unique_ptr<QTranslator>> m_translators;
};
