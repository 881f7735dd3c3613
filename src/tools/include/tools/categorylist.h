#pragma once

#include <tools/category.h>

#include <QObject>

/// The categories of the case that is open, and their file. All windows show and change this one list, so that none saves
/// over what another one has changed.
class CategoryList : public QObject {
  Q_OBJECT
public:
  enum class Change { Added, Edited, Removed, Read };

  /// \param told what is wrong with the file
  explicit CategoryList(Told told = {})
      : m_told(std::move(told)) {}

  /// Reads the categories of a case, in place of those before.
  void setFile(const QString &path);
  /// Reads the file again; what was not saved is dropped.
  void read();
  /// Writes the file whole or not at all; false with the reason.
  bool save(QString *error);

  const std::vector<Category> &categories() const { return m_categories; }
  bool isChanged() const { return m_isChanged; } ///< against the file

  void append(const Category &category);
  /// Tells nothing when the category is so already.
  void set(std::size_t index, const Category &category);
  void remove(std::size_t index);

signals:
  // Before and after each change. \param index of the category, 0 when all were read
  void changing(CategoryList::Change change, int index);
  void changed(CategoryList::Change change, int index);

private:
  template <typename Action>
  void perform(Change change, std::size_t index, Action action);

  Told m_told;
  QString m_path; ///< empty without a case
  std::vector<Category> m_categories;
  bool m_isChanged = false;
};
