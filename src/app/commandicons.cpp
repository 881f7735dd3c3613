#include "commandicons.h"

#include "svgicon.h"

#include <QAction>

#include <utility>

void CommandIcons::give(const QObject &window) {
  for (const auto &[action, icon] : {std::pair("actionOpen", "open"), std::pair("actionPrint", "print"),
                                     std::pair("actionSavePage", "save-page"), std::pair("actionSettings", "settings"),
                                     std::pair("actionSearch", "search"), std::pair("actionElement_Table", "vector-table"),
                                     std::pair("actionMetadataTable", "metadata"), std::pair("actionHelp", "help")}) {
    if (auto *found = window.findChild<QAction *>(QLatin1String(action)))
      found->setIcon(svgIcon(QLatin1String(icon)));
  }
}
