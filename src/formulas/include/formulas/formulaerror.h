#pragma once

#include <QString>

#include <stdexcept>

/// What is wrong with a formula.
class FormulaError : public std::runtime_error {
public:
  enum class Kind {
    Fault,
    MissingValue, ///< it reads something that does not exist for the element
    TooCostly     ///< this evaluation went beyond what one may cost; the formula is given up, later ones are faults
  };

  explicit FormulaError(const QString &text, Kind kind = Kind::Fault)
      : std::runtime_error(text.toStdString())
      , m_kind(kind) {}
  QString text() const { return QString::fromUtf8(what()); }
  Kind kind() const { return m_kind; }
  bool isForMissingValue() const { return m_kind == Kind::MissingValue; }

private:
  Kind m_kind;
};
