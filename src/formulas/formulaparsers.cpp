#include "formulaparsers.h"

#include "formulalexer.h"

#include <algorithm>

FormulaParsers::Slot &FormulaParsers::add() {
  m_slots.push_back(std::make_unique<Slot>());
  m_slots.back()->parser = std::make_unique<BoundedParser>(&m_net);
  return *m_slots.back();
}

const mup::ParserX &FormulaParsers::any() {
  return m_slots.empty() ? *add().parser : *m_slots.front()->parser;
}

FormulaParsers::Slot &FormulaParsers::slotFor(quint64 owner, const QString &expression, std::size_t variables) {
  if (m_last != nullptr && m_last->owner == owner)
    return *m_last;
  const auto known = std::find_if(m_slots.begin(), m_slots.end(),
                                  [owner](const std::unique_ptr<Slot> &slot) { return slot->owner == owner; });
  if (known != m_slots.end()) {
    m_last = known->get();
    m_last->lastUse = ++m_uses;
    return *m_last;
  }
  const auto oldest =
      std::min_element(m_slots.begin(), m_slots.end(), [](const auto &a, const auto &b) { return a->lastUse < b->lastUse; });
  const bool isFree = oldest != m_slots.end() && (*oldest)->owner == 0;
  Slot &slot = isFree || m_slots.size() >= m_most ? **oldest : add();
  m_last = nullptr;
  slot.owner = 0; // until all has gone well
  while (slot.values.size() < variables) {
    const QString name = FormulaLexer::variable(slot.values.size());
    slot.values.emplace_back(mup::float_type(0.0));
    slot.parser->DefineVar(name.toStdString(), mup::Variable(&slot.values.back()));
  }
  slot.parser->SetExpr(expression.toStdString());
  slot.owner = owner;
  slot.lastUse = ++m_uses;
  m_last = &slot;
  return slot;
}
