#pragma once

#include <base/finding.h>

#include <QXmlStreamReader>

/// What the readers of public gas network instances have in common: the way into a file, and what is told of it. Document
/// types are refused, so that no entity is expanded or loaded.
class GasLibXml {
public:
  explicit GasLibXml(QString path)
      : m_path(std::move(path)) {}

  /// What is wrong, with its line; at most a thousand, since a file that is wrong altogether must not fill the memory.
  Findings findings;
  void tell(const QString &text, int line);

protected:
  /// Goes to the root element, opening the device when it is not. False when nothing can be read. \param space last part of
  /// the namespace, another one is told only
  bool start(QIODevice &device, const QString &root, const QString &space);
  /// Tells why the file ended early, when it did.
  void finish();
  void tell(const QString &text) { tell(text, static_cast<int>(m_xml.lineNumber())); }
  /// Of the current element.
  QString attribute(const char *name) const { return m_xml.attributes().value(QLatin1String(name)).toString(); }

  QString m_path;
  QXmlStreamReader m_xml;
};
