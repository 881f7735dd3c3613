#pragma once

#include <QSortFilterProxyModel>
#include <QStringList>

/// Those settings in which all words of a search occur, in the name or in what is said of them.
class SettingsFilter : public QSortFilterProxyModel {
  Q_OBJECT
public:
  explicit SettingsFilter(QObject *parent = nullptr);

  void setWords(const QString &text);
  /// Only those that have another value than the built-in one.
  void setChangedOnly(bool changedOnly);

protected:
  bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
  QStringList m_words;
  bool m_changedOnly = false;
};
