#pragma once

#include <base/fileaccess.h>
#include <base/finding.h>

#include <QString>

#include <map>

/// "svg_symbols.csv": which SVG file stands for an element type code or a kind of subnet. What it does not name has the
/// built-in symbol.
class SymbolTable {
public:
  /// Reads directory + "/svg_symbols.csv" into an empty table, which it stays when the file is missing or cannot be read.
  Findings read(const QString &directory);

  /// File name as the table gives it, by key.
  const std::map<QString, QString> &files() const { return m_files; }
  /// Where a file "KEY.svg" counts for keys that the table does not name.
  void setFurtherDirectory(const QString &directory) { m_furtherDirectory = directory; }
  struct File {
    QString path; ///< empty when there is no such key
    FileAccess::Source source = FileAccess::Source::Workspace;
  };
  /// The key's file: one that the table names, relative names taken from the table's directory, else one of the further
  /// directory, which belongs to the program.
  File file(const QString &key) const;

private:
  QString m_directory;
  QString m_furtherDirectory;
  std::map<QString, QString> m_files;
};
