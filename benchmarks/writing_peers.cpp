#include <fmt/args.h>
#include <fmt/format.h>

#include <cstdio>
#include <cstring>
#include <map>
#include <memory>

#include "peers.h"

namespace kov::bench {
namespace {

// A document cut at its attribute values: the pieces around them, and the values as an application has them.
struct Template {
  std::string format;  // for fmt, with {} for each value
  struct Line {
    std::string format;  // for printf: text with one %s or %d, or none
    bool number;
    int integer;
    std::string text;
  };
  std::vector<Line> lines;
  fmt::dynamic_format_arg_store<fmt::format_context> arguments;
};

std::string doubled(const std::string& text, char special) {
  std::string result;
  for (const char c : text) result += c == special ? std::string(2, special) : std::string(1, c);
  return result;
}

void addText(Template& made, const std::string& text) {
  made.format += doubled(doubled(text, '{'), '}');
  if (!text.empty()) made.lines.push_back({doubled(text, '%'), false, 0, ""});
}

void addValue(Template& made, const std::string& value) {
  char* end = nullptr;
  const long number = std::strtol(value.c_str(), &end, 10);
  const bool isNumber = end != value.c_str() && *end == '\0';
  made.format += "{}";
  made.lines.push_back({isNumber ? "%d" : "%s", isNumber, static_cast<int>(number), value});
}

// One append an attribute, as a straight implementation has it: the text before a value belongs to its format.
void joinLines(Template& made) {
  std::vector<Template::Line> joined;
  for (std::size_t i = 0; i < made.lines.size(); ++i) {
    Template::Line line = made.lines[i];
    const bool literal = line.format != "%d" && line.format != "%s";
    if (literal && i + 1 < made.lines.size()) {
      Template::Line value = made.lines[++i];
      value.format = line.format + value.format;
      line = value;
    }
    joined.push_back(line);
  }
  made.lines = joined;
}

Template makeTemplate(const std::string& document) {
  Template made;
  std::size_t at = 0;
  for (std::size_t quote = document.find("=\""); quote != std::string::npos; quote = document.find("=\"", at)) {
    const std::size_t value = quote + 2;
    const std::size_t end = document.find('"', value);
    addText(made, document.substr(at, value - at));
    addValue(made, document.substr(value, end - value));
    at = end;
  }
  addText(made, document.substr(at));
  joinLines(made);
  for (const Template::Line& line : made.lines) {
    if (line.number) {
      made.arguments.push_back(line.integer);
    } else if (line.format.find('%') != std::string::npos) {
      made.arguments.push_back(std::cref(line.text));
    }
  }
  return made;
}

const Template& templateOf(const Sample& sample) {
  static std::map<const Sample*, std::unique_ptr<Template>> made;
  std::unique_ptr<Template>& entry = made[&sample];
  if (entry == nullptr) entry = std::make_unique<Template>(makeTemplate(sample.document));
  return *entry;
}

}  // namespace

// Successive appends into a zero-filled scratch area, and a copy of what came of it.
void writeBySnprintf(const Sample& sample, char* out, std::size_t size) {
  const Template& text = templateOf(sample);
  const std::unique_ptr<char[]> scratch(new char[size]());
  std::size_t length = 0;
  for (const Template::Line& line : text.lines) {
    const char* const format = line.format.c_str();
    const int added = line.number ? std::snprintf(scratch.get() + length, size - length, format, line.integer)
                                  : std::snprintf(scratch.get() + length, size - length, format, line.text.c_str());
    length += static_cast<std::size_t>(added);
  }
  std::memcpy(out, scratch.get(), length);
}

void writeByFmt(const Sample& sample, char* out, std::size_t size) {
  const Template& text = templateOf(sample);
  fmt::vformat_to_n(out, size, text.format, text.arguments);
}

}  // namespace kov::bench
