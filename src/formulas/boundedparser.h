#pragma once

#include <limits>
#include <mpParser.h>

class NetData;

/// What one evaluation of a formula may cost. A formula comes from a file that nobody has read: texts that double and
/// matrices that are multiplied would take all memory and hours.
class EvaluationBounds {
public:
  /// In steps, each about what adding two numbers costs. A formula as long as is allowed, of plain numbers, needs a tenth.
  static constexpr double MostWork = 20000.0;
  static constexpr std::size_t LongestText = 4096; ///< bytes of a text that is made, not of one that is there
  static constexpr int MostPrinted = 256;          ///< numbers of a matrix that becomes a text

  /// An evaluation begins. Until the first one nothing but the length of texts is limited.
  void restart() { m_left = MostWork; }
  /// Both throw FormulaError.
  void chargeArguments(const mup::ICallback &callback, const mup::ptr_val_type *arguments, int count);
  /// \param longest text among the arguments
  void chargeResult(const mup::IValue &result, std::size_t longest);
  /// Of the texts among the arguments.
  static std::size_t longestText(const mup::ptr_val_type *arguments, int count);

private:
  void charge(double work);

  double m_left = std::numeric_limits<double>::infinity();
};

/// The expression parser of muparserx with the functions of the formulas (isnull, isnotnull, nonull, pow unless the library
/// has one, atan, sgn, nodetype), all of whose functions and operators keep to the bounds.
class BoundedParser : public mup::ParserX {
public:
  /// \param net whose nodes nodetype(name, otherwise) designates, may be null; it must outlive the parser
  explicit BoundedParser(const NetData *net);
  EvaluationBounds &bounds() { return m_bounds; }

private:
  void defineFunctions(const NetData *net);
  void boundEverything();

  EvaluationBounds m_bounds;
};
