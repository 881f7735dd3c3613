#pragma once

#include <QMap>
#include <QMetaType>
#include <QString>
#include <QStringList>

#include <vector>

/// A named selection of element properties, as a search does it.
struct Category {
  QString category; ///< its name
  QString name;     ///< patterns, as the following
  QString type;
  QString prop;
  QString value; ///< pattern of the value, or a formula when it speaks of the current element ("@ELE")
  bool isChecked = false;

  bool isFormula() const { return value.contains(QStringLiteral("@ELE")); }
  friend bool operator==(const Category &a, const Category &b) {
    return a.category == b.category && a.name == b.name && a.type == b.type && a.prop == b.prop && a.value == b.value &&
           a.isChecked == b.isChecked;
  }
};

/// What the vector table gets to know of a category.
struct CategoryRecord {
  QString name;
  QString type;
  QString prop;
  QString value; ///< empty when there is a formula
  QString formula;
  bool isChecked = false;
};
using CatMap = QMap<QString, CategoryRecord>;
Q_DECLARE_METATYPE(CategoryRecord)

/// "catdef.csv".
namespace CategoryFile {

/// What is wrong with a line is logged, and the line skipped. A missing file is logged and holds none.
std::vector<Category> read(const QString &path);
/// Whole or not at all; false with the reason.
bool write(const QString &path, const std::vector<Category> &categories, QString *error = nullptr);

CatMap toMap(const std::vector<Category> &categories);

} // namespace CategoryFile
