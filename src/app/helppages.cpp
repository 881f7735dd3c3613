#include "helppages.h"

#include <base/index.h>

#include <QFile>
#include <QRegularExpression>

namespace {

/// As the usual viewers of Markdown name the anchor of a heading.
QString anchorOf(const QString &title) {
  static const QRegularExpression others(QStringLiteral("[^\\p{L}\\p{N}\\- ]"));
  return title.toLower().remove(others).replace(QLatin1Char(' '), QLatin1Char('-'));
}

} // namespace

HelpPages::HelpPages() {
  Q_INIT_RESOURCE(app); // a static library's resources are dropped by the linker unless somebody asks for them
  for (const QString &document : {QStringLiteral("user-guide.md"), QStringLiteral("file-formats.md")}) {
    QFile file(QStringLiteral(":/help/") + document);
    if (file.open(QIODevice::ReadOnly))
      add(document, QString::fromUtf8(file.readAll()));
  }
}

void HelpPages::add(const QString &document, const QString &markdown) {
  static const QRegularExpression marker(QStringLiteral("^<!-- page: (.*) -->$"));
  QStringList names;
  Page page{QString(), document, {}, {}, QString()};
  const auto finish = [&] {
    if (!page.markdown.trimmed().isEmpty())
      m_pages.push_back(page);
  };
  bool isCode = false;
  for (const QString &line : markdown.split(QLatin1Char('\n'))) {
    isCode = line.startsWith(QStringLiteral("```")) ? !isCode : isCode;
    const QRegularExpressionMatch match = marker.match(line);
    if (match.hasMatch()) {
      names = match.captured(1).split(QLatin1Char(' '), Qt::SkipEmptyParts);
      continue;
    }
    const bool isTitle = !isCode && line.startsWith(QStringLiteral("# "));
    if (isTitle || (!isCode && line.startsWith(QStringLiteral("## ")))) {
      finish();
      const QString title = line.section(QLatin1Char(' '), 1);
      page = {title, document, {anchorOf(title)}, names, QString()};
      names.clear();
      if (isTitle)
        continue; // a document without text before its first section has no page for the title
    }
    if (!isCode && line.startsWith(QStringLiteral("### ")))
      page.anchors.append(anchorOf(line.section(QLatin1Char(' '), 1)));
    page.markdown += line + QLatin1Char('\n');
  }
  finish();
}

int HelpPages::find(const QString &name) const {
  for (std::size_t i = 0; i < m_pages.size(); ++i) {
    if (m_pages[i].names.contains(name))
      return toQt(i);
  }
  return -1;
}

int HelpPages::follow(const QString &link, const QString &fromDocument) const {
  const QString document = link.section(QLatin1Char('#'), 0, 0);
  const QString anchor = link.section(QLatin1Char('#'), 1);
  for (std::size_t i = 0; i < m_pages.size(); ++i) {
    const Page &page = m_pages[i];
    if (page.document == (document.isEmpty() ? fromDocument : document) &&
        (anchor.isEmpty() || page.anchors.contains(anchor)))
      return toQt(i);
  }
  return -1;
}
