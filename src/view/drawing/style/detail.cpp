#include "style/detail.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>

namespace {

struct Step {
  double room;  ///< px
  double scale; ///< of the usual size
};

/// Between two steps it follows the logarithm of the room, as each step of a zoom does.
double scaleAt(double room, std::initializer_list<Step> steps) {
  if (!(room > steps.begin()->room))
    return steps.begin()->scale;
  const auto next = std::find_if(steps.begin(), steps.end(), [room](const Step &step) { return step.room > room; });
  if (next == steps.end())
    return std::prev(next)->scale;
  const Step &before = *std::prev(next);
  const double share = std::log(room / before.room) / std::log(next->room / before.room);
  return before.scale + (next->scale - before.scale) * share;
}

} // namespace

double Detail::nodeScale() const {
  return scaleAt(m_room, {{4.0, 0.0}, {9.0, 0.45}, {30.0, 0.7}, {100.0, 1.0}, {400.0, 1.5}});
}

double Detail::symbolScale() const {
  return scaleAt(m_room, {{5.0, 0.5}, {30.0, 0.75}, {80.0, 1.0}});
}

double Detail::arrowScale() const {
  return scaleAt(m_room, {{15.0, 0.4}, {40.0, 0.6}, {120.0, 0.9}});
}

double Detail::presence(double room, double none, double all) {
  const double share = std::min(std::max((room - none) / (all - none), 0.0), 1.0);
  return share * share * (3.0 - 2.0 * share);
}
