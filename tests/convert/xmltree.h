#pragma once

#include <QFile>
#include <QMap>
#include <QString>
#include <QXmlStreamReader>

#include <vector>

/// An XML file as it stands, for tests that compare what the program made of it: nothing of the program is used.
struct XmlTree {
  QString name;
  QMap<QString, QString> attributes;
  std::vector<XmlTree> children;

  static XmlTree load(const QString &path) {
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    QXmlStreamReader xml(&file);
    XmlTree tree;
    if (xml.readNextStartElement())
      tree = element(xml);
    return tree;
  }

  /// All of the name, at any depth.
  std::vector<const XmlTree *> all(const QString &wanted) const {
    std::vector<const XmlTree *> found;
    if (name == wanted)
      found.push_back(this);
    for (const XmlTree &child : children) {
      for (const XmlTree *one : child.all(wanted))
        found.push_back(one);
    }
    return found;
  }
  const XmlTree *child(const QString &wanted) const {
    for (const XmlTree &one : children) {
      if (one.name == wanted)
        return &one;
    }
    return nullptr;
  }
  /// How often each name occurs.
  QMap<QString, int> census() const {
    QMap<QString, int> counts{{name, 1}};
    for (const XmlTree &child : children) {
      const QMap<QString, int> inner = child.census();
      for (auto count = inner.begin(); count != inner.end(); ++count)
        counts[count.key()] += count.value();
    }
    return counts;
  }
  QString text(const QString &attribute) const { return attributes.value(attribute); }
  /// The value in bar, m, mm, degC or whatever else the instances of the tests are written in.
  double number() const {
    const QString unit = text(QStringLiteral("unit"));
    const double value = text(QStringLiteral("value")).toDouble();
    if (unit == QLatin1String("barg"))
      return value + 1.01325;
    if (unit == QLatin1String("km"))
      return value * 1000;
    return value;
  }

private:
  static XmlTree element(QXmlStreamReader &xml) {
    XmlTree tree;
    tree.name = xml.name().toString();
    for (const QXmlStreamAttribute &attribute : xml.attributes())
      tree.attributes.insert(attribute.name().toString(), attribute.value().toString());
    while (xml.readNextStartElement())
      tree.children.push_back(element(xml));
    return tree;
  }
};
