#pragma once

#include <QString>

#include <map>

/// "svg_symbols.csv": which SVG file stands for an element type code or a kind of subnet. What it does not name has the
/// built-in symbol.
class SymbolTable {
public:
  SymbolTable() = default;
  /// Reads directory + "/svg_symbols.csv"; a missing file is logged and yields an empty table.
  explicit SymbolTable(const QString &directory);

  /// File name as the table gives it, by key.
  const std::map<QString, QString> &files() const { return m_files; }
  /// Where a file "KEY.svg" counts for keys that the table does not name.
  void setFurtherDirectory(const QString &directory) { m_furtherDirectory = directory; }
  /// The path of the key's file, relative names taken from the table's directory; empty when there is no such key.
  QString path(const QString &key) const;

private:
  QString m_directory;
  QString m_furtherDirectory;
  std::map<QString, QString> m_files;
};
