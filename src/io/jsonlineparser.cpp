#include "jsonlineparser.h"

#include <cmath>

namespace {

using simdjson::error_code;

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

std::size_t digitsFrom(std::string_view text, std::size_t at) {
  std::size_t end = at;
  while (end < text.size() && isDigit(text[end]))
    ++end;
  return end - at;
}

std::string_view trimmed(std::string_view token) {
  while (!token.empty() && (token.back() == ' ' || token.back() == '\t' || token.back() == '\r' || token.back() == '\n'))
    token.remove_suffix(1);
  return token;
}

/// Where the parts of a JSON number lie in its text.
struct NumberShape {
  bool valid = false;
  bool exponent = false;
  std::size_t integerAt = 0;
  std::size_t integerDigits = 0;
  std::size_t fractionAt = 0; ///< behind the point, 0 without one
  std::size_t fractionDigits = 0;

  explicit NumberShape(std::string_view text) {
    std::size_t at = integerAt = !text.empty() && text[0] == '-' ? 1 : 0;
    integerDigits = digitsFrom(text, at);
    if (integerDigits == 0 || (integerDigits > 1 && text[at] == '0'))
      return;
    at += integerDigits;
    if (at < text.size() && text[at] == '.') {
      fractionAt = ++at;
      fractionDigits = digitsFrom(text, at);
      if (fractionDigits == 0)
        return;
      at += fractionDigits;
    }
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
      exponent = true;
      ++at;
      if (at < text.size() && (text[at] == '+' || text[at] == '-'))
        ++at;
      const std::size_t digits = digitsFrom(text, at);
      if (digits == 0)
        return;
      at += digits;
    }
    valid = at == text.size();
  }
};

/// The text without superfluous zeros when it is a plain number of few digits; empty when it must be formatted anew.
std::string_view plainNumber(std::string_view text, const NumberShape &shape) {
  constexpr std::size_t SafeDigits = 15;
  if (shape.exponent)
    return {};
  std::size_t fraction = shape.fractionDigits;
  while (fraction > 0 && text[shape.fractionAt + fraction - 1] == '0')
    --fraction;
  std::size_t significant = shape.integerDigits + fraction;
  if (text[shape.integerAt] == '0') {
    std::size_t zeros = 0;
    while (zeros < fraction && text[shape.fractionAt + zeros] == '0')
      ++zeros;
    constexpr std::size_t ZerosBeforeExponent = 3; // 0.0001 is plain, 0.00001 is 1e-05
    if (zeros > ZerosBeforeExponent)
      return {};
    significant = fraction - zeros;
  }
  if (significant > SafeDigits)
    return {};
  return text.substr(0, fraction > 0 ? shape.fractionAt + fraction : shape.integerAt + shape.integerDigits);
}

} // namespace

NumberText numberText(std::string_view token, PropertyText &text) {
  const NumberShape shape(token);
  if (!shape.valid)
    return NumberText::Invalid;
  const std::string_view plain = plainNumber(token, shape);
  if (!plain.empty()) {
    text = PropertyText(plain);
    return NumberText::Taken;
  }
  const std::optional<double> number = parseNumber(token);
  if (!number || !std::isfinite(*number))
    return NumberText::OutOfRange;
  text = PropertyText(std::string_view(formatNumber(*number)));
  return NumberText::Taken;
}

error_code JsonLineParser::begin(const JsonLineReader::Line &line) {
  char *text = line.text;
  std::size_t size = line.size + 1;
  // The comma that separates the elements stands before the line and gives its place to the brace.
  if (text[0] == ',')
    --size;
  else
    --text;
  text[0] = '{';
  text[size] = '}';
  ++size;
  m_text = std::string_view(text, size);
  m_skipped = false;
  const std::size_t capacity = line.capacity + static_cast<std::size_t>(line.text - text);
  return m_parser.iterate(text, size, capacity).get(m_document);
}

const char *JsonLineParser::finish(error_code error) {
  if (error == simdjson::SUCCESS && m_document.current_location().error() == simdjson::SUCCESS)
    error = simdjson::TRAILING_CONTENT;
  if (error == simdjson::SUCCESS && m_skipped) {
    simdjson::dom::element whole;
    error = m_strict.parse(m_text.data(), m_text.size()).get(whole);
  }
  return error == simdjson::SUCCESS ? nullptr : simdjson::error_message(error);
}

const char *JsonLineParser::parse(const JsonLineReader::Line &line, std::vector<Element> &elements, std::size_t &count) {
  count = 0;
  simdjson::ondemand::object object;
  error_code error = begin(line);
  if (error == simdjson::SUCCESS)
    error = m_document.get_object().get(object);
  if (error != simdjson::SUCCESS)
    return simdjson::error_message(error);
  for (auto member : object) {
    simdjson::ondemand::object properties;
    if (count == elements.size())
      elements.emplace_back();
    Element &element = elements[count++];
    if ((error = member.unescaped_key().get(element.name)) != simdjson::SUCCESS ||
        (error = member.value().get_object().get(properties)) != simdjson::SUCCESS ||
        (error = readElement(properties, element)) != simdjson::SUCCESS)
      return simdjson::error_message(error);
  }
  return finish(error);
}

error_code JsonLineParser::readElement(simdjson::ondemand::object object, Element &element) {
  element.values.clear();
  element.dropped.clear();
  for (auto member : object) {
    Value read;
    const char *dropped = nullptr;
    if (const error_code error = readMember(member, read, dropped); error != simdjson::SUCCESS)
      return error;
    if (dropped == nullptr)
      element.values.push_back(std::move(read));
    else
      element.dropped.push_back({std::string(read.key), dropped});
  }
  return simdjson::SUCCESS;
}

error_code JsonLineParser::readMember(Member &member, Value &read, const char *&dropped) {
  simdjson::ondemand::value value;
  error_code error = member.unescaped_key().get(read.key);
  if (error == simdjson::SUCCESS)
    error = member.value().get(value);
  return error == simdjson::SUCCESS ? readValue(value, read, dropped) : error;
}

error_code JsonLineParser::readValue(simdjson::ondemand::value value, Value &read, const char *&dropped) {
  simdjson::ondemand::json_type type{};
  if (const error_code error = value.type().get(type); error != simdjson::SUCCESS)
    return error;
  switch (type) {
  case simdjson::ondemand::json_type::number: {
    const std::string_view token = trimmed(value.raw_json_token());
    const NumberText taken = numberText(token, read.text);
    if (m_numbers == Numbers::AsWritten && taken == NumberText::Taken)
      read.text = PropertyText(token);
    if (taken == NumberText::OutOfRange)
      dropped = "the number is out of range";
    read.isNumber = true;
    return taken == NumberText::Invalid ? simdjson::NUMBER_ERROR : simdjson::SUCCESS;
  }
  case simdjson::ondemand::json_type::string: {
    std::string_view text;
    const error_code error = value.get_string().get(text);
    if (error == simdjson::SUCCESS)
      read.text = PropertyText(text);
    return error;
  }
  case simdjson::ondemand::json_type::boolean: {
    bool truth = false;
    const error_code error = value.get_bool().get(truth);
    read.text = PropertyText(std::string_view(truth ? "true" : "false"));
    return error;
  }
  case simdjson::ondemand::json_type::null:
    dropped = "it has no value";
    return trimmed(value.raw_json_token()) == "null" ? simdjson::SUCCESS : simdjson::N_ATOM_ERROR;
  default:
    dropped = "the value is neither number nor text";
    m_skipped = true;
    return simdjson::SUCCESS;
  }
}

const char *JsonLineParser::parse(const JsonLineReader::Line &line, std::vector<SetPoints> &setPoints) {
  setPoints.clear();
  simdjson::ondemand::object object;
  error_code error = begin(line);
  if (error == simdjson::SUCCESS)
    error = m_document.get_object().get(object);
  if (error != simdjson::SUCCESS)
    return simdjson::error_message(error);
  for (auto member : object) {
    std::string_view name;
    simdjson::ondemand::array list;
    if ((error = member.unescaped_key().get(name)) != simdjson::SUCCESS ||
        (error = member.value().get_array().get(list)) != simdjson::SUCCESS)
      return simdjson::error_message(error);
    setPoints.push_back({std::string(name), {}});
    if ((error = readList(list, setPoints.back())) != simdjson::SUCCESS)
      return simdjson::error_message(error);
  }
  return finish(error);
}

error_code JsonLineParser::readList(simdjson::ondemand::array list, SetPoints &target) {
  for (auto entry : list) {
    simdjson::ondemand::object object;
    error_code error = entry.get_object().get(object);
    SetPoint point;
    if (error == simdjson::SUCCESS)
      error = readPoint(object, point);
    if (error != simdjson::SUCCESS)
      return error;
    target.points.push_back(std::move(point));
  }
  return simdjson::SUCCESS;
}

error_code JsonLineParser::readPoint(simdjson::ondemand::object object, SetPoint &point) {
  bool hasValue = false;
  for (auto member : object) {
    Value read;
    const char *dropped = nullptr;
    if (const error_code error = readMember(member, read, dropped); error != simdjson::SUCCESS)
      return error;
    if (read.key == "property") {
      point.property = std::string(read.text.utf8());
    } else if (read.key == "unit") {
      point.unit = std::string(read.text.utf8());
    } else if (read.key == "value" && dropped == nullptr) {
      point.value = std::move(read.text);
      point.isNumber = read.isNumber;
      hasValue = true;
    }
  }
  point.isComplete = hasValue && !point.property.empty();
  return simdjson::SUCCESS;
}
