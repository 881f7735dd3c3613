#pragma once

#include <cmath>
#include <cstddef>

/// What there is room for in a view. Everything here grows with the zoom and never jumps: what would come suddenly comes
/// small and grows instead. It does not change while a view is moved.
class Detail {
public:
  /// \param room px, the typical length of an edge as it is drawn; 0 where nothing has a length, and so all the room there
  /// is
  explicit Detail(double room)
      : m_room(room > 0.0 ? room : Unlimited) {}

  /// Of the usual size of nodes; 0 where they would hide the lines.
  double nodeScale() const;
  double symbolScale() const; ///< of the usual size of symbols and boxes
  double arrowScale() const;  ///< of the usual size of arrows

  /// How far something is there that has no room up to one bound and all of it from the other on: 0 to 1.
  static double presence(double room, double none, double all);
  /// How far apart so many things stand that are spread over an area.
  static double roomOf(double area, std::size_t count) {
    return count == 0 || !(area > 0.0) ? Unlimited : std::sqrt(area / static_cast<double>(count));
  }

private:
  static constexpr double Unlimited = 1e9; // px or plot units

  double m_room;
};
