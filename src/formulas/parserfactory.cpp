#include "formulafunctions.h"

#include <formulas/parserfactory.h>

#include <mpFuncMatrix.h>
#include <mpOprtPostfixCommon.h>
#include <mpParser.h>

namespace {

constexpr double LargestMatrixSide = 100.0;
constexpr double LargestFactorial = 170.0; // the next one is beyond numbers

void throwIfAbove(const mup::IValue &value, double largest, const mup::string_type &ident) {
  const bool isSound = value.IsNonComplexScalar() && value.GetFloat() <= largest && value.GetFloat() >= 0.0;
  if (isSound)
    return;
  mup::ErrorContext context(mup::ecEVAL);
  context.Ident = ident;
  context.Hint = "at most " + std::to_string(static_cast<int>(largest)) + " is computed";
  context.Errc = mup::ecINVALID_PARAMETER;
  context.Arg = 1;
  throw mup::ParserError(context);
}

/// A function that makes matrices, with sides of a bearable length.
template <typename Function>
class Limited : public Function {
public:
  void Eval(mup::ptr_val_type &ret, const mup::ptr_val_type *a_pArg, int a_iArgc) override {
    for (int i = 0; i < a_iArgc; ++i)
      throwIfAbove(*a_pArg[i], LargestMatrixSide, this->GetIdent());
    Function::Eval(ret, a_pArg, a_iArgc);
  }
  mup::IToken *Clone() const override { return new Limited(*this); }
};

/// The library multiplies until it has counted down, however long that takes.
class LimitedFactorial : public mup::OprtFact {
public:
  void Eval(mup::ptr_val_type &ret, const mup::ptr_val_type *arg, int argc) override {
    throwIfAbove(*arg[0], LargestFactorial, "!");
    mup::OprtFact::Eval(ret, arg, argc);
  }
  mup::IToken *Clone() const override { return new LimitedFactorial(*this); }
};

template <typename Function>
void limit(mup::ParserX &parser, const char *name) {
  parser.RemoveFun(name);
  parser.DefineFun(new Limited<Function>);
}

} // namespace

std::string ParserFactory::nullText() {
  return "_null_";
}

std::unique_ptr<mup::ParserX> ParserFactory::create(const NetData *net) {
  constexpr unsigned Packages = mup::pckALL_COMPLEX;
  static_assert(Packages == 55, "common, unit, complex, string and matrix");
  auto parser = std::make_unique<mup::ParserX>(Packages);
  const auto define = [&parser](mup::ICallback *function) {
    parser->RemoveFun(function->GetIdent());
    parser->DefineFun(function);
  };
  limit<mup::FunMatrixOnes>(*parser, "ones");
  limit<mup::FunMatrixZeros>(*parser, "zeros");
  limit<mup::FunMatrixEye>(*parser, "eye");
  parser->RemovePostfixOprt("!");
  parser->DefinePostfixOprt(new LimitedFactorial);
  define(new MyIsNull);
  define(new MyIsNotNull);
  define(new MyNoNull);
  if (!parser->IsFunDefined("pow"))
    define(new MyPow);
  define(new MyAtan);
  define(new MySgn);
  define(new MyNodeType(net));
  return parser;
}
