#pragma once

#include <base/fileaccess.h>
#include <base/filestamp.h>
#include <base/finding.h>

#include <QString>
#include <QStringList>

#include <array>
#include <vector>

/// How symbols and labels of one element type look, as texts. What is empty follows the plot settings.
struct LabelRow {
  enum Column { LongName, Short, Size, Show, Contents, Color, BgrColor, BgrAlpha, BordColor, BordAlpha, Font };
  static constexpr int Columns = Font + 1;

  std::array<QString, Columns> cells;
  QString icon; ///< of a template: code of the element type whose symbol it shows

  const QString &operator[](Column column) const { return cells[column]; }
  QString &operator[](Column column) { return cells[column]; }
  friend bool operator==(const LabelRow &a, const LabelRow &b) { return a.cells == b.cells && a.icon == b.icon; }
};

/// The label configuration: one row an element type, then templates that a person keeps to apply them to types.
struct LabelTable {
  std::vector<LabelRow> types; ///< in the order of ElementTypes::all()
  std::vector<LabelRow> templates;

  LabelTable(); ///< with the rows that suit most networks

  const LabelRow *ofType(const QString &code) const;
  static const QStringList &headers();

  friend bool operator==(const LabelTable &a, const LabelTable &b) {
    return a.types == b.types && a.templates == b.templates;
  }
  friend bool operator!=(const LabelTable &a, const LabelTable &b) { return !(a == b); }
};

/// "vfd.csv": a plain text, one value a line.
namespace LabelTableFile {

QString version();

constexpr int LongestCell = 1 << 16; ///< characters

struct Reading {
  bool isOpened = false; ///< false when there is no such file or it cannot be opened
  Findings findings;
  FileStamp stamp; ///< of the file when it was read
  int leftOut = 0; ///< cells and rows of the file that are not in the table, and are lost when it is saved
};

/// Overwrites the rows of the table as far as the file goes.
Reading read(const QString &path, LabelTable &table, FileAccess::Source source = FileAccess::Source::Workspace);
/// The text of such a file, overwriting rows likewise.
/// \param path for what is told
Reading readText(const QByteArray &text, const QString &path, LabelTable &table);
QByteArray text(const LabelTable &table);
/// Whole or not at all; false with the reason.
bool write(const QString &path, const LabelTable &table, QString *error = nullptr);

} // namespace LabelTableFile
