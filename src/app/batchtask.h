#pragma once

#include <drawing/aspect.h>
#include <tools/elementquery.h>

#include <QCoreApplication>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>
#include <vector>

/// What is to be done with one network, without a window.
struct BatchTask {
  /// The drawing as a picture. The setters return why the value makes no sense; empty when it does.
  struct Picture {
    Q_DECLARE_TR_FUNCTIONS(BatchTask)
  public:
    static constexpr int DefaultWidth = 1600;
    static constexpr int LargestWidth = 20000;
    static constexpr double SmallestScale = 0.1;
    static constexpr double LargestScale = 20.0;

    QString path;                   ///< the suffix gives the format
    int width = DefaultWidth;       ///< px
    double scale = 1.0;             ///< of texts, lines and symbols against those on the screen
    PerAspect<QString> functions{}; ///< in place of those of the plot settings, empty to leave them
    QString labels; ///< label mode of the plot settings, empty to leave it; labels are then placed wherever there is room
    QRectF extent;  ///< what it shows, in the network's coordinates; null for everything
    QStringList styles; ///< files and names of styles, laid over the plot settings and the label table of the case

    QString setWidth(double pixels); ///< what is too large is cut
    QString setScale(double factor);
    QString setLabels(const QString &word);            ///< "none", "name" or "selected"
    QString setExtent(const QVector<double> &corners); ///< x0, y0, x1, y1
    QString addStyle(const QString &file);             ///< ".ini" or ".csv", or the name of a style
    static bool isStyleFile(const QString &style);     ///< not a name
  };

  /// Elements that a search finds, or properties of elements.
  struct List {
    std::optional<ElementQuery::Criteria> search; ///< restricts a table
    QStringList properties;                       ///< of a table; empty for what the search finds
    QString type;                                 ///< of a table; empty for all
    QString path;                                 ///< empty for the standard output
  };

  /// Figures over many scenarios of the case.
  struct Set {
    QStringList properties; ///< of which; empty when no figures are wanted
    QString scenarios;      ///< pattern of their names, or a range of dates; empty for all
  };

  struct Output {
    bool isWanted = false;
    QString path; ///< empty for the standard output
  };

  QString file;
  std::vector<Picture> pictures;
  std::vector<List> lists;
  Set set;
  QString setTable; ///< file for the table of the figures where nothing else asks for them; empty for the standard output
  Output info;
  Output check;

  bool isEmpty() const {
    return pictures.empty() && lists.empty() && set.properties.isEmpty() && !info.isWanted && !check.isWanted;
  }
  /// The figures themselves are the answer.
  bool wantsSetTable() const { return !set.properties.isEmpty() && pictures.empty() && lists.empty(); }
};
