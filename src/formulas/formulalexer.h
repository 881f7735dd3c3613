#pragma once

#include <formulas/formula.h>

#include <functional>
#include <vector>

/// Cuts a formula into references and the rest: every distinct reference becomes a variable.
struct FormulaLexer {
  QString expression; ///< with variables in place of references
  std::vector<FormulaReference> references;

  /// \param isKnown tells names of the engine (constants) from bare properties
  /// Throws FormulaError.
  FormulaLexer(const QString &text, Formula::Bare bare, const std::function<bool(const QString &)> &isKnown);

  /// Whether the name of an element may hold the character as it is.
  static bool continuesName(QChar c);
  static QString variable(std::size_t number) { return QStringLiteral("v_%1").arg(number); }

private:
  QString takeName(const QString &text, int &i);
  void addReference(const QStringList &parts);
  void checkLimits(const QString &text) const;
};
