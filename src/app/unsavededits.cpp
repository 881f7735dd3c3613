#include "unsavededits.h"

#include <base/nivramsg.h>

#include <QStringList>

#include <algorithm>

UnsavedEdits::Answer UnsavedEdits::settle(const std::vector<Kind> &kinds) {
  if (kinds.empty() || !NivraMsg::showsBoxes())
    return Answer::Discarded;
  QString question = kinds.front().question;
  if (kinds.size() > 1) {
    question = tr("These have changes that are not saved:");
    for (const Kind &kind : kinds)
      question += QStringLiteral("\n  • ") + kind.name;
    question += QStringLiteral("\n\n") + tr("Save them?");
  }
  using Button = NivraMsg::Answer;
  const Button answer = NivraMsg::show({NivraMsg::Kind::Question,
                                        question,
                                        tr("Unsaved Changes"),
                                        {Button::Save, Button::Discard, Button::Cancel},
                                        Button::Save});
  if (answer == Button::Discard)
    return Answer::Discarded;
  if (answer != Button::Save)
    return Answer::Stay;
  const bool areSaved = std::all_of(kinds.begin(), kinds.end(), [](const Kind &kind) { return kind.save(); });
  return areSaved ? Answer::Saved : Answer::Stay;
}
