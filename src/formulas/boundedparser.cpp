#include "boundedparser.h"

#include "formulafunctions.h"

#include <formulas/formulaerror.h>

#include <QCoreApplication>

#include <algorithm>
#include <mpFuncMatrix.h>
#include <mpOprtPostfixCommon.h>

namespace {

constexpr double LargestMatrixSide = 100.0;
constexpr double LargestFactorial = 170.0; // the next one is beyond numbers

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(Formula)
};

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
class LimitedMatrix : public Function {
public:
  void Eval(mup::ptr_val_type &ret, const mup::ptr_val_type *a_pArg, int a_iArgc) override {
    for (int i = 0; i < a_iArgc; ++i)
      throwIfAbove(*a_pArg[i], LargestMatrixSide, this->GetIdent());
    Function::Eval(ret, a_pArg, a_iArgc);
  }
  mup::IToken *Clone() const override { return new LimitedMatrix(*this); }
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

/// A function or operator of the library that asks the bounds before and after it does what it does.
template <typename Base>
class Bounded : public Base {
public:
  template <typename... Arguments>
  Bounded(mup::ICallback *inner, EvaluationBounds &bounds, const Arguments &...arguments)
      : Base(arguments...)
      , m_inner(inner)
      , m_bounds(&bounds) {}
  void Eval(mup::ptr_val_type &ret, const mup::ptr_val_type *a_pArg, int a_iArgc) override {
    m_bounds->chargeArguments(*this, a_pArg, a_iArgc);
    const std::size_t longest = EvaluationBounds::longestText(a_pArg, a_iArgc); // the result may take an argument's place
    m_inner->Eval(ret, a_pArg, a_iArgc);
    m_bounds->chargeResult(*ret, longest);
  }
  const mup::char_type *GetDesc() const override { return m_inner->GetDesc(); }
  mup::IToken *Clone() const override { return new Bounded(*this); }

private:
  mup::TokenPtr<mup::ICallback> m_inner;
  EvaluationBounds *m_bounds;
};

double numbersIn(const mup::IValue &value) {
  return value.IsMatrix() ? static_cast<double>(value.GetRows()) * value.GetCols() : 1.0;
}

} // namespace

void EvaluationBounds::charge(double work) {
  m_left -= work;
  if (m_left < 0.0)
    throw FormulaError(Texts::tr("it needs more work than is allowed for one element"), FormulaError::Kind::TooCostly);
}

void EvaluationBounds::chargeArguments(const mup::ICallback &callback, const mup::ptr_val_type *arguments, int count) {
  double work = 1.0;
  for (int i = 0; i < count; ++i)
    work += arguments[i]->IsMatrix() ? numbersIn(*arguments[i]) : 0.0;
  const bool isProduct = count == 2 && arguments[0]->IsMatrix() && arguments[1]->IsMatrix() &&
                         callback.GetIdent().find('*') != std::string::npos;
  if (isProduct)
    work += numbersIn(*arguments[0]) * arguments[1]->GetCols();
  charge(work);
}

void EvaluationBounds::chargeResult(const mup::IValue &result, std::size_t longest) {
  if (result.IsString() && result.GetString().size() > std::max(longest, LongestText))
    throw FormulaError(Texts::tr("it makes a text of more than %1 bytes").arg(LongestText));
  if (result.IsMatrix())
    charge(numbersIn(result));
}

std::size_t EvaluationBounds::longestText(const mup::ptr_val_type *arguments, int count) {
  std::size_t longest = 0;
  for (int i = 0; i < count; ++i) {
    if (arguments[i]->IsString())
      longest = std::max(longest, arguments[i]->GetString().size());
  }
  return longest;
}

BoundedParser::BoundedParser(const NetData *net)
    : ParserX(mup::pckALL_COMPLEX) {
  static_assert(mup::pckALL_COMPLEX == 55, "common, unit, complex, string and matrix");
  defineFunctions(net);
  boundEverything();
}

void BoundedParser::defineFunctions(const NetData *net) {
  const auto define = [this](mup::ICallback *function) {
    RemoveFun(function->GetIdent());
    DefineFun(function);
  };
  define(new LimitedMatrix<mup::FunMatrixOnes>);
  define(new LimitedMatrix<mup::FunMatrixZeros>);
  define(new LimitedMatrix<mup::FunMatrixEye>);
  RemovePostfixOprt("!");
  DefinePostfixOprt(new LimitedFactorial);
  define(new MyIsNull);
  define(new MyIsNotNull);
  define(new MyNoNull);
  if (!IsFunDefined("pow"))
    define(new MyPow);
  define(new MyAtan);
  define(new MySgn);
  define(new MyNodeType(net));
}

void BoundedParser::boundEverything() {
  for (auto &[name, token] : m_FunDef) {
    mup::ICallback *inner = token->AsICallback();
    token = new Bounded<mup::ICallback>(inner, m_bounds, mup::cmFUNC, name.c_str(), inner->GetArgc());
  }
  for (auto &[name, token] : m_OprtDef) {
    const mup::IPrecedence *rank = token->AsIPrecedence();
    token =
        new Bounded<mup::IOprtBin>(token->AsICallback(), m_bounds, name.c_str(), rank->GetPri(), rank->GetAssociativity());
  }
  for (auto &[name, token] : m_InfixOprtDef)
    token = new Bounded<mup::IOprtInfix>(token->AsICallback(), m_bounds, name.c_str(), token->AsIPrecedence()->GetPri());
  for (auto &[name, token] : m_PostOprtDef)
    token = new Bounded<mup::IOprtPostfix>(token->AsICallback(), m_bounds, name.c_str());
}
