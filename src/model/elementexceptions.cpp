#include "elementexceptions.h"

#include <base/nivramsg.h>

namespace {

QString constructed(const char *name) {
  return QStringLiteral("Constructed an %1 exception with the following message:").arg(QLatin1String(name));
}

} // namespace

ModelException::ModelException(const QString &heading, const QString &message)
    : m_message(message.toUtf8()) {
  if (heading.isEmpty())
    return;
  NivraMsg::debug(heading);
  NivraMsg::debug(message);
}

element_out_of_range::element_out_of_range(const QString &key, const QString &contents)
    : ModelException(constructed("element_out_of_range"),
                     QStringLiteral("element has no key \"") + key + QStringLiteral("\". Contents are:\n") + contents) {}

element_insert_exception::element_insert_exception(const QString &key, const QString &value, const QString &contents)
    : ModelException(constructed("element_insert_exception"),
                     QStringLiteral("tried to insert pair (") + key + QStringLiteral(", ") + value +
                         QStringLiteral(") with already existing key:\n") + contents) {}

elements_out_of_range::elements_out_of_range(const QString &collection, const QString &key)
    : ModelException(QString(), QStringLiteral("map ") + collection + QStringLiteral(" has no key \"") + key +
                                    QStringLiteral("\".\n")) {}

elements_insert_exception::elements_insert_exception(const QString &collection, const QString &name, const QString &added,
                                                     const QString &existing)
    : ModelException(constructed("element_insert_exception"),
                     QStringLiteral("tried to insert already existing element ") + name + QStringLiteral(" into ") +
                         collection + QStringLiteral(":\n") + added + QStringLiteral("Existing element contents:\n") +
                         existing) {}
