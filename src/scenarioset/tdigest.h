#pragma once

#include <cstddef>
#include <vector>

/// Quantiles of any number of numbers in a memory of fixed size: a merging t-digest (Dunning, Ertl: Computing extremely
/// accurate quantiles using t-digests, 2019). Numbers of like size are summed up as one mean with a weight, fewer of them
/// towards both ends, where quantiles are finer.
class TDigest {
public:
  /// Means at most, about; a share is found to about one part in so many, better towards the ends.
  static constexpr std::size_t Size = 100;

  void add(double number);
  /// Between the means linearly. \param smallest,largest of all numbers, of which there must be one
  double quantile(double share, double smallest, double largest);

private:
  struct Mean {
    double at = 0.0;
    double weight = 0.0;
  };

  void merge();

  std::vector<Mean> m_means; ///< ascending
  std::vector<double> m_new; ///< not merged yet
};
