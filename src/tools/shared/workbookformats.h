#pragma once

#include <QByteArray>
#include <QString>

#include <map>
#include <utility>

struct lxw_format;
struct lxw_workbook;

/// How the cells of a workbook look: a spreadsheet shows numbers with the digits and parted thousands that people chose for
/// files, and keeps all digits of them.
class WorkbookFormats {
public:
  enum class Weight { Normal, Bold };

  /// The workbook owns the formats.
  explicit WorkbookFormats(lxw_workbook &book)
      : m_book(book) {}

  /// Null for the usual look.
  lxw_format *ofText(Weight weight) { return of(QByteArray(), weight); }
  lxw_format *ofNumber(double number, Weight weight);

  /// The format as spreadsheets write it, for a number that is shown with just the digits of a text: "#,##0.00" for
  /// "1 234.50". Empty where every digit is to be seen. \param exact with all digits
  static QByteArray code(const QString &shown, const QString &exact);

private:
  lxw_format *of(const QByteArray &code, Weight weight);

  lxw_workbook &m_book;
  std::map<std::pair<QByteArray, Weight>, lxw_format *> m_formats;
};
