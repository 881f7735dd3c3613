#include "pagewriter.h"

#include <paper/pageseries.h>

#include <QDir>
#include <QRegularExpression>
#include <QSet>

QStringList PageSeries::files(const std::vector<Page> &pages, const Target &target) {
  if (target.isBook())
    return {target.path};
  static const QRegularExpression marks(QStringLiteral("[^\\w.-]+"), QRegularExpression::UseUnicodePropertiesOption);
  QStringList paths;
  QSet<QString> used;
  for (const Page &page : pages) {
    QString name = page.name;
    name.replace(marks, QStringLiteral("_"));
    while (name.startsWith(QLatin1Char('.')))
      name.remove(0, 1);
    if (name.isEmpty())
      name = QStringLiteral("page");
    QString single = name;
    for (int number = 2; used.contains(single.toCaseFolded()); ++number)
      single = name + QStringLiteral("_%1").arg(number);
    used.insert(single.toCaseFolded());
    paths.append(QDir(target.path).filePath(single + QLatin1Char('.') + target.suffix));
  }
  return paths;
}

PageSeries::Outcome PageSeries::run(const std::vector<Page> &pages, const PageSetup &setup, const Target &target,
                                    const GoOn &goOn) {
  Outcome outcome;
  (target.isBook() ? writeBook : writeFiles)(pages, setup, target, goOn, outcome);
  return outcome;
}

void PageSeries::writeBook(const std::vector<Page> &pages, const PageSetup &setup, const Target &target, const GoOn &goOn,
                           Outcome &outcome) {
  int written = 0;
  const auto hand = [&](const PageWriter::AddPage &add, QString *reason) {
    for (std::size_t i = 0; i < pages.size(); ++i) {
      outcome.isCancelled = !goOn(static_cast<int>(i), pages[i].name);
      PageText text;
      QString fault;
      PageContent *content = outcome.isCancelled ? nullptr : pages[i].open(text, &fault);
      if (outcome.isCancelled || (content == nullptr && !goOn(static_cast<int>(i), pages[i].name))) {
        outcome.isCancelled = true;
        *reason = tr("the run was cancelled");
        return false;
      }
      if (content == nullptr) {
        outcome.faults.append(tr("%1: %2").arg(pages[i].name, fault));
        continue;
      }
      add(*content, text);
      ++written;
    }
    return true;
  };
  QString reason;
  if (PageWriter::writeBook(target.path, setup, hand, &reason)) {
    outcome.written.append(target.path);
    outcome.pages = written;
  } else if (!outcome.isCancelled) {
    outcome.faults.append(reason);
  }
}

void PageSeries::writeFiles(const std::vector<Page> &pages, const PageSetup &setup, const Target &target, const GoOn &goOn,
                            Outcome &outcome) {
  const QStringList paths = files(pages, target);
  for (std::size_t i = 0; i < pages.size(); ++i) {
    const int number = static_cast<int>(i);
    outcome.isCancelled = !goOn(number, pages[i].name);
    PageText text;
    QString fault;
    PageContent *content = outcome.isCancelled ? nullptr : pages[i].open(text, &fault);
    if (content == nullptr && !outcome.isCancelled)
      outcome.isCancelled = !goOn(number, pages[i].name); // it may have been cancelled on the way
    if (outcome.isCancelled)
      return;
    if (content == nullptr) {
      outcome.faults.append(tr("%1: %2").arg(pages[i].name, fault));
      continue;
    }
    if (!PageWriter::write(paths.at(number), setup, *content, text, &fault)) {
      outcome.faults.append(fault);
      return; // the next would not find room either
    }
    outcome.written.append(paths.at(number));
    ++outcome.pages;
  }
}
