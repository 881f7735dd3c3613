#pragma once

#include <base/fileaccess.h>
#include <base/finding.h>
#include <formulas/formulareference.h>

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

/// One line of a formula file: what a property is computed from, or the bounds that it is to keep.
struct FormulaDefinition {
  QString property;
  QStringList types;    ///< codes; empty for all
  QString namePattern;  ///< regular expression, empty for all
  QStringList elements; ///< names; when there are some, only these of the types
  QString unit;         ///< of what the expressions yield; empty for the stored one
  QString category;     ///< such as "geometry", "scenario", "results"
  QString comment;

  bool isConstraint = false;
  QString expression; ///< of a formula
  QString lower;      ///< bounds of a constraint, empty for none
  QString upper;
  QString message;
  std::shared_ptr<const FormulaNames> names; ///< in the expressions that stand for other elements; null for none

  QString file;
  int line = 0;

  /// "dp(p), pipes.formulas:3"
  QString origin() const;
};

/// Formula and constraint files, one definition a line:
///
///     [results]
///     dp(p) [bar] = p@node1@ELE - p@node2@ELE       # pressure drop of pipes
///     p(n: ^DE_) in pmin .. pmax "beyond the bounds" # of nodes whose names begin with DE_
///
/// A line in square brackets names the category of those below it. Faulty lines are returned and left out.
namespace FormulaFile {

struct Contents {
  std::vector<FormulaDefinition> definitions;
  Findings findings;
};

/// \param category of the lines above the first that names one
Contents parse(const QByteArray &text, const QString &fileName, const QString &category);
/// A file that cannot be read is a finding.
Contents read(const QString &path, const QString &category, FileAccess::Source source = FileAccess::Source::Workspace);

} // namespace FormulaFile
