#include "nodeplaces.h"

#include <model/names.h>

#include <QCoreApplication>
#include <QHash>
#include <QPointF>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

using Record = NetworkRecord;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(NodePlaces)
};

std::optional<QPointF> positionOf(const Record &node, const char *x, const char *y) {
  const NetworkRecord::Value *atX = node.find(PropertyKey::intern(x));
  const NetworkRecord::Value *atY = node.find(PropertyKey::intern(y));
  if (atX == nullptr || atY == nullptr)
    return std::nullopt;
  return QPointF(atX->text.toDouble().value_or(0.0), atY->text.toDouble().value_or(0.0));
}

void setPosition(Record &node, const QPointF &position) {
  for (const auto &[property, at] : {std::make_pair("x", position.x()), {"y", position.y()}}) {
    constexpr int Digits = 14; // what the mean adds beyond is noise
    const PropertyKey key = PropertyKey::intern(property);
    node.values.erase(std::remove_if(node.values.begin(), node.values.end(),
                                     [key](const NetworkRecord::Value &value) { return value.key == key; }),
                      node.values.end());
    node.values.push_back({key, PropertyText::ofNumber(at, Digits), true});
  }
}

/// Puts nodes into the mean of their neighbours, ring by ring from those that have a position.
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

  void fill(std::vector<std::optional<QPointF>> &positions) const {
    std::vector<std::size_t> ring;
    for (std::size_t i = 0; i < positions.size(); ++i) {
      if (positions[i])
        ring.push_back(i);
    }
    std::vector<bool> isReached(positions.size());
    while (!ring.empty()) {
      std::vector<std::size_t> next;
      for (const std::size_t node : ring) {
        for (const std::size_t neighbour : m_neighbours[node]) {
          if (positions[neighbour] || isReached[neighbour])
            continue;
          isReached[neighbour] = true;
          next.push_back(neighbour);
        }
      }
      std::vector<QPointF> found;
      found.reserve(next.size());
      for (const std::size_t node : next)
        found.push_back(mean(node, positions));
      for (std::size_t i = 0; i < next.size(); ++i)
        positions[next[i]] = found[i];
      ring = std::move(next);
    }
  }

private:
  QPointF mean(std::size_t node, const std::vector<std::optional<QPointF>> &positions) const {
    QPointF sum;
    double count = 0.0;
    for (const std::size_t neighbour : m_neighbours[node]) {
      if (!positions[neighbour])
        continue;
      sum += *positions[neighbour];
      count += 1.0;
    }
    return sum / count;
  }

  std::vector<std::vector<std::size_t>> m_neighbours;
};

} // namespace

QString NodePlaces::complete(std::vector<Record> &nodes, const std::vector<Record> &edges) {
  std::vector<std::optional<QPointF>> positions;
  const auto look = [&](const char *x, const char *y) {
    positions.clear();
    for (const Record &node : nodes)
      positions.push_back(positionOf(node, x, y));
    return std::count(positions.begin(), positions.end(), std::nullopt);
  };
  const auto count = static_cast<std::ptrdiff_t>(nodes.size());
  const std::ptrdiff_t missing = look("x", "y");
  if (missing == 0)
    return {};
  const bool isByMap = missing == count && look("lon", "lat") < count;
  Rings(nodes, edges).fill(positions);
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    if (positionOf(nodes[i], "x", "y"))
      continue;
    constexpr double FullTurn = 2.0 * M_PI;
    constexpr double NeighbourDistance = 10.0; // on the circle, in plot units
    const double angle = FullTurn * static_cast<double>(i) / static_cast<double>(count);
    const double radius = NeighbourDistance * static_cast<double>(count) / FullTurn;
    setPosition(nodes[i], positions[i] ? *positions[i] : QPointF(radius * std::cos(angle), radius * std::sin(angle)));
  }
  const QString how = isByMap ? Texts::tr("their longitude and latitude serve, or they are put between their neighbours")
                              : Texts::tr("they are put between their neighbours, or on a circle");
  return Texts::tr("%1 nodes have no coordinates: %2").arg(missing).arg(how);
}
