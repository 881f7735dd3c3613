#include "nodeplaces.h"

#include <model/names.h>

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

using Record = NetworkRecord;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(NodePlaces)
};

struct Place {
  double x = 0.0;
  double y = 0.0;
};

std::optional<Place> placeOf(const Record &node, const char *x, const char *y) {
  const NetworkRecord::Value *atX = node.find(PropertyKey::intern(x));
  const NetworkRecord::Value *atY = node.find(PropertyKey::intern(y));
  if (atX == nullptr || atY == nullptr)
    return std::nullopt;
  return Place{atX->text.toDouble().value_or(0.0), atY->text.toDouble().value_or(0.0)};
}

void put(Record &node, const Place &place) {
  for (const auto &[property, at] : {std::make_pair("x", place.x), {"y", place.y}}) {
    constexpr int Digits = 14; // what the mean adds beyond is noise
    const PropertyKey key = PropertyKey::intern(property);
    node.values.erase(std::remove_if(node.values.begin(), node.values.end(),
                                     [key](const NetworkRecord::Value &value) { return value.key == key; }),
                      node.values.end());
    node.values.push_back({key, PropertyText::ofNumber(at, Digits), true});
  }
}

/// Puts nodes into the mean of their placed neighbours, ring by ring from those that have a place.
class Rings {
public:
  Rings(const std::vector<Record> &nodes, const std::vector<Record> &edges)
      : m_neighbours(nodes.size()) {
    QHash<QString, std::size_t> numbers;
    for (std::size_t i = 0; i < nodes.size(); ++i)
      numbers.insert(nodes[i].name, i);
    for (const Record &edge : edges) {
      const std::size_t from = numbers.value(edge.find(Names::all().node1)->text.toString());
      const std::size_t to = numbers.value(edge.find(Names::all().node2)->text.toString());
      m_neighbours[from].push_back(to);
      m_neighbours[to].push_back(from);
    }
  }

  void fill(std::vector<std::optional<Place>> &places) const {
    std::vector<std::size_t> ring;
    for (std::size_t i = 0; i < places.size(); ++i) {
      if (places[i])
        ring.push_back(i);
    }
    std::vector<bool> isReached(places.size());
    while (!ring.empty()) {
      std::vector<std::size_t> next;
      for (const std::size_t node : ring) {
        for (const std::size_t neighbour : m_neighbours[node]) {
          if (places[neighbour] || isReached[neighbour])
            continue;
          isReached[neighbour] = true;
          next.push_back(neighbour);
        }
      }
      std::vector<Place> found;
      found.reserve(next.size());
      for (const std::size_t node : next)
        found.push_back(mean(node, places));
      for (std::size_t i = 0; i < next.size(); ++i)
        places[next[i]] = found[i];
      ring = std::move(next);
    }
  }

private:
  Place mean(std::size_t node, const std::vector<std::optional<Place>> &places) const {
    Place sum;
    double count = 0.0;
    for (const std::size_t neighbour : m_neighbours[node]) {
      if (!places[neighbour])
        continue;
      sum.x += places[neighbour]->x;
      sum.y += places[neighbour]->y;
      count += 1.0;
    }
    return {sum.x / count, sum.y / count};
  }

  std::vector<std::vector<std::size_t>> m_neighbours;
};

} // namespace

QString NodePlaces::complete(std::vector<Record> &nodes, const std::vector<Record> &edges) {
  std::vector<std::optional<Place>> places;
  const auto look = [&](const char *x, const char *y) {
    places.clear();
    for (const Record &node : nodes)
      places.push_back(placeOf(node, x, y));
    return std::count(places.begin(), places.end(), std::nullopt);
  };
  const auto count = static_cast<std::ptrdiff_t>(nodes.size());
  const std::ptrdiff_t missing = look("x", "y");
  if (missing == 0)
    return {};
  const bool isByMap = missing == count && look("lon", "lat") < count;
  Rings(nodes, edges).fill(places);
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    if (placeOf(nodes[i], "x", "y"))
      continue;
    constexpr double Turn = 6.283185307179586;
    constexpr double Distance = 10.0; // between neighbours on the circle, in plot units
    const double angle = Turn * static_cast<double>(i) / static_cast<double>(count);
    const double radius = Distance * static_cast<double>(count) / Turn;
    put(nodes[i], places[i] ? *places[i] : Place{radius * std::cos(angle), radius * std::sin(angle)});
  }
  const QString how = isByMap ? Texts::tr("their longitude and latitude serve, or they are put between their neighbours")
                              : Texts::tr("they are put between their neighbours, or on a circle");
  return Texts::tr("%1 nodes have no coordinates: %2").arg(missing).arg(how);
}
