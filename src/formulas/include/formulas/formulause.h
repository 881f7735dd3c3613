#pragma once

#include <formulas/formulafile.h>
#include <model/propertykey.h>

#include <QString>

#include <optional>
#include <vector>

/// A formula or constraint that says something of a property of an element, and what it reads there.
struct FormulaUse {
  struct Input {
    QString written; ///< as the expression has it
    QString element; ///< that has the property; empty when there is none
    PropertyKey property;
  };

  FormulaDefinition definition;
  bool isMaker = false;        ///< the value is what this formula yielded
  std::vector<Input> inputs;   ///< each once, in the order of the text
  std::optional<double> lower; ///< of a constraint, as the property is stored; nothing where it has none or no value
  std::optional<double> upper;
};
