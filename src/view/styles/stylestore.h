#pragma once

#include <base/filestamp.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

/// Styles that a person saved under names, kept in "styles.json" in their data folder: the settings of each are the text of
/// a file of plot settings, with the keys that the style is about.
///
/// Every change reads the file anew, so that two windows do not undo each other's; what cannot be read is not overwritten.
class StyleStore {
  Q_DECLARE_TR_FUNCTIONS(StyleStore)
public:
  struct Style {
    QString name;
    QByteArray settings;
  };
  static constexpr int LongestName = 60; ///< characters
  static constexpr int LargestStyle = 1 << 18;

  static QString file();
  /// In the order of their names. None, with a fault, when the file cannot be read.
  const std::vector<Style> &all();
  const QString &fault() const { return m_fault; }
  /// Regardless of case; null when there is none.
  const Style *find(const QString &name);
  /// Why nothing can have the name; empty when it can.
  static QString faultOf(const QString &name);

  // False with the reason.
  bool put(const Style &style, QString *reason); ///< in place of one of the same name
  bool rename(const QString &from, const QString &to, QString *reason);
  bool remove(const QString &name, QString *reason);

private:
  /// Nothing, with the reason, when the file is there and cannot be read.
  static std::optional<std::vector<Style>> read(QString *reason);
  /// Reads the styles anew and writes them changed. \param fault changes them, or says why they stay
  bool change(QString *reason, const std::function<QString(std::vector<Style> &)> &fault);
  static bool write(const std::vector<Style> &styles, QString *reason);

  std::optional<FileStamp> m_stamp; ///< of the file when it was read
  std::vector<Style> m_styles;
  QString m_fault;
};
