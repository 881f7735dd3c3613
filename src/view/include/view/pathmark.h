#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

class NetVisControl;
class PathLayer;

/// Marks a way through the network over the drawing, and a place on it. It stays until another way is marked or none.
class PathMark : public QObject {
  Q_OBJECT
public:
  /// It lives as long as the drawing.
  explicit PathMark(NetVisControl &control);
  ~PathMark() override;

  /// Elements that are not drawn are left out. \param edges in their order \param wayPoints nodes
  void setPath(const QStringList &edges, const QStringList &wayPoints);
  void clear() { setPath({}, {}); }
  /// \param share how far along an edge, from its first node, from 0 to 1; of no effect for a node
  void setCursor(const QString &element, double share);
  void clearCursor();
  /// Edges that are marked.
  std::size_t size() const;

private:
  NetVisControl &m_control;
  std::unique_ptr<PathLayer> m_layer;
};
