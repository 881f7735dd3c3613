#include "columnstatistics.h"

#include <support/nivratest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace {

constexpr double None = std::numeric_limits<double>::quiet_NaN();
constexpr Index Days = 1234;

std::vector<Index> shuffled() {
  std::vector<Index> order(Days);
  for (Index i = 0; i < Days; ++i)
    order[i] = i;
  std::shuffle(order.begin(), order.end(), std::mt19937(7));
  return order;
}

/// What a day's value may look like: seasons with noise, two states, a heavy tail.
double valueOf(int shape, Index day) {
  std::mt19937 random(day * 31U + 5U);
  const double uniform = std::uniform_real_distribution<double>(0.0, 1.0)(random);
  if (shape == 0)
    return 60.0 + 15.0 * std::sin(2.0 * M_PI * day / 365.25) + 4.0 * uniform;
  return shape == 1 ? (uniform < 0.4 ? 10.0 : 80.0) + uniform : std::exp(4.0 * uniform * uniform);
}

/// The part of the numbers that lie below: where a quantile truly stands.
double rankOf(const std::vector<double> &sorted, double value) {
  return static_cast<double>(std::lower_bound(sorted.begin(), sorted.end(), value) - sorted.begin()) /
         static_cast<double>(sorted.size());
}

} // namespace

class TestColumnStatistics : public QObject {
  Q_OBJECT

private slots:
  void exactAndEstimated();
  void columnsThatComeLate_data();
  void columnsThatComeLate();
};

void TestColumnStatistics::exactAndEstimated() {
  ColumnStatistics exact(Days);
  ColumnStatistics estimated(Days, Days + 1); // room for one column
  for (int shape = 0; shape < 3; ++shape) {
    exact.addColumn(None);
    estimated.addColumn(None);
  }
  std::vector<std::vector<double>> sorted(3);
  for (const Index day : shuffled()) {
    const std::vector<double> numbers{valueOf(0, day), valueOf(1, day), valueOf(2, day)};
    exact.addScenario(day, numbers);
    estimated.addScenario(day, numbers);
    for (std::size_t i = 0; i < 3; ++i)
      sorted[i].push_back(numbers[i]);
  }
  QVERIFY(exact.isExact() && !estimated.isExact());
  for (Index column = 0; column < 3; ++column) {
    std::vector<double> &numbers = sorted[column];
    std::sort(numbers.begin(), numbers.end());
    const SetFigures found = exact.figures(column);
    const SetFigures roughly = estimated.figures(column);
    QCOMPARE(found.count, Days);
    QCOMPARE(found.minimum, numbers.front());
    QCOMPARE(valueOf(static_cast<int>(column), found.maximumAt), numbers.back());
    long double sum = 0.0L;
    for (const double number : numbers)
      sum += number;
    const long double mean = sum / Days;
    long double squares = 0.0L;
    for (const double number : numbers)
      squares += (number - mean) * (number - mean);
    QVERIFY(std::abs(found.mean - static_cast<double>(mean)) < 1e-9);
    QVERIFY(std::abs(found.deviation - std::sqrt(static_cast<double>(squares / (Days - 1)))) < 1e-9);
    QCOMPARE(roughly.mean, found.mean);
    QCOMPARE(roughly.maximumAt, found.maximumAt);
    for (std::size_t i = 0; i < SetFigures::Quantiles; ++i) {
      QVERIFY(std::abs(rankOf(numbers, found.quantiles[i]) - SetFigures::Shares[i]) < 1.5 / Days);
      QVERIFY2(std::abs(rankOf(numbers, roughly.quantiles[i]) - SetFigures::Shares[i]) < 0.01,
               qPrintable(QStringLiteral("column %1, quantile %2: rank %3")
                              .arg(column)
                              .arg(SetFigures::Shares[i])
                              .arg(rankOf(numbers, roughly.quantiles[i]))));
    }
  }
}

void TestColumnStatistics::columnsThatComeLate_data() {
  QTest::addColumn<double>("before");
  QTest::addColumn<int>("count");
  QTest::newRow("of the geometry") << 5.0 << static_cast<int>(Days);
  QTest::newRow("not there") << None << static_cast<int>(Days) - 100;
}

/// Whether the room ends before or behind them, the figures are those of all scenarios.
void TestColumnStatistics::columnsThatComeLate() {
  QFETCH(const double, before);
  QFETCH(const int, count);
  for (const std::size_t room : {std::size_t(1), ColumnStatistics::DefaultRoom}) {
    ColumnStatistics statistics(Days, room);
    const std::vector<Index> order = shuffled();
    for (Index i = 0; i < Days; ++i) {
      if (i == 100)
        statistics.addColumn(before);
      statistics.addScenario(order[i], std::vector<double>(statistics.columns(), 7.0));
    }
    const SetFigures figures = statistics.figures(0);
    QCOMPARE(static_cast<int>(figures.count), count);
    QCOMPARE(figures.minimum, std::isnan(before) ? 7.0 : before);
    QCOMPARE(figures.quantiles[3], 7.0);
  }
}

NIVRA_TEST(TestColumnStatistics);

#include "tst_columnstatistics.moc"
