#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

/// What the checked accessors of the model throw; what() is the complete message as UTF-8.
class ModelException : public std::exception {
public:
  const char *what() const noexcept override { return m_message.constData(); }

protected:
  /// Writes heading and message to the debug log when there is a heading.
  ModelException(const QString &heading, const QString &message);

private:
  QByteArray m_message;
};

/// Checked read of a property that the element does not have. Here and below, contents are those of element::lines().
class element_out_of_range : public ModelException {
public:
  element_out_of_range(const QString &key, const QString &contents);
};

/// Checked insert of a property that the element already has.
class element_insert_exception : public ModelException {
public:
  element_insert_exception(const QString &key, const QString &value, const QString &contents);
};

/// Checked lookup of a name that the collection does not hold.
class elements_out_of_range : public ModelException {
public:
  elements_out_of_range(const QString &collection, const QString &key);
};

/// Insert of a name that the collection already holds.
class elements_insert_exception : public ModelException {
public:
  elements_insert_exception(const QString &collection, const QString &name, const QString &added, const QString &existing);
};
