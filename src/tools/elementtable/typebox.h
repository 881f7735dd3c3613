#pragma once

#include <QComboBox>
#include <QStringList>

class PropertyCensus;

/// The choice of which elements the table lists: all, all edges or those of one type, each with their number.
class TypeBox : public QComboBox {
  Q_OBJECT
public:
  explicit TypeBox(QWidget *parent = nullptr);

  /// \param before the types that were chosen, which stay when there are still such elements; else those of the most
  void fill(const PropertyCensus &census, const QStringList &before);
  /// Codes of the chosen types.
  QStringList types() const { return currentData().toStringList(); }
};
