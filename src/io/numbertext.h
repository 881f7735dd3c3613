#pragma once

#include <model/propertytext.h>

#include <string_view>

enum class NumberText { Taken, Invalid, OutOfRange };

/// The text of a JSON number as a property holds it: as it stands when it has at most 15 significant digits and no exponent
/// (without superfluous zeros), 16 significant digits in the shortest general notation otherwise.
NumberText numberText(std::string_view token, PropertyText &text);
