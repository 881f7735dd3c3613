#pragma once

#include <formulas/formulareference.h>

#include <functional>
#include <vector>

/// Cuts a formula into references and the rest: every distinct reference becomes a variable.
struct FormulaLexer {
  QString expression; ///< with variables in place of references
  std::vector<FormulaReference> references;

  /// \param isKnown tells names of the engine (constants) from bare properties
  /// Throws FormulaError.
  FormulaLexer(const QString &text, FormulaReference::Bare bare, const std::function<bool(const QString &)> &isKnown);

  /// Whether the name of an element may hold the character as it is.
  static bool continuesName(QChar c);
  static QString variable(std::size_t number) { return QStringLiteral("v_%1").arg(number); }

  /// The name that stands at the position, with its escapes read; the position is moved behind it.
  static QString takeName(const QString &text, int &i);

private:
  void addReference(const QStringList &parts, bool isText);
  void checkLimits(const QString &text) const;
};
