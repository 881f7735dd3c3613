#pragma once

#include <QImage>
#include <QString>

#include <functional>
#include <utility>

class QIODevice;
class QPaintDevice;
class QwtPlot;

/// A map as a picture of its own, on white and larger than on the screen.
class MapPicture {
public:
  using OnWhite = std::function<void(const std::function<void()> &paint)>;

  MapPicture(QwtPlot &map, OnWhite onWhite)
      : m_map(map)
      , m_onWhite(std::move(onWhite)) {}

  QImage image() const;
  /// The format by the suffix: PDF, SVG or a picture. False with the reason.
  bool save(const QString &path, QString *reason) const;

private:
  void paint(QPaintDevice &device, const QSizeF &size) const;
  bool write(QIODevice &device, const QString &suffix, QString *reason) const;

  QwtPlot &m_map;
  OnWhite m_onWhite;
};
