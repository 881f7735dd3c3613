#pragma once

#include <base/fileaccess.h>
#include <base/finding.h>

#include <QCoreApplication>
#include <QXmlStreamReader>

/// What the readers of public gas network instances have in common: the way into a file, and what is told of it. Document
/// types are refused, so that no entity is expanded or loaded. The work that a file can cause is bounded before the parser
/// sees it: by its size, and by XmlBounds.
class GasLibXml {
  Q_DECLARE_TR_FUNCTIONS(GasLibXml)
public:
  static constexpr qint64 LargestFile = qint64(64) << 20;

  /// A unit of the format as UDUNITS-2 writes it; empty for one that is not known.
  static QString unitOf(const QString &name);

  explicit GasLibXml(QString path, FileAccess::Source source)
      : m_path(std::move(path))
      , m_source(source) {}

  /// What is wrong, with its line; at most a thousand, since a file that is wrong altogether must not fill the memory.
  Findings findings;
  void tell(const QString &text, int line);

protected:
  /// Opens the file and goes to its root element. False when nothing can be read. \param space last part of the namespace,
  /// another one is told only
  bool start(const QString &root, const QString &space);
  /// False, and told why, when the file ended early.
  bool finish();
  void tell(const QString &text) { tell(text, static_cast<int>(m_xml.lineNumber())); }
  /// Of the current element.
  QString attribute(const char *name) const { return m_xml.attributes().value(QLatin1String(name)).toString(); }

  QString m_path;
  QXmlStreamReader m_xml;

private:
  bool load();

  FileAccess::Source m_source;
};
