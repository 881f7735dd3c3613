#pragma once

#include <paper/pagecontent.h>

/// Several pages in one run: into one PDF, or into a file each.
class PageSeries {
  Q_DECLARE_TR_FUNCTIONS(PageSeries)
public:
  struct Page {
    QString name; ///< of the page among the others, also of its file
    /// What it shows, and what it says; null with the reason. It lives until the next page is opened.
    std::function<PageContent *(PageText &text, QString *reason)> open;
  };
  struct Target {
    QString path;   ///< of the PDF, or the folder of the files
    QString suffix; ///< of the files; empty for one PDF
    bool isBook() const { return suffix.isEmpty(); }
  };
  struct Outcome {
    QStringList written; ///< files
    int pages = 0;       ///< in them
    QStringList faults;
    bool isCancelled = false;
  };
  /// Told before each page; false ends the run. Files that are complete then stay, the others are not there.
  using GoOn = std::function<bool(int done, const QString &name)>;

  /// The files of the pages, in their order: the one PDF, or one each. Names of files hold no marks and are all different.
  static QStringList files(const std::vector<Page> &pages, const Target &target);
  /// A page that cannot be shown is told and left out; a disk that takes no more ends the run.
  static Outcome run(const std::vector<Page> &pages, const PageSetup &setup, const Target &target, const GoOn &goOn);

private:
  static void writeBook(const std::vector<Page> &pages, const PageSetup &setup, const Target &target, const GoOn &goOn,
                        Outcome &outcome);
  static void writeFiles(const std::vector<Page> &pages, const PageSetup &setup, const Target &target, const GoOn &goOn,
                         Outcome &outcome);
};
