#pragma once

#include <QPointF>
#include <QString>
#include <QVector>
#include <QWidget>

#include <memory>
#include <utility>
#include <vector>

class QLabel;
class QwtPlot;
struct ValueStatistics;

/// Numbers of a table as pictures: in the order of its rows, and as a histogram with what is typical of them.
class VectorPlot : public QWidget {
  Q_OBJECT
public:
  explicit VectorPlot(QWidget *parent = nullptr);
  ~VectorPlot() override;

  /// \param title of the numbers, with their unit
  /// \param values row, from 1, and number
  /// \param ofWhat "all rows" and the like, for a person
  void show(const QString &title, const std::vector<std::pair<int, double>> &values, const QString &ofWhat);

protected:
  void changeEvent(QEvent *event) override;

private:
  void draw(); ///< in the colours of the screen
  void drawHistogram(const ValueStatistics &statistics);
  static QString summaryOf(const ValueStatistics &statistics, const QString &ofWhat);

  QwtPlot *m_rows;
  QwtPlot *m_histogram;
  QLabel *m_summary;
  QVector<QPointF> m_points;                     ///< row and number
  std::unique_ptr<ValueStatistics> m_statistics; ///< none before the first show()
};
