#include "formulafunctions.h"

#include <formulas/formulareference.h>
#include <model/netdata.h>

#include <cmath>

namespace {

bool isNull(const mup::IValue &value) {
  return value.GetString() == FormulaReference::Null;
}

} // namespace

MyIsNull::MyIsNull()
    : ICallback(mup::cmFUNC, "isnull", 1) {}

void MyIsNull::Eval(mup::ptr_val_type &ret, const mup::ptr_val_type *a_pArg, int) {
  *ret = isNull(*a_pArg[0]);
}

const mup::char_type *MyIsNull::GetDesc() const {
  return "isnull(x) - checking for non-existing value (_isnull_)";
}

mup::IToken *MyIsNull::Clone() const {
  return new MyIsNull(*this);
}

MyIsNotNull::MyIsNotNull()
    : ICallback(mup::cmFUNC, "isnotnull", 1) {}

void MyIsNotNull::Eval(mup::ptr_val_type &ret, const mup::ptr_val_type *a_pArg, int) {
  *ret = !isNull(*a_pArg[0]);
}

const mup::char_type *MyIsNotNull::GetDesc() const {
  return "isnotnull(x) - checking for existing value (not _isnull_)";
}

mup::IToken *MyIsNotNull::Clone() const {
  return new MyIsNotNull(*this);
}

MyNoNull::MyNoNull()
    : ICallback(mup::cmFUNC, "nonull", 1) {}

void MyNoNull::Eval(mup::ptr_val_type &ret, const mup::ptr_val_type *a_pArg, int) {
  *ret = isNull(*a_pArg[0]) ? mup::string_type() : a_pArg[0]->GetString();
}

const mup::char_type *MyNoNull::GetDesc() const {
  return "nonull(x) - convert _isnull_ to empty string";
}

mup::IToken *MyNoNull::Clone() const {
  return new MyNoNull(*this);
}

MyPow::MyPow()
    : ICallback(mup::cmFUNC, "pow", 2) {}

void MyPow::Eval(mup::ptr_val_type &ret, const mup::ptr_val_type *a_pArg, int) {
  *ret = std::pow(a_pArg[0]->GetFloat(), a_pArg[1]->GetFloat());
}

const mup::char_type *MyPow::GetDesc() const {
  return "pow(x,y) - the standard pow function x^y";
}

mup::IToken *MyPow::Clone() const {
  return new MyPow(*this);
}

MyAtan::MyAtan()
    : ICallback(mup::cmFUNC, "atan", 1) {}

void MyAtan::Eval(mup::ptr_val_type &ret, const mup::ptr_val_type *a_pArg, int) {
  *ret = std::atan(a_pArg[0]->GetFloat());
}

const mup::char_type *MyAtan::GetDesc() const {
  return "atan(x) - the standard arcus tangens function";
}

mup::IToken *MyAtan::Clone() const {
  return new MyAtan(*this);
}

MySgn::MySgn()
    : ICallback(mup::cmFUNC, "sgn", 1) {}

void MySgn::Eval(mup::ptr_val_type &ret, const mup::ptr_val_type *a_pArg, int) {
  const mup::float_type x = a_pArg[0]->GetFloat();
  *ret = static_cast<mup::float_type>((x > 0.0 ? 1 : 0) - (x < 0.0 ? 1 : 0));
}

const mup::char_type *MySgn::GetDesc() const {
  return "sgn(x) - sign function";
}

mup::IToken *MySgn::Clone() const {
  return new MySgn(*this);
}

MyNodeType::MyNodeType(const NetData *net)
    : ICallback(mup::cmFUNC, "nodetype", 2)
    , m_net(net) {}

void MyNodeType::Eval(mup::ptr_val_type &ret, const mup::ptr_val_type *a_pArg, int) {
  const element *node = m_net == nullptr ? nullptr : m_net->nodes().find(a_pArg[0]->GetString());
  if (node == nullptr)
    *ret = *a_pArg[1];
  else
    *ret = m_net->nodeCategory(*node).toStdString();
}

const mup::char_type *MyNodeType::GetDesc() const {
  return "nodetype(x) - determination of type of node";
}

mup::IToken *MyNodeType::Clone() const {
  return new MyNodeType(*this);
}
