#pragma once

#include <base/finding.h>
#include <base/pattern.h>
#include <formulas/formula.h>
#include <model/netdata.h>
#include <tools/category.h>
#include <tools/displayvalue.h>
#include <tools/searchcriteria.h>

#include <QIODevice>

#include <vector>

/// The rows of the vector table, without a window: one property of all elements, or what a category selects.
class VectorRows {
public:
  struct Row {
    QString name;
    QString type;
    QString property;
    QString value; ///< in the display unit
    QString unit;
    QString result; ///< the raw value, or what the formula says
    QString numsort;
  };
  struct Request {
    bool usesProperty = true;
    QString property;        ///< exactly, when it is used
    CategoryRecord category; ///< patterns otherwise; empty ones take everything
    bool onlyNonZero = false;
    bool onlySelection = false;
  };

  /// What goes into a file.
  struct Exported {
    QStringList headers;
    std::vector<QStringList> rows;
    QVector<int> valueColumns; ///< which get decimal commas
  };

  /// \param told which formulas cost too much
  explicit VectorRows(NetData &net, Told told = {})
      : m_net(net)
      , m_told(std::move(told)) {}

  std::vector<Row> build(const Request &request);
  /// Every listed property has a unit, so that the values can be ordered as numbers.
  bool allHaveUnits() const { return m_allHaveUnits; }

  /// By the number of the value; what is no number comes last and is marked "x". The rank stands in numsort.
  static void sortNumerically(std::vector<Row> &rows);
  /// In natural order: P_2 before P_10.
  static void sortByName(std::vector<Row> &rows);
  static QString padded(int number); ///< right-aligned in nine characters
  static bool write(QIODevice &device, const Exported &table);

private:
  void addRows(const element &e, const Request &request, std::vector<Row> &rows);
  bool result(const element &e, const Property &property, const Request &request, QString &text);

  NetData &m_net;
  Told m_told;
  std::optional<DisplayValue> m_display; ///< of the vocabulary that the network has when rows are built
  Pattern m_name;
  SearchedTypes m_type;
  SearchedValues m_value;
  SearchedProperties m_properties;
  std::optional<Formula> m_formula;
  bool m_allHaveUnits = false;
};
