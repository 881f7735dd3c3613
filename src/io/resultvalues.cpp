#include "recordstream.h"

#include <base/index.h>
#include <io/resultvalues.h>

#include <QFileInfo>

#include <string>
#include <unordered_map>

namespace {

/// The result file beside "NAME.scen", "NAME.scen.jsn" or "NAME.scen.json", in the same form.
QString resultsOf(const QString &scenario) {
  const QString suffix = QStringLiteral(".scen");
  const int at = scenario.lastIndexOf(suffix);
  return at < 0 ? QString() : scenario.left(at) + QStringLiteral(".res") + scenario.mid(at + suffix.size());
}

/// Names as they were asked for, by their bytes without case.
std::unordered_map<std::string, QString> byFoldedBytes(const QSet<QString> &names) {
  std::unordered_map<std::string, QString> found;
  found.reserve(fromQt(names.size()));
  for (const QString &name : names)
    found.emplace(name.toLower().toStdString(), name);
  return found;
}

std::string folded(std::string_view utf8) {
  return decoded(utf8).toLower().toStdString();
}

} // namespace

ResultValues::Numbers ResultValues::read(const QString &scenario, const QSet<QString> &elements,
                                         const QSet<QString> &properties, QString *reason) {
  Numbers numbers;
  const QString path = resultsOf(scenario);
  if (path.isEmpty() || !QFileInfo::exists(path))
    return numbers;
  RecordStream::Options options;
  options.form = RecordStream::formOf(path);
  RecordStream stream(path, options);
  if (!stream.open(reason))
    return numbers;
  const auto wantedElements = byFoldedBytes(elements);
  const auto wantedProperties = byFoldedBytes(properties);
  Record record;
  while (stream.next(record)) {
    for (const ElementRecord &element : stream.elements()) {
      const auto known = wantedElements.find(folded(element.name));
      if (known == wantedElements.end())
        continue;
      for (const RecordValue &value : element.values) {
        const auto property = wantedProperties.find(folded(value.key));
        const auto number = property == wantedProperties.end() ? std::nullopt : value.text.toDouble();
        if (number)
          numbers[known->second][property->second] = *number;
      }
    }
  }
  if (!stream.readFault().isEmpty())
    *reason = stream.readFault();
  return numbers;
}
