#include "jobsfile.h"

#include <base/fileaccess.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <stdexcept>

namespace {

struct Fault : std::runtime_error {
  explicit Fault(const QString &text)
      : std::runtime_error(text.toStdString()) {}
};

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(JobsFile)
};

/// The members of one object, each asked for by name and type. What nobody asked for is a fault: a misspelt member would
/// otherwise be a setting that silently does not hold.
class Members {
public:
  Members(const QJsonValue &value, const QString &where)
      : m_object(value.toObject())
      , m_where(where) {
    if (!value.isObject())
      throw Fault(where + QStringLiteral(": ") + Texts::tr("is no object"));
  }

  const QString &where() const { return m_where; }
  bool has(const char *name) const { return m_object.contains(QLatin1String(name)); }
  QString place(const char *name) const { return m_where + QLatin1Char('.') + QLatin1String(name); }

  QJsonValue take(const char *name) { return m_object.take(QLatin1String(name)); }
  QString text(const char *name) {
    const QJsonValue value = take(name);
    if (!value.isUndefined() && !value.isString())
      fail(name, Texts::tr("is no text"));
    return value.toString();
  }
  QString neededText(const char *name) {
    if (!has(name))
      throw Fault(m_where + QStringLiteral(": ") + Texts::tr("\"%1\" is missing").arg(QLatin1String(name)));
    QString found = text(name);
    if (found.trimmed().isEmpty())
      fail(name, Texts::tr("is empty"));
    return found;
  }
  /// A text, or a list of texts.
  QStringList texts(const char *name) {
    const QJsonValue value = take(name);
    QStringList found;
    const QJsonArray items = value.isArray() ? value.toArray() : QJsonArray{value};
    for (const QJsonValue &item : items) {
      if (!item.isString())
        fail(name, Texts::tr("is no text or list of texts"));
      found.append(item.toString());
    }
    return found;
  }
  /// Each item with its place.
  template <typename Use>
  void forEach(const char *name, const Use &use) {
    if (!has(name))
      return;
    const QJsonValue value = take(name);
    if (!value.isArray())
      fail(name, Texts::tr("is no list"));
    int index = 0;
    const QJsonArray items = value.toArray();
    for (const QJsonValue &item : items)
      use(item, QStringLiteral("%1[%2]").arg(place(name)).arg(index++));
  }
  void check(const char *name, const QString &why) const {
    if (!why.isEmpty())
      fail(name, why);
  }
  void finish() const {
    if (!m_object.isEmpty())
      throw Fault(m_where + QStringLiteral(": ") + Texts::tr("\"%1\" is not known").arg(m_object.begin().key()));
  }

private:
  [[noreturn]] void fail(const char *name, const QString &why) const {
    throw Fault(place(name) + QStringLiteral(": ") + why);
  }

  QJsonObject m_object;
  QString m_where;
};

/// Of a value that is no number one that no rule accepts.
double numberOf(const QJsonValue &value) {
  return value.toDouble(qQNaN());
}

BatchTask::Picture pictureOf(const QJsonValue &value, const QString &where) {
  Members members(value, where);
  BatchTask::Picture picture;
  picture.path = members.neededText("export");
  if (members.has("width"))
    members.check("width", picture.setWidth(numberOf(members.take("width"))));
  if (members.has("scale"))
    members.check("scale", picture.setScale(numberOf(members.take("scale"))));
  picture.functions = {
      {members.text("color-by"), members.text("width-by"), members.text("node-color-by"), members.text("node-size-by")}};
  if (members.has("labels"))
    members.check("labels", picture.setLabels(members.text("labels")));
  QVector<double> corners;
  const bool hasExtent = members.has("extent");
  members.forEach("extent", [&](const QJsonValue &corner, const QString &) { corners.append(numberOf(corner)); });
  if (hasExtent)
    members.check("extent", picture.setExtent(corners));
  if (members.has("style")) {
    for (const QString &file : members.texts("style"))
      members.check("style", picture.addStyle(file));
  }
  members.finish();
  return picture;
}

/// Of "tables", which have properties, or of "searches", which have none.
BatchTask::List listOf(const QJsonValue &value, const QString &where, bool isTable) {
  Members members(value, where);
  BatchTask::List list;
  list.path = members.neededText("output");
  QString reason;
  if (members.has("search") || !isTable) {
    list.search = ElementQuery::criteria(members.has("search") ? members.texts("search") : QStringList(), &reason);
    members.check("search", reason);
  }
  if (isTable) {
    list.properties = members.texts("table");
    list.properties.removeAll(QString());
    members.check("table", list.properties.isEmpty() ? Texts::tr("names no property") : QString());
    list.type = members.text("type");
  }
  members.finish();
  return list;
}

/// true, or the name of the file.
BatchTask::Output outputOf(Members &members, const char *name, bool needsFile) {
  BatchTask::Output output;
  if (!members.has(name))
    return output;
  const QJsonValue value = members.take(name);
  output.path = value.toString();
  output.isWanted = value.toBool() || !output.path.isEmpty();
  const bool isUnderstood = value.isString() ? output.isWanted : value.isBool() && !(needsFile && output.isWanted);
  members.check(name, isUnderstood ? QString()
                      : needsFile  ? Texts::tr("is no name of a file")
                                   : Texts::tr("is neither true nor false nor the name of a file"));
  return output;
}

void takeScenarios(Members &members, JobsFile::Job &job) {
  if (!members.has("scenario"))
    return;
  job.scenarios = members.texts("scenario");
  job.takesAllScenarios = job.scenarios == QStringList{QStringLiteral("*")};
  for (const QString &name : job.scenarios) {
    const bool isName = !name.isEmpty() && !name.startsWith(QLatin1Char('.')) && !name.contains(QLatin1Char('/')) &&
                        !name.contains(QLatin1Char('\\')) && !name.contains(QChar::Null);
    members.check("scenario", isName ? QString() : Texts::tr("\"%1\" is no name of a scenario").arg(name));
  }
  members.check("scenario", job.scenarios.isEmpty() ? Texts::tr("names none") : QString());
}

JobsFile::Job jobOf(const QJsonValue &value, int index) {
  JobsFile::Job job;
  job.name = Texts::tr("job %1").arg(index + 1);
  try {
    Members members(value, QStringLiteral("jobs[%1]").arg(index));
    job.file = members.neededText("file");
    takeScenarios(members, job);
    members.forEach("exports", [&](const QJsonValue &item, const QString &where) {
      job.task.pictures.push_back(pictureOf(item, where));
    });
    for (const bool isTable : {true, false}) {
      members.forEach(isTable ? "tables" : "searches", [&](const QJsonValue &item, const QString &where) {
        job.task.lists.push_back(listOf(item, where, isTable));
      });
    }
    job.task.check = outputOf(members, "check", false);
    job.task.info = outputOf(members, "info", true);
    members.finish();
    if (job.task.isEmpty())
      throw Fault(members.where() + QStringLiteral(": ") + Texts::tr("there is nothing to do"));
  } catch (const Fault &fault) {
    job.error = QString::fromUtf8(fault.what());
  }
  return job;
}

} // namespace

std::optional<JobsFile> JobsFile::read(const QString &path, QString *reason) {
  const auto content = FileAccess::readWhole(path, FileAccess::Source::Trusted, FileAccess::LargestConfiguration, reason);
  if (!content)
    return std::nullopt;
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(*content, &error);
  try {
    if (error.error != QJsonParseError::NoError) {
      const auto line = content->left(error.offset).count('\n') + 1;
      throw Fault(Texts::tr("line %1: %2").arg(line).arg(error.errorString()));
    }
    Members members(document.isObject() ? QJsonValue(document.object()) : QJsonValue(document.array()),
                    Texts::tr("the file"));
    JobsFile file;
    file.output = members.text("output");
    if (!members.has("jobs"))
      throw Fault(Texts::tr("\"%1\" is missing").arg(QStringLiteral("jobs")));
    int index = 0;
    members.forEach("jobs", [&](const QJsonValue &job, const QString &) { file.jobs.push_back(jobOf(job, index++)); });
    members.finish();
    return file;
  } catch (const Fault &fault) {
    *reason = QStringLiteral("%1: %2").arg(path, QString::fromUtf8(fault.what()));
    return std::nullopt;
  }
}
