#pragma once

#include <base/parallel.h>
#include <model/element.h>

#include <vector>

/// Reads a few properties of many elements. Elements of one kind mostly have the same properties, so each is first looked
/// for where the element before had it.
class PropertyColumns {
public:
  /// One column a key. A null key is never found.
  explicit PropertyColumns(std::vector<PropertyKey> keys);

  /// Reads all elements and calls visit(position, columns) for each, from several threads at once, each with columns of
  /// its own. Elements lie all over the memory; those to come are fetched ahead, which is most of what a walk over a
  /// large network costs.
  template <typename Visit>
  void forEach(const std::vector<const element *> &sources, const Visit &visit) const {
    constexpr std::size_t ElementsAhead = 16;
    constexpr std::size_t PropertiesAhead = 8;
    Parallel::inParts(sources.size(), [&](std::size_t first, std::size_t last) {
      PropertyColumns columns = *this;
      for (std::size_t i = first; i < last; ++i) {
        if (i + ElementsAhead < last)
          __builtin_prefetch(sources[i + ElementsAhead]);
        if (i + PropertiesAhead < last)
          columns.fetch(*sources[i + PropertiesAhead]);
        columns.read(*sources[i]);
        visit(i, columns);
      }
    });
  }

  /// Makes the element the one that is asked; its properties must stay while it is.
  void read(const element &source);
  /// Null when the element has no such property.
  const PropertyText *operator[](std::size_t column) const { return m_columns[column].found; }

private:
  /// What is known of a key from the element in which it was last searched for.
  ///
  /// 1. The properties of an element stand in the order of their keys, each key once.
  /// 2. In the element that was searched, all properties before the index were before the key, and none from it on.
  /// 3. So where another element has the same two neighbours at the same index, the key is there or is missing alike, and
  ///    nothing is searched. Where the key is there, its neighbour before does not matter.
  /// 4. The neighbours are compared by spelling, which is quicker than by name; another spelling costs a search, not the
  ///    answer.
  /// 5. What was found belongs to the element that was read last.
  struct Column {
    PropertyKey key;
    std::size_t index = 0; ///< of the first property that is not before the key
    PropertyKey before;    ///< the key of the property before the index, null at the beginning
    PropertyKey at;        ///< the key of the property at the index, null at the end
    bool isThere = false;  ///< at is the key
    const PropertyText *found = nullptr;
  };

  void fetch(const element &source) const;
  static void search(Column &column, const element &source);

  std::vector<Column> m_columns;
};
