#include <io/nivraworkspace.h>
#include <io/scenariosummary.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(ScenarioSummary)
};

QString textOf(const QJsonValue &value) {
  if (value.isObject())
    return QString::fromUtf8(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
  if (value.isArray())
    return QString::fromUtf8(QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact));
  return value.toVariant().toString();
}

class Builder {
public:
  void addCase(const NivraWorkspace &workspace, const QString &geometryFile) {
    const NivraWorkspace::Case &opened = *workspace.currentCase();
    m_section = Texts::tr("Case");
    const QString source = opened.isConfigured ? workspace.filePath(opened.configFile) : QString();
    add(QStringLiteral("geometry"), opened.geometryFile, geometryFile);
    add(QStringLiteral("flag"), opened.flag ? QStringLiteral("1") : QStringLiteral("0"), source);
    for (auto property = opened.properties.begin(); property != opened.properties.end(); ++property)
      add(property.key(), textOf(property.value()), source);
  }

  void addScenario(const NivraScenario &scenario) {
    m_section = Texts::tr("Scenario");
    for (const auto &[key, value] : scenario.entries())
      add(key, value, scenario.origin.value(key));
    add(QStringLiteral("result files"), scenario.resultFiles.join(QStringLiteral(", ")), QString());
    m_section = Texts::tr("General properties");
    for (auto property = scenario.generalProps.begin(); property != scenario.generalProps.end(); ++property)
      add(property.key(), property.value(), scenario.origin.value(QStringLiteral("GeneralProps/") + property.key()));
  }

  void addParams(const NivraGasParams &params) {
    m_section = Texts::tr("Gas law and solver");
    for (const NivraGasParams::Entry &entry : params.entries()) {
      if (entry.isPositional)
        m_section = Texts::tr("Further fields");
      QString comment = params.comment.value(entry.key);
      if (params.source.contains(entry.key))
        comment = comment.isEmpty() ? params.source.value(entry.key)
                                    : params.source.value(entry.key) + QStringLiteral("; ") + comment;
      const QString value = entry.word.isEmpty() ? entry.value : QStringLiteral("%1 (%2)").arg(entry.value, entry.word);
      add(entry.key, value, params.origin.value(entry.key), comment);
    }
  }

  ScenarioSummary summary;

private:
  void add(const QString &name, const QString &value, const QString &source, const QString &comment = QString()) {
    summary.rows.push_back({m_section, name, value, source, comment});
  }

  QString m_section;
};

} // namespace

const GasTable::value_type *gasNamed(const GasTable &gases, const QString &name) {
  const auto found = std::find_if(gases.begin(), gases.end(), [&name](const GasTable::value_type &gas) {
    return gas.first.compare(name, Qt::CaseInsensitive) == 0;
  });
  return name.isEmpty() || found == gases.end() ? nullptr : &*found;
}

ScenarioSummary ScenarioSummary::of(const NivraWorkspace &workspace, const NivraGasParams &params, const GasTable &gases,
                                    const Files &files) {
  Builder builder;
  if (workspace.isValid())
    builder.addCase(workspace, files.geometry);
  builder.summary.root = workspace.root();
  builder.summary.hasScenario = workspace.hasScenario();
  if (workspace.hasScenario()) {
    builder.addScenario(*workspace.currentScenario());
    builder.addParams(params);
    builder.summary.gases = gases;
    builder.summary.gasFile = files.gases;
  }
  return std::move(builder.summary);
}
