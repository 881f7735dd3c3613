#pragma once

#include <vector>

/// What a column of numbers looks like.
struct ValueStatistics {
  struct Bin {
    double from = 0.0;
    double to = 0.0;
    int count = 0;
  };

  int count = 0; ///< numbers; the rest is meaningful only when there are some
  double minimum = 0.0;
  double maximum = 0.0;
  double mean = 0.0;
  double standardDeviation = 0.0; ///< of the sample, 0 for one number
  std::vector<Bin> bins;          ///< of equal width, at least one

  /// What is not finite is passed over.
  explicit ValueStatistics(std::vector<double> values);

  /// Between the order statistics linearly, as spreadsheets do. \param share 0 to 1
  double quantile(double share) const;

private:
  void makeBins();

  std::vector<double> m_sorted;
};
