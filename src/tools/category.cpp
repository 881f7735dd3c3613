#include <base/nivramsg.h>
#include <tools/category.h>

#include <QFile>
#include <QSaveFile>
#include <QTextStream>

std::vector<Category> CategoryFile::read(const QString &path) {
  constexpr int Fields = 5;
  constexpr qint64 LongestLine = 1 << 16;
  std::vector<Category> categories;
  QFile file(path);
  if (!file.exists() || !file.open(QIODevice::ReadOnly | QIODevice::Text)) {
    NivraMsg::log(QStringLiteral("### Categories file ") + path + QStringLiteral(" not found!"));
    return categories;
  }
  QTextStream stream(&file);
  stream.setCodec("UTF-8");
  int number = 0;
  for (QString line = stream.readLine(LongestLine); !line.isNull(); line = stream.readLine(LongestLine)) {
    ++number;
    if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
      continue;
    const QStringList fields = line.split(QLatin1Char(';'));
    if (fields.size() < Fields) {
      NivraMsg::logWarning(QStringLiteral("Line contains less than 5 entries!") +
                           QStringLiteral(" (%1:%2)").arg(path).arg(number));
      continue;
    }
    Category category{fields[0].trimmed(), fields[1].trimmed(), fields[2].trimmed(),
                      fields[3].trimmed(), fields[4].trimmed(), false};
    if (category.category.startsWith(QLatin1String("[x]"))) {
      category.isChecked = true;
      category.category.remove(0, 3);
    }
    categories.push_back(category);
  }
  return categories;
}

bool CategoryFile::write(const QString &path, const std::vector<Category> &categories, QString *error) {
  QSaveFile file(path);
  bool isDone = file.open(QIODevice::WriteOnly | QIODevice::Text);
  if (isDone) {
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    stream << "# format (besides comment lines) per LINE:\n# category;name;type;prop;value/formula\n";
    for (const Category &c : categories) {
      if (c.isChecked)
        stream << "[x]";
      stream << QStringList{c.category, c.name, c.type, c.prop, c.value}.join(QLatin1Char(';')) << '\n';
    }
    stream.flush();
    isDone = file.error() == QFile::NoError && file.commit();
  }
  if (!isDone && error != nullptr)
    *error = QStringLiteral("Could not open categories file ") + path + QStringLiteral("!");
  return isDone;
}

CatMap CategoryFile::toMap(const std::vector<Category> &categories) {
  CatMap map;
  for (const Category &c : categories)
    map.insert(c.category, {c.name, c.type, c.prop, c.isFormula() ? QString() : c.value, c.isFormula() ? c.value : QString(),
                            c.isChecked});
  return map;
}
