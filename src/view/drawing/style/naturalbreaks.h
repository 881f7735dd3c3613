#pragma once

#include <vector>

/// Breaks that put values into classes within which they differ least (W. D. Fisher, "On grouping for maximum
/// homogeneity", 1958; G. F. Jenks, 1967): the sum of squared distances from the means of the classes is smallest. Of many
/// values a sample at equal steps is taken. Each break is the smallest value of its class; fewer where there are fewer
/// different values.
std::vector<double> naturalBreaks(std::vector<double> values, int classes);
