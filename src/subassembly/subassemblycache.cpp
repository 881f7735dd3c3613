#include <subassembly/subassemblycache.h>

#include <algorithm>

SubAssemblyCache &SubAssemblyCache::instance() {
  static SubAssemblyCache cache;
  return cache;
}

std::shared_ptr<SubAssemblyTemplates> SubAssemblyCache::folder(const QString &path, const Told &told) {
  if (path.isEmpty())
    return nullptr;
  const auto debug = [&told](const QString &text) {
    tell(told, Finding::Severity::Debug, text);
  };
  debug(QStringLiteral("SubAssemblyCache: %1/%2 cached dirs").arg(size()).arg(int(MostFolders)));
  const auto known =
      std::find_if(m_folders.begin(), m_folders.end(), [&path](const Folder &folder) { return folder.path == path; });
  if (known != m_folders.end()) {
    debug(QStringLiteral("SubAssemblyCache: using existing cache for dir ") + path);
    m_folders.splice(m_folders.begin(), m_folders, known);
    const std::shared_ptr<SubAssemblyTemplates> &templates = m_folders.front().templates;
    templates->geometry.forgetChanged();
    templates->constraints.forgetChanged();
    templates->formulas.forgetChanged();
    return templates;
  }
  if (size() >= MostFolders) {
    debug(QStringLiteral("SubAssemblyCache: removing cache for dir ") + m_folders.back().path);
    m_folders.pop_back();
  }
  debug(QStringLiteral("SubAssemblyCache: creating new cache for dir ") + path);
  m_folders.push_front({path, std::make_shared<SubAssemblyTemplates>()});
  return m_folders.front().templates;
}
