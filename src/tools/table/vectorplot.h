#pragma once

#include <QString>
#include <QWidget>

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

  /// \param title of the numbers, with their unit
  /// \param values row, from 1, and number
  /// \param ofWhat "all rows" and the like, for a person
  void show(const QString &title, const std::vector<std::pair<int, double>> &values, const QString &ofWhat);

private:
  void drawHistogram(const ValueStatistics &statistics);
  static QString summaryOf(const ValueStatistics &statistics, const QString &ofWhat);

  QwtPlot *m_rows;
  QwtPlot *m_histogram;
  QLabel *m_summary;
};
