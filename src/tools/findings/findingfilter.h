#pragma once

#include <QSortFilterProxyModel>

class FindingModel;

/// Findings that have a text in them, and the stages that have any. A stage says how many of its findings are shown.
class FindingFilter final : public QSortFilterProxyModel {
  Q_OBJECT
public:
  explicit FindingFilter(FindingModel &findings, QObject *parent = nullptr);

  /// Lays out all rows anew: to take single ones out of 100,000, thousands of times, would take seconds.
  void setText(const QString &text);
  /// Shows what one stage or rule found; those of all for an empty name.
  void setGroup(const QString &name);
  /// Findings of all stages that are shown.
  int count() const;
  const FindingModel &findings() const { return m_findings; }

  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const final;

protected:
  bool filterAcceptsRow(int row, const QModelIndex &parent) const final;

private:
  const FindingModel &m_findings;
  QString m_text;
  QString m_group; ///< its name, empty for all
};
