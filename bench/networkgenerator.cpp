#include "networkgenerator.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

constexpr double Spacing = 5000.0; // m between neighbours of the grid

struct Point {
  double x = 0.0;
  double y = 0.0;
};

struct EdgeKind {
  const char *word;
  double share; // of all grid edges
};
constexpr std::array<EdgeKind, 7> EdgeKinds{{{"valve", 0.02},
                                             {"regulator", 0.015},
                                             {"resistor", 0.005},
                                             {"flaptrap", 0.004},
                                             {"shortcut", 0.003},
                                             {"heater", 0.002},
                                             {"cooler", 0.001}}};

class Generator {
public:
  Generator(int elements, std::uint64_t seed)
      : m_random(seed) {
    m_stations = elements / 100;
    const int gridElements = std::max(elements - 3 * m_stations, 1);
    m_gridNodes = std::max(static_cast<int>((gridElements + 1) / 2.05), 1);
    m_gridEdges = gridElements - m_gridNodes;
    m_columns = std::max(static_cast<int>(std::lround(std::sqrt(m_gridNodes * 1.3))), 1);
  }

  NetworkGenerator::Summary summary() const { return {m_gridNodes + 2 * m_stations, m_gridEdges + m_stations}; }

  std::string geometry() {
    m_text = "{\n";
    for (int i = 0; i < m_gridNodes; ++i) {
      m_points.push_back({(i % m_columns + uniform(-0.35, 0.35)) * Spacing,
                          (i / m_columns + uniform(-0.35, 0.35)) * Spacing}); // NOLINT(bugprone-integer-division)
      node("N" + std::to_string(i), m_points.back(), uniform(0.0, 1.0) < 0.1 ? "sink" : "innode");
    }
    int made = 0;
    for (int i = 1; i < m_gridNodes && made < m_gridEdges; ++i, ++made)
      gridEdge(made, parent(i), i);
    for (; made < m_gridEdges && m_gridNodes > 1; ++made) { // what closes the meshes
      const int from = static_cast<int>(uniform(0.0, m_gridNodes - 1.0));
      const int to = from + m_columns < m_gridNodes ? from + m_columns : from + 1;
      gridEdge(made, from, to);
    }
    for (int i = 0; i < m_stations; ++i)
      station(i);
    m_text += "}\n";
    return std::move(m_text);
  }

  std::string scenario() {
    std::string text = "{\n";
    for (int i = 0; i < m_gridNodes; i += 10)
      text += std::string(i == 0 ? "" : ",") + "\"N" + std::to_string(i) + R"(":[{"property":"qset","value":)" +
              number(i == 0 ? -1000.0 : 10.0) + R"(,"unit":"1000 m3/h"}])" + "\n";
    return text + "}\n";
  }

private:
  double uniform(double low, double high) {
    constexpr double Scale = 1.0 / 9007199254740992.0; // 2^-53
    return low + (high - low) * static_cast<double>(m_random() >> 11) * Scale;
  }

  static std::string number(double value) {
    char text[40];
    std::snprintf(text, sizeof text, "%.9g", value);
    return text;
  }

  void begin(const std::string &name, const char *word) {
    m_text += m_first ? "\"" : ",\"";
    m_first = false;
    m_text += name + "\":{\"obj_type\":\"" + word + "\"";
  }
  void property(const char *name, double value) { m_text += std::string(",\"") + name + "\":" + number(value); }
  void property(const char *name, const std::string &value) { m_text += std::string(",\"") + name + "\":\"" + value + "\""; }
  void end() { m_text += "}\n"; }

  void properties(std::initializer_list<std::pair<const char *, double>> list) {
    for (const auto &[name, value] : list)
      property(name, value);
  }

  void node(const std::string &name, Point point, const char *kind) {
    const double pressure = 80.0 - 30.0 * std::abs(std::sin(point.x * 3e-6) * std::cos(point.y * 4e-6)) + uniform(-0.5, 0.5);
    begin(name, "node");
    property("kind", kind);
    property("vis.layer", "junctions");
    properties({{"x", point.x},
                {"y", point.y},
                {"lon", 6.0 + point.x * 1e-5},
                {"lat", 47.0 + point.y * 1e-5},
                {"height", std::round(uniform(0.0, 600.0))},
                {"pmin", 1.01325},
                {"pmax", 81.01325},
                {"qmin", -10000.0},
                {"qmax", 10000.0},
                {"tset", 10.0},
                {"hs", 36.4543671},
                {"rhon", 0.785},
                {"molarmass", 18.5674},
                {"pcrit", 45.9293457},
                {"tcrit", 188.549759},
                {"p", pressure},
                {"t", 283.15},
                {"rho", pressure * 0.875}});
    end();
  }

  void edge(const std::string &name, const char *word, const std::string &node1, const std::string &node2, double length,
            const char *layer) {
    const double flow =
        std::round(std::pow(10.0, uniform(0.0, 3.3)) * 1000.0) / 1000.0 * (uniform(0.0, 1.0) < 0.3 ? -1.0 : 1.0);
    begin(name, word);
    property("node1", node1);
    property("node2", node2);
    property("vis.layer", layer);
    properties({{"length", length},
                {"diameter", 100.0 * std::round(uniform(2.0, 14.0))},
                {"roughness", 0.05},
                {"htc", 2.0},
                {"pmin", 1.01325},
                {"pmax", 100.0},
                {"qmin", -10000.0},
                {"qmax", 10000.0},
                {"dpmin", 0.0},
                {"dpmax", 120.0},
                {"q", flow},
                {"m", flow * 0.218055556},
                {"dp", flow * 0.001},
                {"v", flow * 0.006},
                {"t", 283.15},
                {"state", 1.0},
                {"year", std::round(uniform(1960.0, 2025.0))}});
    end();
  }

  /// The neighbour towards which a branch leads: left or below, as chance has it.
  int parent(int i) {
    const int column = i % m_columns;
    if (i < m_columns)
      return i - 1;
    return column > 0 && uniform(0.0, 1.0) < 0.5 ? i - 1 : i - m_columns;
  }

  void gridEdge(int number, int from, int to) {
    const char *word = "pipe";
    double dice = uniform(0.0, 1.0);
    for (const EdgeKind &kind : EdgeKinds) {
      dice -= kind.share;
      if (dice < 0.0) {
        word = kind.word;
        break;
      }
    }
    const Point a = m_points[static_cast<std::size_t>(from)];
    const Point b = m_points[static_cast<std::size_t>(to)];
    edge("E" + std::to_string(number), word, "N" + std::to_string(from), "N" + std::to_string(to),
         std::hypot(a.x - b.x, a.y - b.y), "pipes");
  }

  void station(int i) {
    const auto at = static_cast<int>(uniform(0.0, m_gridNodes - 0.5));
    const Point inlet = m_points[static_cast<std::size_t>(at)];
    const std::string suffix = std::to_string(i);
    node("CSN" + suffix, {inlet.x + 400.0, inlet.y + 300.0}, "innode");
    edge("C" + suffix, "compressor", "N" + std::to_string(at), "CSN" + suffix, 0.0, "stations");
    begin("D" + suffix, "drive");
    property("gasnode", "N" + std::to_string(at));
    property("driven", "C" + suffix);
    property("vis.layer", "stations");
    property("kind", "gasTurbine");
    property("machine", "type " + std::to_string(i % 7));
    properties({{"powermax", 25.0}, {"x", inlet.x + 280.0}, {"y", inlet.y + 210.0}});
    end();
  }

  std::mt19937_64 m_random;
  int m_stations = 0;
  int m_gridNodes = 0;
  int m_gridEdges = 0;
  int m_columns = 1;
  bool m_first = true;
  std::vector<Point> m_points;
  std::string m_text;
};

void writeFile(const QString &path, const std::string &text) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(text.data(), static_cast<qint64>(text.size())) < 0 || !file.commit())
    throw std::runtime_error((path + QStringLiteral(": ") + file.errorString()).toStdString());
}

} // namespace

QString NetworkGenerator::geometryFile(const QString &folder) {
  return folder + QLatin1Char('/') + QFileInfo(folder).fileName() + QStringLiteral(".geom.jsn");
}

NetworkGenerator::Summary NetworkGenerator::write(const QString &folder, int elements, std::uint64_t seed) {
  const QString scenario = folder + QStringLiteral("/S1");
  if (!QDir().mkpath(scenario))
    throw std::runtime_error((QStringLiteral("cannot make the folder ") + scenario).toStdString());
  const std::string base = QFileInfo(folder).fileName().toStdString();
  Generator generator(elements, seed);
  writeFile(geometryFile(folder), generator.geometry());
  writeFile(folder + QLatin1Char('/') + QString::fromStdString(base) + QStringLiteral(".geom.cfg"),
            "geometry configuration\n" + base + "\n" + base + ".geom\n0\n{}\n");
  writeFile(scenario + QStringLiteral("/S1.scen.jsn"), generator.scenario());
  writeFile(scenario + QStringLiteral("/scenconfig.jsn"), R"({"workDir":"S1","scenFile":"S1.scen","gasFile":"S1.gas"})");
  writeFile(scenario + QStringLiteral("/solverconfig.jsn"), R"({"ntype_gasLaw":1})");
  writeFile(scenario + QStringLiteral("/S1.gas.jsn"),
            "{\n\"H-gas\":{\"obj_type\":\"gas\",\"rhon\":0.785,\"molarmass\":18.5674,\"hs\":36.454}\n}\n");
  return generator.summary();
}
