#include "templateplacement.h"

#include <base/nivramsg.h>
#include <base/pattern.h>
#include <formulas/formula.h>
#include <io/nivrareader.h>
#include <subassembly/subassembler.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

constexpr double Milli = 1e-3;

struct Keys {
  PropertyKey name = PropertyKey::intern("name");
  PropertyKey type = PropertyKey::intern("type");
  PropertyKey x = PropertyKey::intern("X");
  PropertyKey y = PropertyKey::intern("Y");
  PropertyKey pins = PropertyKey::intern("pins");
  PropertyKey variant = PropertyKey::intern("variant");
  PropertyKey refEle = PropertyKey::intern("refEle");
};

const Keys &keys() {
  static const Keys instance;
  return instance;
}

const QString &recordName() {
  static const QString name = QStringLiteral("SUB");
  return name;
}

const QString &fallback() {
  static const QString variant = QStringLiteral("default");
  return variant;
}

QPointF position(const NetData &net, const element &e) {
  const double x = net.value(e, keys().x);
  const double y = net.value(e, keys().y);
  return {x == NetData::NoValue ? 0.0 : x, y == NetData::NoValue ? 0.0 : y};
}

PropertyText numberText(double number) {
  return PropertyText(std::string_view(formatNumber(number)));
}

QStringList split(const QString &names) {
  return names.isEmpty() ? QStringList() : names.split(QLatin1Char(';'));
}

/// Properties that name an element of the same network.
const std::vector<PropertyKey> &references() {
  static const std::vector<PropertyKey> instance = [] {
    std::vector<PropertyKey> found;
    for (const char *name : {"name", "node1", "node2", "entry", "exit", "drive", "driven", "gasnode"})
      found.push_back(PropertyKey::intern(name));
    return found;
  }();
  return instance;
}

Finding problem(const QString &text, const QString &element) {
  return {Finding::Severity::Warning, QString(), 0, text, QString(), false, element};
}

/// In a formula the names of the template's elements stand for those that were made of them.
QString renamed(const QString &expression, const QHash<QString, QString> &names) {
  static const QRegularExpression reference(QStringLiteral("@([^\\s()\\[\\]{}<>=!+\\-*/^|?:,\"'%@~]+)"));
  QString text;
  int end = 0;
  for (auto it = reference.globalMatch(expression); it.hasNext();) {
    const QRegularExpressionMatch match = it.next();
    const auto created = names.constFind(match.captured(1));
    text += expression.midRef(end, match.capturedStart(1) - end);
    text += created == names.constEnd() ? match.captured(1) : Formula::escaped(*created);
    end = match.capturedEnd(1);
  }
  return text + expression.mid(end);
}

} // namespace

/// Template names and what was made of them.
struct SubAssembler::Names {
  QHash<QString, QString> all; ///< pins too
  QStringList created;         ///< template names, without pins
};

SubAssembler::SubAssembler(NetData &net, const QString &folder, SubAssemblyCache &cache)
    : m_net(net)
    , m_folder(folder)
    , m_templates(cache.folder(folder)) {}

QString SubAssembler::findFolder(const QString &programFolder) {
  for (const char *up : {"", "/..", "/../..", "/../../.."}) {
    const QFileInfo folder(programFolder + QLatin1String(up) + QStringLiteral("/net_subassemblies"));
    if (folder.isDir())
      return folder.canonicalFilePath();
  }
  NivraMsg::logWarning(QStringLiteral("Could not find net_subassemblies folder!"));
  return QString();
}

void SubAssembler::log(const QString &text, const QString &element) {
  m_result.findings.push_back(problem(text, element));
}

/// Inside of the folder, whatever the variant is called and wherever links lead; empty otherwise.
QString SubAssembler::templateFile(const QString &variant, const char *suffix) const {
  const bool isPath = variant.contains(QLatin1Char('/')) || variant.contains(QLatin1Char('\\')) ||
                      variant.contains(QChar::Null) || variant.startsWith(QLatin1Char('.'));
  if (isPath)
    return QString();
  const QFileInfo file(m_folder + QLatin1Char('/') + variant + QLatin1String(suffix));
  const QString real = file.canonicalFilePath();
  if (!file.exists() || !real.startsWith(QFileInfo(m_folder).canonicalFilePath() + QLatin1Char('/')))
    return QString();
  return file.filePath();
}

const NetData *SubAssembler::geometry(const QString &name, const QString &variant) {
  const QString path = templateFile(variant, ".geom");
  if (path.isEmpty()) {
    log(QStringLiteral("Error - could not find subassembly:") + m_folder + QLatin1Char('/') + variant +
            QStringLiteral(".geom"),
        name);
    return nullptr;
  }
  bool isNew = false;
  const TemplateGeometry &read = m_templates->geometry.get(path, [&isNew](const QString &file) {
    isNew = true;
    TemplateGeometry content;
    auto net = std::make_shared<NetData>();
    NivraReader::Result result = NivraReader(*net).readGeomJsn(file, {});
    content.findings = std::move(result.findings);
    if (!result.ok)
      content.error = QStringLiteral("Cannot read ") + file;
    else if (net->assembledSubnets().find(recordName()) == nullptr)
      content.error = QStringLiteral("%1 has no subnet named \"SUB\", which would tell its pins").arg(file);
    else
      content.net = net;
    return content;
  });
  if (isNew)
    m_result.findings.insert(m_result.findings.end(), read.findings.begin(), read.findings.end());
  if (read.net == nullptr)
    log(read.error, name);
  return read.net.get();
}

SubAssembler::Result SubAssembler::createElesOfAssembledSubnets(Flag flag, const Told &told) {
  QElapsedTimer timer;
  timer.start();
  m_result = Result();
  std::vector<QString> names;
  for (const elements::Entry &entry : m_net.assembledSubnets()) {
    if (entry.name() != recordName())
      names.push_back(entry.name());
  }
  if (m_templates == nullptr || names.empty())
    return m_result;
  const auto count = static_cast<int>(names.size());
  NivraMsg::debug(QStringLiteral("     before rebuild %1 sec.\n").arg(static_cast<double>(timer.elapsed()) * Milli));
  if (told)
    told(QStringLiteral("Creating Subnets"), 0, count);
  for (int i = 0; i < count; ++i) {
    if (told && !told(QStringLiteral("Creating Subnets (%1/%2)").arg(i + 1).arg(count), i, count))
      return m_result;
    const QString &name = names[static_cast<std::size_t>(i)];
    element &subnet = *m_net.assembledSubnets().find(name);
    const QStringList pins = split(subnet.value(keys().pins));
    if (createEleOfAssembledSubnet(subnet, pins, flag, true) >= 1) {
      ++m_result.assembled;
      continue;
    }
    subnet.set(keys().variant, PropertyText(fallback()));
    if (createEleOfAssembledSubnet(subnet, pins, flag, true) >= 1) {
      ++m_result.replaced;
      continue;
    }
    log(QStringLiteral("Problem with assembled subnet ") + name + QStringLiteral("! It will be erased!"));
    m_net.assembledSubnets().erase(name);
    ++m_result.erased;
  }
  Finding summary = problem(QString(), QString());
  if (m_result.replaced > 0 || m_result.erased > 0) {
    summary.box = QStringLiteral("%1 assembled subnets had to be replaced with default,\n%2 assembled subnets had to be "
                                 "erased! See log for details!")
                      .arg(m_result.replaced)
                      .arg(m_result.erased);
    m_result.findings.push_back(summary);
  }
  if (m_result.newPins) {
    summary.box = QStringLiteral("Pin nodes have been added to net! Save manually!");
    m_result.findings.push_back(summary);
  }
  NivraMsg::debug(
      QStringLiteral("### createElesOfAssembledSubnets: %1 sec.\n").arg(static_cast<double>(timer.elapsed()) * Milli));
  return m_result;
}

int SubAssembler::createEleOfAssembledSubnet(element &subnet, const QStringList &pins, Flag flag, bool tryReset) {
  const QString name = subnet.value(keys().name);
  const QString variant = subnet.value(keys().variant);
  if (name.isEmpty()) {
    log(QStringLiteral("Assembled subnet: name empty! Skipped!"));
    return 0;
  }
  if (variant.isEmpty()) {
    log(QStringLiteral("Assembled subnet: variant empty for ") + name + QStringLiteral("! Skipped!"), name);
    return 0;
  }
  const NetData *source = m_templates == nullptr ? nullptr : geometry(name, variant);
  if (source == nullptr)
    return 0;
  if (!templateFile(variant, ".svg").isEmpty())
    subnet.set(QStringLiteral("icon"), variant + QStringLiteral(".svg"));
  const QString constraints = templateFile(variant, ".geom.csv");
  if (!constraints.isEmpty())
    subnet.set(QStringLiteral("constraints"), constraints);
  const element &record = *source->assembledSubnets().find(recordName());
  takeDefaults(subnet, record);
  const QStringList templatePins = split(record.value(keys().pins));
  if (templatePins.isEmpty()) {
    log(QStringLiteral("Problem with creating assembledsubnet: loaded pins empty! Skipped!"), name);
    return 0;
  }
  const auto isNoNode = [source](const QString &pin) {
    return source->nodes().find(pin) == nullptr;
  };
  if (std::any_of(templatePins.begin(), templatePins.end(), isNoNode)) {
    log(QStringLiteral("### in createEleOfAssembledSubnet: Problem with assembled subnet ") + name, name);
    log(QStringLiteral("The template %1 names pins that are none of its nodes: %2")
            .arg(variant, templatePins.join(QLatin1Char(';'))),
        name);
    return 0;
  }
  const QStringList used = pinsOf(subnet, pins, templatePins, tryReset);
  if (used.isEmpty()) {
    log(QStringLiteral("Problem with creating assembledsubnet: pins still empty! Skipped!"), name);
    return 0;
  }
  placeSubnet(subnet, used);
  if (flag == Flag::All)
    createElements(subnet, *source, templatePins, used);
  return 1;
}

void SubAssembler::takeDefaults(element &subnet, const element &record) const {
  static const QRegularExpression never(
      QStringLiteral("^icon$|^constraints$|^rotation$|^width$|^x$|^y$|^h$|^name$|^type$|^pins$|^variant$|^subassemblies$"),
      QRegularExpression::CaseInsensitiveOption);
  static const QString suffix = QStringLiteral(".default");
  for (const Property &property : record) {
    const QString key = property.key.name();
    if (key.endsWith(suffix)) {
      subnet.set(property.key, property.value);
      const PropertyKey plain = PropertyKey::intern(key.chopped(suffix.size()));
      if (subnet.find(plain) == nullptr)
        subnet.set(plain, property.value);
    } else if (!never.match(key).hasMatch()) {
      subnet.set(property.key, property.value);
    }
  }
}

QStringList SubAssembler::pinsOf(element &subnet, const QStringList &pins, const QStringList &ofTemplate, bool tryReset) {
  if (pins.size() == ofTemplate.size())
    return pins;
  const QString name = subnet.value(keys().name);
  if (!pins.isEmpty() && tryReset)
    log(QStringLiteral("Assembled subnet ") + name + QStringLiteral(": pinList sizes not consistent! reset tried!"), name);
  if (!tryReset)
    return {};
  QStringList reset; // names of its own, or two subnets would share the nodes
  for (const QString &pin : ofTemplate)
    reset.append(name + QLatin1Char('_') + pin);
  subnet.set(keys().pins, PropertyText(reset.join(QLatin1Char(';'))));
  return reset;
}

void SubAssembler::placeSubnet(element &subnet, const QStringList &pins) {
  std::vector<QPointF> places;
  QStringList others;
  bool areFirstTwoThere = pins.size() >= 2;
  for (int i = 0; i < pins.size(); ++i) {
    const element *node = m_net.nodes().find(pins.at(i));
    if (node != nullptr) {
      places.push_back(position(m_net, *node));
    } else {
      others.append(pins.at(i));
      areFirstTwoThere = areFirstTwoThere && i > 1;
    }
  }
  if (!areFirstTwoThere)
    return;
  const QPointF way = places[1] - places[0];
  subnet.set(PropertyKey::intern("width"), numberText(std::hypot(way.x(), way.y())));
  subnet.set(PropertyKey::intern("rotation"), numberText(TemplatePlacement::rotation(places[0], places[1])));
  const QPointF center = TemplatePlacement::mean(places);
  subnet.set(keys().x, numberText(center.x()));
  subnet.set(keys().y, numberText(center.y()));
  if (!others.isEmpty())
    log(QStringLiteral("pinList contains non-net nodes: ") + others.join(QLatin1Char(';')), subnet.value(keys().name));
}

QString SubAssembler::uniqueName(const QString &wanted) const {
  QString name = wanted;
  for (int i = 2; m_net.element(name) != nullptr; ++i)
    name = QStringLiteral("%1_%2").arg(wanted).arg(i);
  return name;
}

/// A node that the network lacks, to be saved by hand.
void SubAssembler::createPin(const element &source, const QString &name, const QPointF &at) {
  element pin = source;
  pin.set(keys().name, PropertyText(name));
  pin.set(keys().x, numberText(at.x()));
  pin.set(keys().y, numberText(at.y()));
  pin.set(QStringLiteral("doSave"), QStringLiteral("false"));
  pin.set(QStringLiteral("vis"), QStringLiteral("AUTO"));
  log(QStringLiteral("This pin is new and needs saving: ") + name, name);
  m_net.addElement(std::move(pin));
  m_result.newPins = true;
}

void SubAssembler::createElements(element &subnet, const NetData &source, const QStringList &templatePins,
                                  const QStringList &pins) {
  static const PropertyKey visSize = PropertyKey::intern("vis.size");
  const QString subnetName = subnet.value(keys().name);
  std::vector<QPointF> from;
  for (const QString &pin : templatePins)
    from.push_back(position(source, *source.nodes().find(pin)));
  const auto number = [&](const char *key) {
    const double value = m_net.value(subnet, PropertyKey::intern(key));
    return value == NetData::NoValue ? 0.0 : value;
  };
  const TemplatePlacement placement(from, number("width"), number("rotation"), position(m_net, subnet));
  Names names;
  for (int i = 0; i < templatePins.size(); ++i) {
    const element &templatePin = *source.nodes().find(templatePins.at(i));
    names.all.insert(templatePins.at(i), pins.at(i));
    element *pin = m_net.nodes().find(pins.at(i));
    if (pin == nullptr) {
      createPin(templatePin, pins.at(i), placement.place(from[static_cast<std::size_t>(i)]));
    } else if (const PropertyText *size = templatePin.find(visSize)) {
      pin->set(visSize, *size);
    }
  }
  QStringList created;
  for (const elements *collection : {&source.nodes(), &source.edges()}) {
    for (const elements::Entry &entry : *collection) {
      const QString name = entry.name();
      if (names.all.contains(name))
        continue;
      names.all.insert(name, uniqueName(subnetName + QLatin1Char('_') + name));
      names.created.append(name);
      created.append(names.all.value(name));
    }
  }
  for (const QString &name : qAsConst(names.created)) {
    const element &original = *source.element(name);
    element copy = original;
    for (const PropertyKey key : references()) {
      const PropertyText *reference = original.find(key);
      const auto other = reference == nullptr ? names.all.constEnd() : names.all.constFind(reference->toString());
      if (other != names.all.constEnd())
        copy.set(key, PropertyText(*other));
    }
    if (source.nodes().find(name) != nullptr) {
      const QPointF at = placement.place(position(source, original));
      copy.set(keys().x, numberText(at.x()));
      copy.set(keys().y, numberText(at.y()));
    }
    copy.set(keys().refEle, PropertyText(name));
    m_net.addElement(std::move(copy));
  }
  subnet.set(QStringLiteral("elements"), created.join(QLatin1Char(';')));
  const auto read = [](const QString &path) {
    return FormulaFile::read(path, QStringLiteral("geometry"));
  };
  const QString variant = subnet.value(keys().variant);
  const QString constraints = templateFile(variant, ".geom.csv");
  if (!constraints.isEmpty())
    takeDefinitions(subnet, m_templates->constraints.get(constraints, read), names);
  const QString formulas = templateFile(variant, ".formulas");
  if (!formulas.isEmpty())
    takeDefinitions(subnet, m_templates->formulas.get(formulas, read), names);
  else
    NivraMsg::log(QStringLiteral("### File containing formulas") + m_folder + QLatin1Char('/') + variant +
                  QStringLiteral(".formulas") + QStringLiteral(" not found!"));
}

/// Makes the template's definitions those of the created elements, and of the subnet itself where they are for subnets.
void SubAssembler::takeDefinitions(const element &subnet, const FormulaFile::Contents &contents, const Names &names) {
  for (const FormulaDefinition &definition : contents.definitions) {
    const Pattern pattern(definition.namePattern);
    FormulaDefinition own = definition;
    for (const QString &name : names.created) {
      if (pattern.matches(name))
        own.elements.append(names.all.value(name));
    }
    if (own.types.contains(QStringLiteral("sub")))
      own.elements.append(subnet.value(keys().name));
    if (own.elements.isEmpty())
      continue;
    own.namePattern.clear();
    for (QString *expression : {&own.expression, &own.lower, &own.upper})
      *expression = renamed(*expression, names.all);
    m_result.definitions.push_back(std::move(own));
  }
  for (const Finding &finding : contents.findings) {
    const bool isKnown = std::any_of(m_result.findings.begin(), m_result.findings.end(), [&finding](const Finding &known) {
      return known.file == finding.file && known.line == finding.line;
    });
    if (!isKnown)
      m_result.findings.push_back(finding);
  }
}
