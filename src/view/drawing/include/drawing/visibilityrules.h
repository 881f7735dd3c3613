#pragma once

#include <drawing/labeltable.h>
#include <drawing/netgeometry.h>

#include <QHash>

#include <vector>

/// Whether elements show their symbols and labels: "vis" of the element, else what the label table says of its type. With
/// "auto" it depends on how much of the network is seen.
class VisibilityRules {
public:
  enum class State : unsigned char { Off, Symbol, On };

  /// Looks up which elements bring rules of their own; those seen before keep their state.
  void read(const NetGeometry &geometry, const LabelTable &table);
  void clear();
  /// Takes over how much is seen, in plot units of the y axis. True when an element changed its state.
  bool setExtent(double extent);

  State of(NetGeometry::Item item) const;
  /// Something may be off, or a symbol alone.
  bool isAny() const { return !m_items.isEmpty() || !m_types.isEmpty(); }

private:
  struct Rule {
    bool isAuto = false;
    double threshold = 0.0;       ///< extent below which "auto" is on
    double secondThreshold = 0.0; ///< kept, of no effect
    State state = State::On;
  };

  static Rule ruleOf(const QString &vis, const QString &zoom);
  void add(NetGeometry::Item item, const QString &vis, const QString &zoom);
  static quint64 key(NetGeometry::Item item) { return (quint64(item.kind) << 32U) | item.index; }

  std::vector<Rule> m_rules;
  QHash<quint64, Index> m_items; ///< of elements with a rule
  QHash<QString, State> m_types;
  const NetGeometry *m_geometry = nullptr;
};
