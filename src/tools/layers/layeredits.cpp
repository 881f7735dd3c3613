#include <base/textdecoding.h>
#include <base/wholefile.h>
#include <tools/layeredits.h>
#include <tools/layers.h>

#include <QStringList>
#include <QUrl>

#include <numeric>

namespace {

constexpr int Fields = 3; // property, element, layer

/// What would end a field or a line is percent-encoded.
QString written(QString field) {
  field.replace(QLatin1Char('%'), QStringLiteral("%25")).replace(QLatin1Char(';'), QStringLiteral("%3B"));
  field.replace(QLatin1Char('#'), QStringLiteral("%23"));
  return field.replace(QLatin1Char('\n'), QStringLiteral("%0A")).replace(QLatin1Char('\r'), QStringLiteral("%0D"));
}

QString meant(const QString &field) {
  return QUrl::fromPercentEncoding(field.trimmed().toUtf8());
}

} // namespace

LayerValues LayersFile::read(const QString &path, FileAccess::Source source, Findings &findings) {
  LayerValues values;
  QString reason;
  const auto content = FileAccess::readWhole(path, source, FileAccess::LargestConfiguration, &reason);
  if (!content) {
    findings.push_back({Finding::Severity::Warning, {}, 0, reason});
    return values;
  }
  const auto told = [&findings](const Finding &finding) {
    findings.push_back(finding);
  };
  int number = 0;
  for (const QString &line : TextDecoding::decoded(*content, path, told).split(QLatin1Char('\n'))) {
    ++number;
    if (line.trimmed().isEmpty() || line.startsWith(QLatin1Char('#')))
      continue;
    const QStringList fields = line.split(QLatin1Char(';'));
    const QString property = meant(fields.value(0));
    const QString name = meant(fields.value(1));
    if (fields.size() == Fields && !property.isEmpty() && !name.isEmpty())
      values[property][name] = meant(fields.at(2));
    else
      findings.push_back(
          {Finding::Severity::Warning, path, number, tr("A line is left out: it should say property;element;layer")});
  }
  return values;
}

bool LayersFile::write(const QString &path, const LayerValues &values, QString *reason) {
  QString text = QStringLiteral("# layer property;element;layer\n");
  for (auto property = values.begin(); property != values.end(); ++property) {
    for (auto layer = property->begin(); layer != property->end(); ++layer)
      text += QStringLiteral("%1;%2;%3\n").arg(written(property.key()), written(layer.key()), written(layer.value()));
  }
  return WholeFile::write(path, FileAccess::Source::Trusted, text.toUtf8(), reason);
}

std::vector<ElementChange> LayerEdits::apply(NetData &net, const LayerValues &values) {
  std::vector<ElementChange> changes;
  for (auto property = values.begin(); property != values.end(); ++property) {
    const PropertyKey key = PropertyKey::intern(property.key());
    if (!Layers::isChangeable(key))
      continue; // a file from anywhere
    ElementChange change{{}, key};
    for (auto layer = property->begin(); layer != property->end(); ++layer) {
      element *e = net.element(layer.key());
      if (e == nullptr)
        continue;
      if (layer->isEmpty())
        e->erase(key);
      else
        e->set(key, *layer);
      change.elements.append(layer.key());
    }
    if (!change.elements.isEmpty())
      changes.push_back(change);
  }
  return changes;
}

void LayerEdits::note(const ElementChange &change) {
  QSet<QString> &elements = m_own[change.property.name()];
  for (const QString &name : change.elements)
    elements.insert(name);
  m_isChanged = true;
}

void LayerEdits::noteRead(const LayerValues &values) {
  m_read.clear();
  for (auto property = values.begin(); property != values.end(); ++property) {
    for (auto layer = property->begin(); layer != property->end(); ++layer)
      m_read[property.key()].insert(layer.key());
  }
}

void LayerEdits::setSavedWithCase() {
  for (auto property = m_own.begin(); property != m_own.end(); ++property)
    m_read[property.key()].unite(*property);
  m_own.clear();
  m_isChanged = false;
}

void LayerEdits::clear() {
  m_read.clear();
  m_own.clear();
  m_isChanged = false;
}

int LayerEdits::count() const {
  Elements all = m_read;
  for (auto property = m_own.begin(); property != m_own.end(); ++property)
    all[property.key()].unite(*property);
  return std::accumulate(all.begin(), all.end(), 0,
                         [](int sum, const QSet<QString> &elements) { return sum + elements.size(); });
}

LayerValues LayerEdits::values(const NetData &net) const {
  LayerValues values = ownValues(net);
  collect(net, m_read, values);
  return values;
}

LayerValues LayerEdits::ownValues(const NetData &net) const {
  LayerValues values;
  collect(net, m_own, values);
  return values;
}

void LayerEdits::collect(const NetData &net, const Elements &elements, LayerValues &values) {
  for (auto property = elements.begin(); property != elements.end(); ++property) {
    const PropertyKey key = PropertyKey::find(property.key());
    for (const QString &name : *property) {
      const element *e = net.element(name);
      const PropertyText *layer = e == nullptr || key.isNull() ? nullptr : e->find(key);
      if (e != nullptr)
        values[property.key()][name] = layer == nullptr ? QString() : layer->toString();
    }
  }
}
