#include "jsonfile.h"
#include "networkfilewriter.h"
#include "readreport.h"
#include "recordstream.h"

#include <base/wholefile.h>
#include <io/networkfileconverter.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>
#include <memory>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(NetworkFileConverter)
};

/// What the name of a network file tells: 1 what it holds, 2 whether it is JSON.
QRegularExpressionMatch parts(const QString &name) {
  static const QRegularExpression pattern(QStringLiteral("\\.(geom|scen|gas|fix|res|gaspar|res\\.sub)(\\.(?:jsn|json))?$"));
  return pattern.match(name);
}

bool holdsSetPoints(const QString &name) {
  const QString kind = parts(name).captured(1);
  return kind == QLatin1String("scen") || kind == QLatin1String("fix");
}

/// Kinds of one shape can stand for one another; others would lose what only the one can say.
QString shape(const QString &name) {
  const QString kind = parts(name).captured(1);
  if (kind == QLatin1String("fix"))
    return QStringLiteral("scen");
  return kind == QLatin1String("gaspar") || kind == QLatin1String("res.sub") ? QStringLiteral("res") : kind;
}

/// Hands on what the lines of a file hold, in either form.
class Feeder {
public:
  Feeder(const QString &path, NetworkFileWriter &writer, NetworkFileConverter::Result &result)
      : m_path(path)
      , m_writer(writer)
      , m_report(path)
      , m_needsTypes(shape(path) == QLatin1String("geom"))
      , m_result(result) {}

  /// False when the file cannot be read.
  bool run(QString *reason) {
    const bool isRead = feed(reason);
    m_result.findings = m_report.take();
    return isRead;
  }

private:
  bool feed(QString *reason) {
    const RecordContent content = holdsSetPoints(m_path) ? RecordContent::SetPoints : RecordContent::Elements;
    RecordStream stream(m_path, {RecordStream::formOf(m_path), content, RecordNumbers::AsWritten});
    if (!stream.open(reason))
      return false;
    Record record;
    while (stream.next(record)) {
      if (!record.fault.isEmpty()) {
        stream.tell(record, m_report);
        m_result.report.drop(Texts::tr("line"), record.fault);
        continue;
      }
      for (const SetPointsRecord &points : record.setPoints) {
        for (const SetPointRecord &point : points.points)
          take(points.name, point, record.line);
      }
      for (ElementRecord &parsed : stream.elements())
        take(parsed, record.line);
    }
    stream.tellEncoding(m_report);
    *reason = stream.readFault(); // half of a file is none
    return reason->isEmpty();
  }

  void take(std::string_view name, const SetPointRecord &point, int line) {
    if (point.isComplete) {
      const QString property = decoded(point.property);
      if (point.doubt != nullptr)
        m_report.doubt(property, decoded(name), point.doubt, line);
      const char *reason = m_writer.writeSetPoint(
          name, {PropertyKey::intern(std::string_view(point.property)), point.value, point.isNumber}, point.unit);
      if (reason != nullptr) {
        m_report.leftOut(property, decoded(name), reason, line);
        m_result.report.drop(Texts::tr("value"), ReadReport::tr(reason));
        return;
      }
      m_result.report.take(property);
      ++m_result.records;
    } else {
      m_report.incompleteValue(decoded(name), line);
      m_result.report.drop(Texts::tr("value"), Texts::tr("incomplete"));
    }
  }

  void take(ElementRecord &parsed, int line) {
    std::string type;
    std::vector<NetworkRecord::Value> values;
    for (RecordValue &value : parsed.values) {
      if (value.key == TypeMember)
        type = value.text.utf8();
      else
        values.push_back({PropertyKey::intern(value.key), std::move(value.text), value.isNumber});
    }
    const QString word = decoded(type).trimmed();
    type = word.toStdString();
    if (const char *reason = m_needsTypes ? typeFault(type) : nullptr) {
      drop(parsed, reason, line);
      return;
    }
    NetworkFileWriter::LeftOut leftOut = m_writer.write(parsed.name, type, std::move(values));
    if (leftOut.element != nullptr) {
      drop(parsed, leftOut.element, line);
      return;
    }
    const bool isTyped = !type.empty() && std::none_of(leftOut.values.begin(), leftOut.values.end(),
                                                       [](const RecordRemark &value) { return value.key == TypeMember; });
    std::move(leftOut.values.begin(), leftOut.values.end(), std::back_inserter(parsed.dropped));
    m_report.values(parsed, line);
    for (const RecordRemark &dropped : parsed.dropped)
      m_result.report.drop(decoded(dropped.key), ReadReport::tr(dropped.reason));
    m_result.report.take(isTyped ? word : Texts::tr("element with values"));
    ++m_result.records;
  }

  /// Why an element of a geometry is left out, in JSON too: a reader would drop it, whatever the form. Null for a sound
  /// type.
  static const char *typeFault(const std::string &type) {
    if (type.empty())
      return QT_TRANSLATE_NOOP("ReadReport", "it has no type");
    return TextFileWriter::canHoldType(type) ? nullptr : TextFileWriter::NoSuchType;
  }

  void drop(const ElementRecord &parsed, const char *reason, int line) {
    m_report.leftOut(ReadReport::quoted(parsed.name), reason, line); // the name may be what is too large
    m_result.report.drop(Texts::tr("element"), ReadReport::tr(reason));
  }

  QString m_path;
  NetworkFileWriter &m_writer;
  ReadReport m_report;
  bool m_needsTypes; ///< reading knows no element without one
  NetworkFileConverter::Result &m_result;
};

std::unique_ptr<NetworkFileWriter> writerFor(const QString &path, QIODevice &device) {
  if (isJsonPath(path))
    return std::make_unique<JsonFileWriter>(device);
  return std::make_unique<TextFileWriter>(device);
}

/// False with the reason unless that is null.
bool isWhole(std::string_view name, const char *leftOut, QString *reason) {
  if (leftOut != nullptr)
    *reason = Texts::tr("%1 does not fit: %2").arg(ReadReport::quoted(name), ReadReport::tr(leftOut));
  return leftOut == nullptr;
}

/// Lets fill(writer) write, and keeps the file when everything was taken.
template <typename Fill>
bool writeFile(const QString &path, const Fill &fill, QString *reason) {
  return WholeFile::write(
      path, FileAccess::Source::Trusted,
      [&](QIODevice &device, QString *why) {
        const std::unique_ptr<NetworkFileWriter> writer = writerFor(path, device);
        return fill(*writer, why) && writer->finish();
      },
      reason);
}

} // namespace

bool NetworkFileConverter::write(const QString &path, const std::vector<NetworkRecord> &records, QString *reason) {
  return writeFile(
      path,
      [&records](NetworkFileWriter &writer, QString *why) {
        return std::all_of(records.begin(), records.end(), [&](const NetworkRecord &record) {
          const std::string name = record.name.toStdString();
          const auto leftOut = writer.write(name, record.type.toStdString(), record.values);
          return isWhole(name, leftOut.firstReason(), why);
        });
      },
      reason);
}

bool NetworkFileConverter::write(const QString &path, const std::vector<NetworkSetPoint> &setPoints, QString *reason) {
  return writeFile(
      path,
      [&setPoints](NetworkFileWriter &writer, QString *why) {
        return std::all_of(setPoints.begin(), setPoints.end(), [&](const NetworkSetPoint &point) {
          const std::string name = point.name.toStdString();
          return isWhole(name, writer.writeSetPoint(name, point.value, point.unit.toStdString()), why);
        });
      },
      reason);
}

bool NetworkFileConverter::isNetworkFile(const QString &name) {
  return parts(name).hasMatch();
}

QString NetworkFileConverter::otherForm(const QString &name) {
  const QRegularExpressionMatch match = parts(name);
  return match.captured(2).isEmpty() ? name + QStringLiteral(".jsn") : name.left(match.capturedStart(2));
}

NetworkFileConverter::Result NetworkFileConverter::convert(const QString &from, const QString &to) {
  Result result;
  const auto fail = [&result](const QString &reason) {
    result.findings.push_back({Finding::Severity::Critical, {}, 0, reason});
    return result;
  };
  for (const QString &path : {from, to}) {
    if (!isNetworkFile(path))
      return fail(Texts::tr("%1 is not named as a network file is").arg(path));
  }
  if (shape(from) != shape(to))
    return fail(Texts::tr("%1 and %2 are named as files of different kinds").arg(from, to));
  QString reason;
  result.ok = writeFile(
      to,
      [&](NetworkFileWriter &writer, QString *why) {
        QString fault;
        if (Feeder(from, writer, result).run(&fault))
          return true;
        *why = Texts::tr("Cannot read %1").arg(fault);
        return false;
      },
      &reason);
  if (result.ok)
    return result;
  result.records = 0;
  return fail(reason);
}
