#include <model/consistencycheck.h>
#include <model/names.h>
#include <model/propertycolumns.h>

#include <QCoreApplication>
#include <QRegularExpression>

#include <vector>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(ConsistencyCheck)
};

std::string_view textOf(const element &e, PropertyKey key) {
  const PropertyText *text = e.find(key);
  return text == nullptr ? std::string_view() : text->utf8();
}

bool isTypeCode(const PropertyText *text, std::string_view code) {
  return text != nullptr && sameWord(text->utf8(), code);
}

bool isDrive(const element &e) {
  return isTypeCode(e.find(Names::all().type), "d");
}

/// The names of the properties whose value names another element: "drive", "driven", "entry", "exit".
bool isReference(const QString &propertyName) {
  static const QRegularExpression pattern(QStringLiteral("^drive$|^driven$|^entry$|^exit$"));
  return pattern.match(propertyName).hasMatch();
}

/// What the findings pass must know of a property name, asked once per name rather than once per element.
class PropertyNames {
public:
  enum Sort : char { Unasked, Ordinary, Name, Type, Empty, Reference };

  Sort sort(PropertyKey key) {
    if (key.index() >= m_sorts.size())
      m_sorts.resize(key.index() + 1, Unasked);
    Sort &sort = m_sorts[key.index()];
    if (sort == Unasked)
      sort = ask(key);
    return sort;
  }

private:
  static Sort ask(PropertyKey key) {
    if (key == Names::all().name)
      return Name;
    if (key == Names::all().type)
      return Type;
    const QString name = key.name();
    return name.trimmed().isEmpty() ? Empty : isReference(name) ? Reference : Ordinary;
  }

  std::vector<Sort> m_sorts; // by the index of the key
};

class FindingsPass {
public:
  explicit FindingsPass(NetData &net)
      : m_net(net) {}

  Findings run() {
    for (const elements *collection : {&m_net.nodes(), &m_net.edges()}) {
      for (const elements::Entry &entry : *collection)
        check(entry);
    }
    return std::move(m_findings);
  }

private:
  void add(const elements::Entry &entry, const QString &text) { m_findings.push_back(Finding::about(entry.name(), text)); }

  void check(const elements::Entry &entry) {
    std::string_view name;
    std::string_view type;
    m_conspicuous.clear();
    for (const Property &property : entry.value) {
      switch (m_names.sort(property.key)) {
      case PropertyNames::Unasked:
      case PropertyNames::Ordinary:
        break;
      case PropertyNames::Name:
        name = property.value.utf8();
        break;
      case PropertyNames::Type:
        type = property.value.utf8();
        break;
      case PropertyNames::Empty:
      case PropertyNames::Reference:
        m_conspicuous.push_back(&property);
        break;
      }
    }
    checkIdentity(entry, name, type);
    if (!m_conspicuous.empty())
      checkProperties(entry);
  }

  void checkIdentity(const elements::Entry &entry, std::string_view name, std::string_view type) {
    const std::string_view id = entry.id.utf8();
    if (id.empty() || name.empty())
      add(entry, Texts::tr("ID or name-property empty: %1, %2").arg(entry.name(), entry.value.value(Names::all().name)));
    if (name != id)
      add(entry, Texts::tr("ID and value of name-property not identical: %1, %2")
                     .arg(entry.name(), entry.value.value(Names::all().name)));
    if (type.empty() || type.find(' ') != std::string_view::npos)
      add(entry, Texts::tr("value of type-property not OK: %1, %2").arg(entry.name(), entry.value.value(Names::all().type)));
  }

  void checkProperties(const elements::Entry &entry) {
    std::vector<PropertyKey> nameless;
    for (const Property *property : m_conspicuous) {
      if (m_names.sort(property->key) == PropertyNames::Empty) {
        add(entry, Texts::tr("A property name is empty for element %1! Property will be erased!").arg(entry.name()));
        nameless.push_back(property->key);
      } else if (!property->value.isEmpty() && m_net.nodes().find(property->value) == nullptr &&
                 m_net.edges().find(property->value) == nullptr) {
        add(entry,
            Texts::tr("Cannot find element: %1@%2=%3!").arg(property->key.name(), entry.name(), property->value.toString()));
      }
    }
    for (const PropertyKey key : nameless)
      entry.value.erase(key);
  }

  NetData &m_net;
  PropertyNames m_names;
  std::vector<const Property *> m_conspicuous; // of the element at hand
  Findings m_findings;
};

class PruningPass {
public:
  PruningPass(NetData &net, const Told &told)
      : m_net(net)
      , m_told(told)
      , m_ofNode({Names::all().name, Names::all().type, Names::all().x, Names::all().y})
      , m_ofEdge({Names::all().name, Names::all().node1, Names::all().node2}) {}

  ConsistencyCheck::PruneResult run() {
    static_cast<void>(m_net.nodes().begin()); // gives the nodes their indices
    m_passed.assign(m_net.nodes().size(), false);
    m_result.edges = erase(m_net.edges(), QT_TRANSLATE_NOOP("ConsistencyCheck", "edge"),
                           [this](const elements::Entry &e) { return edgePasses(e.value); });
    m_result.nodes = erase(m_net.nodes(), QT_TRANSLATE_NOOP("ConsistencyCheck", "node"),
                           [this](const elements::Entry &e) { return nodePasses(e); });
    const int drives = erase(m_net.nodes(), QT_TRANSLATE_NOOP("ConsistencyCheck", "drive"),
                             [this](const elements::Entry &e) { return !isDrive(e.value) || drivePasses(e.value); });
    if (drives > 0) { // no edge may end at one of them
      m_passed.assign(m_net.nodes().size(), true);
      m_result.edges += erase(m_net.edges(), QT_TRANSLATE_NOOP("ConsistencyCheck", "edge"),
                              [this](const elements::Entry &e) { return edgePasses(e.value); });
      m_result.nodes += drives;
    }
    if (m_result.nodes > 0 || m_result.edges > 0)
      add(Finding::Severity::Critical, QString(),
          Texts::tr("CRITICAL - %1 nodes and %2 edges had to be removed!").arg(m_result.nodes).arg(m_result.edges));
    return std::move(m_result);
  }

private:
  /// Told at once; what a person should look at is kept besides.
  void add(Finding::Severity severity, const QString &name, const QString &text) {
    m_result.findings.push_back({severity, QString(), 0, text, QString(), false, name});
    tell(m_told, severity, text);
  }

  template <typename Test>
  int erase(elements &collection, const char *word, const Test &passes) const {
    return static_cast<int>(collection.eraseIf([&](const elements::Entry &entry) {
      if (passes(entry))
        return false;
      tell(m_told, Finding::Severity::Information, Texts::tr("... %1 was: %2").arg(Texts::tr(word), entry.name()));
      entry.value.clear();
      return true;
    }));
  }

  bool hasName(const element &e, const PropertyText *name, const char *word) {
    if (name != nullptr && !name->isEmpty())
      return true;
    QString properties;
    for (const Property &property : e)
      properties += property.key.name() + QLatin1Char('=') + property.value.toString() + QLatin1Char(';');
    const QString kind = Texts::tr(word);
    add(Finding::Severity::Warning, QString(), Texts::tr("Error for %1: %2").arg(kind, properties));
    const QString what = kind.at(0).toUpper() + kind.mid(1);
    tell(m_told, Finding::Severity::Warning,
         Texts::tr("ERROR for current %1: Could not find property name! %2 will be erased!").arg(kind, what));
    return false;
  }

  bool nodePasses(const elements::Entry &entry) {
    if (!m_passed[entry.index])
      m_passed[entry.index] = nodePasses(entry.value);
    return m_passed[entry.index];
  }

  bool nodePasses(element &node) {
    m_ofNode.read(node);
    if (!hasName(node, m_ofNode[NodeName], "node"))
      return false;
    if (isTypeCode(m_ofNode[NodeType], "d"))
      return true; // the drive test gives it its coordinates
    const bool hasX = m_ofNode[NodeX] != nullptr;
    const bool hasY = m_ofNode[NodeY] != nullptr;
    if (!hasX)
      setDefault(node, Names::all().x, 'x');
    if (!hasY)
      setDefault(node, Names::all().y, 'y');
    return true;
  }

  void setDefault(element &node, PropertyKey key, char axis) {
    node.set(key, PropertyText(std::string_view("0")));
    const QString name = node.value(Names::all().name);
    add(Finding::Severity::Warning, name,
        Texts::tr("Node %1 did not possess %2-value. Set to 0.").arg(name, QString(QLatin1Char(axis))));
  }

  bool edgePasses(const element &edge) {
    m_ofEdge.read(edge);
    if (!hasName(edge, m_ofEdge[EdgeName], "edge"))
      return false;
    if (m_ofEdge[EdgeNode1] == nullptr || m_ofEdge[EdgeNode2] == nullptr)
      return edgeFails(edge, Texts::tr("Could not find property %1")
                                 .arg((m_ofEdge[EdgeNode1] == nullptr ? Names::all().node1 : Names::all().node2).name()));
    const elements::Entry *node1 = end(edge, Names::all().node1, *m_ofEdge[EdgeNode1]);
    const elements::Entry *node2 = node1 == nullptr ? nullptr : end(edge, Names::all().node2, *m_ofEdge[EdgeNode2]);
    return node2 != nullptr && endPasses(edge, Names::all().node1, *node1) && endPasses(edge, Names::all().node2, *node2);
  }

  bool edgeFails(const element &edge, const QString &reason) {
    const QString name = edge.value(Names::all().name);
    add(Finding::Severity::Warning, name, Texts::tr("ERROR for edge %1: %2! Edge will be erased!").arg(name, reason));
    return false;
  }

  const elements::Entry *end(const element &edge, PropertyKey key, const PropertyText &name) {
    const elements::Entry *node = m_net.nodes().findEntry(name.utf8());
    if (node == nullptr)
      edgeFails(edge, Texts::tr("Could not find %1 %2").arg(key.name(), name.toString()));
    return node;
  }

  bool endPasses(const element &edge, PropertyKey key, const elements::Entry &node) {
    if (nodePasses(node))
      return true;
    const QString word = key.name();
    return edgeFails(edge, Texts::tr("%1 %2 not ok").arg(word.at(0).toUpper() + word.mid(1), edge.value(key)));
  }

  bool drivePasses(element &drive) {
    if (!textOf(drive, Names::all().x).empty() && !textOf(drive, Names::all().y).empty())
      return true;
    const PropertyText *gasNodeName = drive.find(Names::all().gasNode);
    const PropertyText *drivenName = drive.find(Names::all().driven);
    if (gasNodeName == nullptr || drivenName == nullptr)
      return driveFails(drive, Texts::tr("Could not find properties GASNODE and/or DRIVEN. Drive is excluded!"));
    const element *gasNode = m_net.nodes().find(*gasNodeName);
    if (gasNode != nullptr && gasNode->isEmpty()) // a drive that was excluded before this one
      gasNode = nullptr;
    const element *driven = m_net.edges().find(*drivenName);
    if (driven == nullptr && gasNode == nullptr)
      return driveFails(drive, Texts::tr("Neither GASNODE %1 nor DRIVEN %2 could be found. Drive is excluded!")
                                   .arg(gasNodeName->toString(), drivenName->toString()));
    if (driven == nullptr) {
      driveFails(drive, Texts::tr("Could not find DRIVEN %1. Check!").arg(drivenName->toString()));
      setPosition(drive, m_net.position(*gasNode) + QPointF(0.0, 50.0));
      return true;
    }
    if (!isTypeCode(driven->find(Names::all().type), "c"))
      return driveFails(drive,
                        Texts::tr("DRIVEN %1 is not of type compressor. Drive is excluded!").arg(drivenName->toString()));
    if (gasNode == nullptr)
      driveFails(drive, Texts::tr("Could not find GASNODE %1. Check!").arg(gasNodeName->toString()));
    placeBeside(drive, *driven);
    return true;
  }

  bool driveFails(const element &drive, const QString &reason) {
    const QString name = drive.value(Names::all().name);
    add(Finding::Severity::Warning, name, Texts::tr("Drive %1: %2").arg(name, reason));
    return false;
  }

  /// On the compressor's line, 70 % of the way to its outlet.
  void placeBeside(element &drive, const element &compressor) const {
    const element &inlet = *m_net.nodes().find(*compressor.find(Names::all().node1));
    const element &outlet = *m_net.nodes().find(*compressor.find(Names::all().node2));
    setPosition(drive, 0.3 * m_net.position(inlet) + 0.7 * m_net.position(outlet));
  }

  void setPosition(element &drive, const QPointF &at) const {
    constexpr int Digits = 8;
    const QString xText = QString::number(at.x(), 'g', Digits);
    const QString yText = QString::number(at.y(), 'g', Digits);
    drive.set(Names::all().x, xText);
    drive.set(Names::all().y, yText);
    tell(m_told, Finding::Severity::Information,
         Texts::tr("Drive %1 did not possess x- or y-value. Set to (%2,%3).")
             .arg(drive.value(Names::all().name), xText, yText));
  }

  enum NodeColumn { NodeName, NodeType, NodeX, NodeY };
  enum EdgeColumn { EdgeName, EdgeNode1, EdgeNode2 };

  NetData &m_net;
  const Told &m_told;
  PropertyColumns m_ofNode;
  PropertyColumns m_ofEdge;
  ConsistencyCheck::PruneResult m_result;
  std::vector<bool> m_passed; // nodes by their index: those that need no second test
};

} // namespace

Findings ConsistencyCheck::checkNetData(NetData &net) {
  return FindingsPass(net).run();
}

ConsistencyCheck::PruneResult ConsistencyCheck::prune(NetData &net, const Told &told) {
  return PruningPass(net, told).run();
}
