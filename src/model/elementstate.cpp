#include <model/elementstate.h>
#include <model/names.h>

#include <algorithm>
#include <initializer_list>

namespace {

std::string_view trimmed(std::string_view text) noexcept {
  while (!text.empty() && text.front() == ' ')
    text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ')
    text.remove_suffix(1);
  return text;
}

bool isOneOf(std::string_view text, std::initializer_list<std::string_view> lower) noexcept {
  return std::any_of(lower.begin(), lower.end(), [text](std::string_view word) { return sameWord(text, word); });
}

std::string_view said(const PropertyText *text) noexcept {
  return text == nullptr ? std::string_view() : trimmed(text->utf8());
}

} // namespace

bool ElementState::saysOff(const PropertyText *text) noexcept {
  const std::string_view word = said(text);
  return !word.empty() && (isOneOf(word, {"off", "closed", "inactive", "false", "no"}) || text->toDouble() == 0.0);
}

bool ElementState::saysAtWork(const PropertyText *text) noexcept {
  return isOneOf(said(text), {"active", "on", "open", "1"});
}

bool ElementState::saysBypass(const PropertyText *text) noexcept {
  return sameWord(said(text), "bypass");
}

bool ElementState::isOutOfUse(const element &e) noexcept {
  return isOutOfUse(e.find(Names::all().state), e.find(Names::all().active));
}

bool ElementState::isOutOfUse(const PropertyText *state, const PropertyText *active) noexcept {
  return saysOff(state) || saysOff(active);
}
