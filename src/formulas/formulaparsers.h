#pragma once

#include "boundedparser.h"

#include <QString>

#include <deque>
#include <memory>
#include <vector>

/// Parsers that many formulas use in turns: making one takes as long as parsing twenty formulas, and fills 50 kB. A formula
/// keeps its parser while others do not need it more. For one thread.
class FormulaParsers {
public:
  struct Slot {
    std::unique_ptr<BoundedParser> parser;
    std::deque<mup::Value> values; ///< of the variables, which must not move
    quint64 owner = 0;             ///< the number of the formula that it is set to
    quint64 lastUse = 0;
  };

  /// \param most parsers
  FormulaParsers(const NetData &net, std::size_t most)
      : m_net(net)
      , m_most(most) {}

  /// A parser that is set to the expression. Throws mup::ParserError. \param owner a number that no other formula has
  Slot &slotFor(quint64 owner, const QString &expression, std::size_t variables);
  /// For questions to the parser itself.
  const mup::ParserX &any();

private:
  Slot &add();

  const NetData &m_net;
  std::size_t m_most;
  std::vector<std::unique_ptr<Slot>> m_slots;
  Slot *m_last = nullptr;
  quint64 m_uses = 0;
};
