#include <tools/categorylist.h>

void CategoryList::setFile(const QString &path) {
  m_path = path;
  read();
}

void CategoryList::read() {
  m_categories = m_path.isEmpty() ? std::vector<Category>() : CategoryFile::read(m_path);
  m_isChanged = false;
  emit hasRead();
}

bool CategoryList::save(QString *error) {
  if (!CategoryFile::write(m_path, m_categories, error))
    return false;
  m_isChanged = false;
  return true;
}

void CategoryList::append(const Category &category) {
  m_categories.push_back(category);
  setChanged();
}

void CategoryList::set(std::size_t index, const Category &category) {
  if (m_categories[index] == category)
    return;
  m_categories[index] = category;
  setChanged();
}

void CategoryList::remove(std::size_t index) {
  m_categories.erase(m_categories.begin() + static_cast<std::ptrdiff_t>(index));
  setChanged();
}

void CategoryList::setChanged() {
  m_isChanged = true;
  emit edited();
}
