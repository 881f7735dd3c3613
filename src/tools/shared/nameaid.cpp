#include "shared/nameaid.h"

#include <model/netdata.h>

#include <QCompleter>
#include <QStringListModel>

#include <set>

void NameAid::attach(QLineEdit &field, std::function<QStringList(const QString &, int)> names) {
  auto *completer = new QCompleter(&field);
  auto *model = new QStringListModel(completer);
  completer->setModel(model);
  completer->setCaseSensitivity(Qt::CaseInsensitive);
  completer->setMaxVisibleItems(12);
  field.setCompleter(completer);
  // The field asks its completer after this signal, so the model must be right when it is emitted.
  QObject::connect(&field, &QLineEdit::textChanged, model, [model, names = std::move(names)](const QString &text) {
    model->setStringList(text.isEmpty() ? QStringList() : names(text, MaximumNames));
  });
}

QStringList NameAid::elementNames(const NetData &net, const QString &beginning, int most) {
  QStringList names;
  for (const elements *collection : {&net.nodes(), &net.edges(), &net.assembledSubnets(), &net.textBoxes()}) {
    for (const elements::Entry *entry : collection->beginningWith(beginning, static_cast<std::size_t>(most)))
      names.append(entry->name());
  }
  names.sort(Qt::CaseInsensitive);
  return names.mid(0, most);
}

QStringList NameAid::propertyNames(NetData &net, const QString &beginning, int most) {
  constexpr int AskedElements = 5000; // of a kind: those that follow have nothing new
  std::set<PropertyKey> keys;
  for (const elements *collection : {&net.nodes(), &net.edges(), &net.assembledSubnets(), &net.textBoxes()}) {
    int asked = 0;
    for (auto it = collection->begin(); it != collection->end() && asked < AskedElements; ++it, ++asked) {
      for (const Property &property : it->value)
        keys.insert(property.key);
    }
  }
  QStringList names;
  for (const PropertyKey key : keys) {
    if (names.size() < most && key.name().startsWith(beginning, Qt::CaseInsensitive))
      names.append(key.name());
  }
  return names;
}
