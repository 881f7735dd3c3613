#pragma once

#include <memory>

namespace mup {
class ParserX;
}

class NetData;

/// The expression parser of muparserx with the functions of the formulas: isnull, isnotnull, nonull, pow (unless the
/// library has one), atan, sgn, nodetype. What the library would do without bound (matrices of any size, factorials) is
/// limited: it throws mup::ParserError instead.
namespace ParserFactory {

/// \param net whose nodes nodetype(name, otherwise) designates; without it there are none. It must outlive the parser.
std::unique_ptr<mup::ParserX> create(const NetData *net = nullptr);

} // namespace ParserFactory
