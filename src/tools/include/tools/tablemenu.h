#pragma once

#include <QMap>
#include <QObject>
#include <QString>

#include <functional>

class QAbstractItemView;
class QHeaderView;

/// What a person asks of the texts of a column: "> 10", "<= 3", "= open", "!= 0" compare, as numbers where both are; any
/// other text must be part of the cell's, regardless of case.
class CellFilter {
public:
  explicit CellFilter(const QString &text = QString());
  bool passes(const QString &cell) const;

private:
  QString m_operator;
  QString m_text;
  double m_number = 0.0;
  bool m_isNumber = false;
};

/// What every table offers: columns that can be moved, hidden and filtered by the menu of their header, and Ctrl+C. Belongs
/// to the view, which must be a table or a flat tree and have its model.
class TableMenu : public QObject {
  Q_OBJECT
public:
  explicit TableMenu(QAbstractItemView &view);

  /// \param text empty for no filter
  void setFilter(int column, const QString &text);
  QString filter(int column) const { return m_filters.value(column); }
  void clearFilters();
  /// "value > 4, name A": what is asked of which column; empty without filters.
  QString filterSummary() const;
  int shownRows() const;
  int hiddenRows() const;

  /// The selected cells that are shown, as a spreadsheet takes them: tabulators between columns, line breaks between rows;
  /// texts with either or with quotes stand in quotes.
  static QString cellTexts(const QAbstractItemView &view);

  /// The view's actions by right click. \param fit makes them fit what is selected, which for many rows takes a while
  static void offerActions(QAbstractItemView &view, std::function<void()> fit);

  /// Ctrl+C, unless the view has an action for it.
  static void offerCopy(QAbstractItemView &view);

signals:
  void filtered(); ///< the filters have changed, or there are other rows that they show and hide

private:
  void showMenu(const QPoint &position);
  void askForFilter(int column);
  void updateRows(bool areUpdated);
  void hideRow(int row, bool hidden);
  bool isHidden(int row) const { return isHidden(m_view, row); }
  static bool isHidden(const QAbstractItemView &view, int row);
  static QHeaderView *header(const QAbstractItemView &view);
  void markHeader(int column);
  /// Hides and shows rows anew, after they have been filled or sorted.
  void apply();
  bool filterRows(); ///< true when other rows are shown than before

  QAbstractItemView &m_view;
  QHeaderView *m_header;
  QMap<int, QString> m_filters; ///< by column, none of them empty
  bool m_hidesRows = false;
};
