#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// The user guide and the description of the file formats, cut into pages at their headings of the second level.
class HelpPages {
public:
  struct Page {
    QString title;
    QString document;    ///< file name, such as "user-guide.md"
    QStringList anchors; ///< as links name it and its headings below, such as "label-table"
    QStringList names;   ///< by which the tools ask for it: "<!-- page: search findings -->" above the heading
    QString markdown;
  };

  HelpPages(); ///< those of the program

  void add(const QString &document, const QString &markdown);
  const std::vector<Page> &pages() const { return m_pages; }
  /// The page of a tool; -1 when there is none.
  int find(const QString &name) const;
  /// The page that a link of another names, such as "file-formats.md#formulas" or "#searching"; -1 when there is none.
  int follow(const QString &link, const QString &fromDocument) const;

private:
  std::vector<Page> m_pages;
};
