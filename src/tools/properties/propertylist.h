#pragma once

#include <model/netdata.h>
#include <tools/displayvalue.h>

#include <vector>

/// The properties of one element by group, as the property viewer shows them.
class PropertyList {
public:
  struct Row {
    QString property;
    QString value; ///< in the display unit
    QString unit;
    bool isLong = false; ///< its text is not to widen the column
  };
  struct Group {
    QString name;
    std::vector<Row> rows;
  };

  PropertyList(const NetMetaData &metaData, bool showsHidden)
      : m_metaData(metaData)
      , m_display(metaData)
      , m_showsHidden(showsHidden) {}

  /// All groups in their order, empty ones too.
  std::vector<Group> of(const element &shown);

private:
  QString groupOf(const element &shown, const QString &type, const QString &property) const;
  Row rowOf(const QString &type, const Property &property);

  const NetMetaData &m_metaData;
  DisplayValue m_display;
  bool m_showsHidden;
};
