#include "recordstream.h"
#include "setpointunits.h"

#include <io/valuesource.h>

#include <array>

namespace {

struct Kind {
  const char *suffix;
  RecordContent content;
};

/// In the order of reading.
constexpr std::array<Kind, 6> Kinds{{{".geom", RecordContent::Elements},
                                     {".scen", RecordContent::SetPoints},
                                     {".fix", RecordContent::SetPoints},
                                     {".res", RecordContent::Elements},
                                     {".gaspar", RecordContent::Elements},
                                     {".res.sub", RecordContent::Elements}}};

bool isOf(const Kind &kind, const QString &path) {
  const QString suffix = QLatin1String(kind.suffix);
  return path.endsWith(suffix) || path.endsWith(suffix + QStringLiteral(".jsn"));
}

bool isSame(std::string_view text, const QString &name) {
  return decoded(text).compare(name, Qt::CaseInsensitive) == 0;
}

/// What one record says of the property.
class Search {
public:
  Search(const QString &element, const QString &property, std::vector<ValueSource::Place> &found)
      : m_element(element)
      , m_property(property)
      , m_found(found) {}

  void look(const QString &file, const Record &record, const ElementSpan &elements) {
    for (const ElementRecord &element : elements) {
      if (!isSame(element.name, m_element))
        continue;
      for (const RecordValue &value : element.values) {
        if (isSame(value.key, m_property))
          m_found.push_back({file, record.line, value.text.toString(), QString()});
      }
    }
    for (const SetPointsRecord &element : record.setPoints) {
      if (!isSame(element.name, m_element))
        continue;
      for (const SetPointRecord &point : element.points) {
        if (point.isComplete && isSame(point.property, m_property))
          m_found.push_back({file, record.line, point.value.toString(), decoded(point.unit)});
      }
    }
  }

private:
  const QString &m_element;
  const QString &m_property;
  std::vector<ValueSource::Place> &m_found;
};

} // namespace

QStringList ValueSource::networkFiles(const QStringList &files) {
  QStringList found;
  for (const Kind &kind : Kinds) {
    for (const QString &file : files) {
      if (isOf(kind, file))
        found.append(file);
    }
  }
  return found;
}

std::vector<ValueSource::Place> ValueSource::find(const QStringList &files, const QString &element, const QString &property,
                                                  const std::function<bool()> &goesOn) {
  constexpr int RecordsBetweenQuestions = 1000;
  std::vector<Place> found;
  Search search(element, property, found);
  for (const Kind &kind : Kinds) {
    for (const QString &file : files) {
      if (!isOf(kind, file))
        continue;
      RecordStream stream(file, {RecordStream::formOf(file), kind.content, RecordNumbers::AsWritten});
      QString reason;
      if (!stream.open(&reason))
        continue;
      Record record;
      for (int count = 0; stream.next(record); ++count) {
        if (count % RecordsBetweenQuestions == 0 && !goesOn())
          return found;
        search.look(file, record, kind.content == RecordContent::Elements ? stream.elements() : ElementSpan());
      }
    }
  }
  return found;
}

Units::Gas ValueSource::gasAt(const element &e, const NetData &net, const GasTable &gases) {
  return SetPointUnits::gasAt(e, net, gases);
}
