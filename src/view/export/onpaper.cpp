#include "export/onpaper.h"

#include <view/netplot.h>

OnPaper::OnPaper(NetPlot &plot)
    : m_plot(plot) {
  m_plot.setOnPaper(true);
}

OnPaper::~OnPaper() {
  m_plot.setOnPaper(false);
}
