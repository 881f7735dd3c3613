#include "jsonfile.h"
#include "recordstream.h"
#include "setpointunits.h"

#include <io/nivrascenario.h>
#include <io/scenariofiles.h>
#include <io/scenariovalues.h>
#include <model/netmetadata.h>
#include <model/units.h>

#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace {

using Form = RecordForm;
constexpr int LinesBetweenQuestions = 1000;

/// Calls take(record, stream) for each sound record; false when somebody stopped it or, with the reason, it cannot be
/// opened.
template <typename Use>
bool forEachRecord(const QString &path, RecordContent content, const ScenarioValues::GoesOn &goesOn, QString *reason,
                   const Use &use) {
  const RecordNumbers numbers = content == RecordContent::SetPoints ? RecordNumbers::AsWritten : RecordNumbers::AsHeld;
  RecordStream stream(path, {RecordStream::formOf(path), content, numbers});
  if (!stream.open(reason))
    return false;
  Record record;
  for (int lines = 1; stream.next(record); ++lines) {
    if (record.fault.isEmpty())
      use(record, stream);
    if (lines % LinesBetweenQuestions == 0 && !goesOn())
      return false;
  }
  return true;
}

double numberOf(const PropertyText &text) {
  const double number = NetData::number(&text);
  return number == NetData::NoValue ? ScenarioValues::NoNumber : number;
}

bool isName(std::string_view text, const char *name) {
  return decoded(text).compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
}

/// The files of one scenario, in the form of the one that was chosen.
struct Files {
  explicit Files(const QString &file)
      : chosen(file)
      , base(ScenarioFiles::base(file))
      , isJson(isJsonPath(file)) {}

  QString path(const char *suffix) const {
    const QString text = base + QLatin1String(suffix);
    return isJson ? jsonPathOf(text) : text;
  }
  /// That of the configuration, where it names one.
  QString gas() const {
    QString named;
    for (const QString &path : {QFileInfo(base).path() + QStringLiteral("/scenconfig.jsn"), path(".scen.cfg")}) {
      QString reason;
      if (const auto object = isJsonPath(path) ? readJsonObject(path, &reason) : std::nullopt) {
        NivraScenario scenario;
        scenario.fromJson(*object, path);
        named = scenario.gasFile.isEmpty() ? named : scenario.gasFile;
      }
    }
    if (named.isEmpty())
      return path(".gas");
    const QString text = QFileInfo(base).path() + QLatin1Char('/') + named;
    return isJson && !isJsonPath(text) && !QFileInfo::exists(text) ? jsonPathOf(text) : text;
  }

  QString chosen;
  QString base;
  bool isJson;
};

} // namespace

/// The units in which properties are stored, by type and property, and the rules for what comes in others.
class ScenarioValues::Units {
public:
  Units(const ElementDirectory &elements, const QStringList &properties, const NetMetaData &metaData)
      : m_properties(fromQt(properties.size())) {
    m_stored.reserve(fromQt(elements.types().size()) * m_properties);
    for (const QString &type : elements.types()) {
      for (const QString &property : properties) {
        const NetMetaData::Attribute *attribute = metaData.attribute(type, property);
        m_stored.push_back(attribute == nullptr ? QString() : attribute->storedUnit);
      }
    }
  }
  const QString &stored(std::size_t type, Index property) const { return m_stored[type * m_properties + property]; }

  const SetPointUnits rules;

private:
  std::size_t m_properties;
  std::vector<QString> m_stored;
};

/// One scenario, or the geometry, on its way through the files.
class ScenarioValues::Pass {
public:
  Pass(ScenarioValues &values, const Take &take, const GoesOn &goesOn)
      : m_values(values)
      , m_take(take)
      , m_goesOn(goesOn) {}

  bool readElements(const QString &path, QString *reason) {
    return forEachRecord(path, RecordContent::Elements, m_goesOn, reason, [this](const Record &, RecordStream &stream) {
      for (const ElementRecord &record : stream.elements()) {
        const Index element = m_values.m_elements.find(record.name);
        if (element == NoIndex)
          continue;
        for (const RecordValue &value : record.values) {
          const Known &known = m_values.known(value.key);
          learn(element, known, value.text);
          set(element, known.property, value.text);
        }
      }
    });
  }

  bool readSetPoints(const QString &path, QString *reason) {
    return forEachRecord(path, RecordContent::SetPoints, m_goesOn, reason, [this](Record &record, const RecordStream &) {
      for (SetPointsRecord &setPoints : record.setPoints) {
        const Index element = m_values.m_elements.find(setPoints.name);
        for (SetPointRecord &point : setPoints.points) {
          if (element != NoIndex && point.isComplete)
            setPoint(element, point);
        }
      }
    });
  }

  /// Those that the gas decides. What it does not say is left out.
  void convertWaiting(const Files &files) {
    if (m_waiting.empty())
      return;
    readGases(files.gas());
    for (const auto &[target, point] : m_waiting) {
      const auto &[element, property] = target;
      PropertyText value = PropertyText::shortest(point.value);
      const QString &stored = m_values.m_units->stored(m_values.m_elements.typeNumber(element), property);
      if (m_values.m_units->rules.convert(value, point.unit, stored, gasAt(element)) == SetPointUnits::Outcome::Converted)
        m_take(element, property, numberOf(value));
    }
  }

  Gases takeGases() { return std::move(m_facts); }

private:
  void set(Index element, Index property, const PropertyText &value) {
    if (property == NoIndex)
      return;
    if (!m_waiting.empty())
      m_waiting.erase({element, property}); // what comes later counts
    m_take(element, property, numberOf(value));
  }

  void setPoint(Index element, SetPointRecord &point) {
    const Known &known = m_values.known(point.property);
    if (known.isIdentity)
      return;
    learn(element, known, point.value);
    if (known.property == NoIndex)
      return;
    if (!point.unit.empty()) {
      const QString unit = decoded(point.unit);
      const QString &stored = m_values.m_units->stored(m_values.m_elements.typeNumber(element), known.property);
      const double asGiven = numberOf(point.value);
      if (m_values.m_units->rules.convert(point.value, unit, stored) == SetPointUnits::Outcome::NeedsGas) {
        m_waiting[{element, known.property}] = {asGiven, unit};
        return;
      }
    }
    set(element, known.property, point.value);
  }

  void learn(Index element, const Known &known, const PropertyText &value) {
    if (known.gas == Known::Gas::Nothing)
      return;
    GasFacts &facts = m_facts[element];
    if (known.gas == Known::Gas::Name)
      facts.name = value.utf8();
    else
      (known.gas == Known::Gas::NormDensity ? facts.normDensity : facts.calorificValue) = numberOf(value);
  }

  void readGases(const QString &path) {
    QString reason;
    forEachRecord(path, RecordContent::Elements, m_goesOn, &reason, [this](const Record &, RecordStream &stream) {
      for (const ElementRecord &record : stream.elements()) {
        GasFacts &facts = m_gases[decoded(record.name).toCaseFolded()];
        for (const RecordValue &value : record.values) {
          const Known::Gas meaning = m_values.known(value.key).gas;
          if (meaning == Known::Gas::NormDensity)
            facts.normDensity = numberOf(value.text);
          else if (meaning == Known::Gas::CalorificValue)
            facts.calorificValue = numberOf(value.text);
        }
      }
    });
  }

  /// As SetPointUnits::gasAt() has it: what the element says itself, the gas that it names, then those of its end nodes,
  /// then the only gas of the scenario.
  ::Units::Gas gasAt(Index element) const {
    ::Units::Gas gas;
    const auto &ends = m_values.m_elements.ends(element);
    for (const Index at : {element, ends[0], ends[1]}) {
      if (at == NoIndex)
        continue;
      for (const Gases *told : {&m_facts, &std::as_const(m_values.m_ofGeometry)}) {
        const auto found = told->find(at);
        if (found != told->end())
          complete(gas, found->second);
      }
      for (const Gases *told : {&m_facts, &std::as_const(m_values.m_ofGeometry)}) {
        const auto found = told->find(at);
        if (found == told->end() || found->second.name.empty())
          continue;
        const auto named = m_gases.find(decoded(found->second.name).toCaseFolded());
        if (named != m_gases.end())
          complete(gas, named->second);
        break;
      }
    }
    if (m_gases.size() == 1)
      complete(gas, m_gases.begin()->second);
    return gas;
  }

  static void complete(::Units::Gas &gas, const GasFacts &facts) {
    if (!gas.normDensity && facts.normDensity > 0.0)
      gas.normDensity = facts.normDensity;
    if (!gas.calorificValue && facts.calorificValue > 0.0)
      gas.calorificValue = facts.calorificValue;
  }

  ScenarioValues &m_values;
  const Take &m_take;
  const GoesOn &m_goesOn;
  Gases m_facts;
  std::map<QString, GasFacts> m_gases; ///< by name regardless of case
  std::map<std::pair<Index, Index>, Waiting> m_waiting;
};

ScenarioValues::ScenarioValues(const ElementDirectory &elements, const QStringList &properties, const NetMetaData &metaData)
    : m_elements(elements)
    , m_properties(properties)
    , m_units(std::make_unique<Units>(elements, properties, metaData)) {}

ScenarioValues::~ScenarioValues() = default;

const ScenarioValues::Known &ScenarioValues::known(std::string_view property) {
  constexpr std::size_t MostKnown = 10000; // spellings; a hostile file may have any number
  std::string spelling(property);
  const auto found = m_known.find(spelling);
  if (found != m_known.end())
    return found->second;
  if (m_known.size() >= MostKnown)
    m_known.clear();
  Known meaning;
  const QString name = decoded(property);
  for (int i = 0; i < m_properties.size(); ++i) {
    if (m_properties[i].compare(name, Qt::CaseInsensitive) == 0)
      meaning.property = toIndex(fromQt(i));
  }
  meaning.isIdentity = isName(property, "name") || isName(property, "type");
  if (isName(property, "rhon"))
    meaning.gas = Known::Gas::NormDensity;
  else if (isName(property, "hs"))
    meaning.gas = Known::Gas::CalorificValue;
  else if (isName(property, "gas"))
    meaning.gas = Known::Gas::Name;
  return m_known.emplace(std::move(spelling), meaning).first->second;
}

bool ScenarioValues::readGeometry(const QString &path, bool isJson, const Take &take, const GoesOn &goesOn,
                                  QString *reason) {
  Pass pass(*this, take, goesOn);
  const bool isRead = pass.readElements(isJson ? jsonPathOf(path) : path, reason);
  m_ofGeometry = pass.takeGases();
  return isRead;
}

bool ScenarioValues::readScenario(const QString &file, const Take &take, const GoesOn &goesOn, QString *reason) {
  const Files files(file);
  Pass pass(*this, take, goesOn);
  if (!pass.readSetPoints(files.chosen, reason))
    return false;
  QString without; // companions need not be there
  const QString fixes = files.path(".fix");
  if (QFileInfo::exists(fixes))
    pass.readSetPoints(fixes, &without);
  for (const char *suffix : {".res", ".gaspar"}) {
    const QString path = files.path(suffix);
    if (QFileInfo::exists(path))
      pass.readElements(path, &without);
  }
  pass.convertWaiting(files);
  const QString ofSubnets = files.path(".res.sub");
  if (QFileInfo::exists(ofSubnets))
    pass.readElements(ofSubnets, &without);
  return goesOn();
}

QStringList ScenarioValues::numbersIn(const QString &file) {
  constexpr int MostLines = 5 * LinesBetweenQuestions;
  const Files files(file);
  std::set<QString> names;
  QString reason;
  int lines = 0;
  const GoesOn goesOn = [&lines] {
    return (lines += LinesBetweenQuestions) < MostLines;
  };
  const auto note = [&names](std::string_view name, const PropertyText &value) {
    if (!std::isnan(numberOf(value)))
      names.insert(decoded(name));
  };
  for (const QString &path : {files.chosen, files.path(".fix")}) {
    lines = 0;
    forEachRecord(path, RecordContent::SetPoints, goesOn, &reason, [&note](const Record &record, const RecordStream &) {
      for (const SetPointsRecord &setPoints : record.setPoints) {
        for (const SetPointRecord &point : setPoints.points)
          note(point.property, point.value);
      }
    });
  }
  for (const QString &path : {files.path(".res"), files.path(".gaspar"), files.path(".res.sub")}) {
    lines = 0;
    forEachRecord(path, RecordContent::Elements, goesOn, &reason, [&note](const Record &, RecordStream &stream) {
      for (const ElementRecord &record : stream.elements()) {
        for (const RecordValue &value : record.values)
          note(value.key, value.text);
      }
    });
  }
  QStringList sorted(names.begin(), names.end());
  std::sort(sorted.begin(), sorted.end(),
            [](const QString &a, const QString &b) { return QString::compare(a, b, Qt::CaseInsensitive) < 0; });
  return sorted;
}
