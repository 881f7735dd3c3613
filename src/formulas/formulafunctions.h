#pragma once

#include <mpParser.h>

class NetData;

/// The functions that formulas have beside those of the library. Errors are the library's.

/// isnull(x): x is the text that stands for no value.
class MyIsNull : public mup::ICallback {
public:
  MyIsNull();
  void Eval(mup::ptr_val_type &ret, const mup::ptr_val_type *a_pArg, int a_iArgc) override;
  const mup::char_type *GetDesc() const override;
  mup::IToken *Clone() const override;
};

class MyIsNotNull : public mup::ICallback {
public:
  MyIsNotNull();
  void Eval(mup::ptr_val_type &ret, const mup::ptr_val_type *a_pArg, int a_iArgc) override;
  const mup::char_type *GetDesc() const override;
  mup::IToken *Clone() const override;
};

/// nonull(x): the text, or nothing in place of the text that stands for no value.
class MyNoNull : public mup::ICallback {
public:
  MyNoNull();
  void Eval(mup::ptr_val_type &ret, const mup::ptr_val_type *a_pArg, int a_iArgc) override;
  const mup::char_type *GetDesc() const override;
  mup::IToken *Clone() const override;
};

class MyPow : public mup::ICallback {
public:
  MyPow();
  void Eval(mup::ptr_val_type &ret, const mup::ptr_val_type *a_pArg, int a_iArgc) override;
  const mup::char_type *GetDesc() const override;
  mup::IToken *Clone() const override;
};

/// atan(x): radians.
class MyAtan : public mup::ICallback {
public:
  MyAtan();
  void Eval(mup::ptr_val_type &ret, const mup::ptr_val_type *a_pArg, int a_iArgc) override;
  const mup::char_type *GetDesc() const override;
  mup::IToken *Clone() const override;
};

/// sgn(x): -1, 0 or 1.
class MySgn : public mup::ICallback {
public:
  MySgn();
  void Eval(mup::ptr_val_type &ret, const mup::ptr_val_type *a_pArg, int a_iArgc) override;
  const mup::char_type *GetDesc() const override;
  mup::IToken *Clone() const override;
};

/// nodetype(x, y): how the node of name x is drawn and listed ("pset", "demand", "negqset" or its type); y when there is no
/// such node.
class MyNodeType : public mup::ICallback {
public:
  explicit MyNodeType(const NetData *net);
  void Eval(mup::ptr_val_type &ret, const mup::ptr_val_type *a_pArg, int a_iArgc) override;
  const mup::char_type *GetDesc() const override;
  mup::IToken *Clone() const override;

private:
  const NetData *m_net;
};
