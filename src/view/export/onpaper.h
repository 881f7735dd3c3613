#pragma once

class NetPlot;

/// What leaves the screen is on white, also where the screen is dark: as long as this lives, the plot is drawn so.
class OnPaper {
public:
  explicit OnPaper(NetPlot &plot);
  ~OnPaper();
  OnPaper(const OnPaper &) = delete;
  OnPaper &operator=(const OnPaper &) = delete;

private:
  NetPlot &m_plot;
};
