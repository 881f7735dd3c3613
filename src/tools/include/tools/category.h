#pragma once

#include <base/finding.h>

#include <QCoreApplication>
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

  friend bool operator==(const CategoryRecord &a, const CategoryRecord &b) {
    return a.name == b.name && a.type == b.type && a.prop == b.prop && a.value == b.value && a.formula == b.formula &&
           a.isChecked == b.isChecked;
  }
};
using CatMap = QMap<QString, CategoryRecord>;
Q_DECLARE_METATYPE(CategoryRecord)

/// "catdef.csv". Characters that mean something to the file are written as words between dollar signs, as settings files do
/// it: "$SEMI$" for ";", "$BREAK$" for the end of a line, "$HASH$" and "$BRACKET$" for "#" and "[" where a name begins with
/// "#" or "[x]", "$DOLLAR$" for a "$" in front of such a word.
class CategoryFile {
  Q_DECLARE_TR_FUNCTIONS(CategoryFile)
public:
  /// What is wrong with a line is told, and the line skipped. A missing file is told and holds none.
  static std::vector<Category> read(const QString &path, const Told &told = {});
  /// Whole or not at all; false with the reason. What the present file holds beside categories stays: comments, lines that
  /// are none, and fields behind the fifth, which belong to the name of their category.
  static bool write(const QString &path, const std::vector<Category> &categories, QString *error);

  static CatMap toMap(const std::vector<Category> &categories);
};
