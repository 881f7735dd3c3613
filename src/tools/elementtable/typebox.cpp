#include "elementtable/typebox.h"

#include "elementtable/propertycensus.h"

#include <algorithm>

TypeBox::TypeBox(QWidget *parent)
    : QComboBox(parent) {
  setObjectName(QStringLiteral("comboBox_types"));
  setAccessibleName(tr("Elements"));
  setToolTip(tr("Which elements are listed"));
}

void TypeBox::fill(const PropertyCensus &census, const QStringList &before) {
  const std::vector<PropertyCensus::Type> types = census.types();
  QStringList all;
  QStringList edges;
  QStringList most;
  Index count = 0;
  Index edgeCount = 0;
  Index largest = 0;
  for (const PropertyCensus::Type &type : types) {
    all.append(type.code);
    count += type.count;
    if (type.kind == ElementKinds::Edge) {
      edges.append(type.code);
      edgeCount += type.count;
    }
    if (type.count > largest) {
      largest = type.count;
      most = QStringList{type.code};
    }
  }
  clear();
  const auto add = [this](const QString &title, Index number, const QStringList &codes) {
    addItem(tr("%1 (%2)").arg(title).arg(number), codes);
  };
  add(tr("All elements"), count, all);
  if (edges.size() > 1)
    add(tr("All edges"), edgeCount, edges);
  for (const PropertyCensus::Type &type : types)
    add(type.title, type.count, {type.code});
  const int kept = findData(before);
  setCurrentIndex(std::max(0, kept >= 0 ? kept : findData(most)));
}
