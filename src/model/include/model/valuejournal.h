#pragma once

#include <model/element.h>

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <vector>

/// What values were before somebody else's lay over them, so that these can be taken off again.
///
/// 1. What was absent is kept as a list of keys an element, and such lists are shared: most elements of a kind get the same
///    properties. What was overwritten is kept as it was.
/// 2. Nobody may erase an element that is noted without forgetting it here, and nobody else may change noted values in the
///    meantime, unless to take them off again.
class ValueJournal {
public:
  /// Sets the value and notes what was there. A value that is there already is no change.
  void set(element &target, PropertyKey key, PropertyText value);
  /// Whether one of the keys was noted for any element.
  bool touches(const std::vector<PropertyKey> &keys) const;
  /// All that were noted, each once.
  std::vector<PropertyKey> keys() const;
  bool isEmpty() const { return m_added.empty() && m_overwritten.empty() && m_present.empty(); }
  /// Forgets elements that are there no more.
  void keepOnly(const std::function<bool(const element *)> &isThere);

  /// What was taken off, to be laid over once more.
  struct Shelf;
  /// The values are what they were before; the journal is empty.
  Shelf takeOff();
  /// The values and the journal are as they were before takeOff(). The journal must be empty.
  void layOver(Shelf shelf);

private:
  using Keys = std::vector<PropertyKey>;
  struct Added {
    element *target;
    std::uint32_t list; ///< in m_lists
  };
  struct Overwritten {
    element *target;
    PropertyKey key;
    std::optional<PropertyText> value;
  };
  struct Less {
    bool operator()(const Keys &a, const Keys &b) const;
  };

  void finishElement();

  std::vector<Added> m_added;
  std::vector<Overwritten> m_overwritten;
  std::vector<Keys> m_lists;
  std::map<Keys, std::uint32_t, Less> m_listNumbers;
  element *m_current = nullptr; ///< to which values are being added
  Keys m_present;               ///< those added to it
};

struct ValueJournal::Shelf {
  std::vector<Added> added;
  std::vector<std::optional<PropertyText>> values; ///< of the added, in their order
  std::vector<Overwritten> overwritten;            ///< with the values that were laid over
  std::vector<Keys> lists;
};
