#include <fmt/args.h>
#include <fmt/format.h>

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <map>
#include <memory>
#include <regex>
#include <utility>
#include <vector>

#include "peers.h"

namespace kov::bench {
namespace {

constexpr std::size_t kMostNumbers = 6;

// A document cut at its values, and the values as an application has them in its record: numbers, also those that stand
// in lists, and texts that end in a NUL.
struct Template {
  std::string format;  // for fmt, with {} for each value
  struct Line {        // for printf: one attribute or entry of a list, with the text before it
    std::string format;
    std::vector<int> numbers;
    std::string text;
    bool hasText = false;
  };
  std::deque<Line> lines;  // its texts stay where they are
  Line before;             // the text that goes in front of the next value
  struct Piece {           // for the floor: constant text, and the value behind it
    std::string constant;
    const char* text = nullptr;
    int number = 0;
  };
  std::vector<Piece> pieces;
  Piece piece;  // the next
  fmt::dynamic_format_arg_store<fmt::format_context> arguments;

  void add(const std::string& text);
  void addNumber(int number);
  void addText(const std::string& value);
  void addValue(const std::string& value);
  void endLine();
};

std::string doubled(const std::string& text, char special) {
  std::string result;
  for (const char c : text) result += c == special ? std::string(2, special) : std::string(1, c);
  return result;
}

void Template::add(const std::string& text) {
  format += doubled(doubled(text, '{'), '}');
  before.format += doubled(text, '%');
  piece.constant += text;
}

void Template::addNumber(int number) {
  if (before.numbers.size() == kMostNumbers) endLine();
  format += "{}";
  before.format += "%d";
  before.numbers.push_back(number);
  arguments.push_back(number);
  piece.number = number;
  pieces.push_back(std::exchange(piece, Piece()));
}

void Template::addText(const std::string& value) {
  format += "{}";
  before.format += "%s";
  before.text = value;
  before.hasText = true;
  endLine();
  const char* const stored = lines.back().text.c_str();
  arguments.push_back(stored);
  piece.text = stored;
  pieces.push_back(std::exchange(piece, Piece()));
}

// Numbers between marks, as "[-1,4]," or "8:30:0" or "7".
bool isNumbers(const std::string& value) {
  static const std::regex numbers(R"(\[?-?(0|[1-9]\d{0,8})([\]\[,:*-]+(0|[1-9]\d{0,8}))*[\],]*)");
  return std::regex_match(value, numbers);
}

void Template::addValue(const std::string& value) {
  if (!isNumbers(value)) return addText(value);
  const char* at = value.c_str();
  while (*at != '\0') {
    char* end = nullptr;
    const long number = std::strtol(at, &end, 10);
    if (end != at) {
      addNumber(static_cast<int>(number));
    } else {
      add(std::string(1, *at));
      ++end;
    }
    at = end;
  }
  endLine();
}

void Template::endLine() {
  before.numbers.resize(kMostNumbers);  // printf ignores what its format does not name
  lines.push_back(std::exchange(before, Line()));
}

Template makeTemplate(const std::string& document) {
  Template made;
  std::size_t at = 0;
  for (std::size_t quote = document.find("=\""); quote != std::string::npos; quote = document.find("=\"", at)) {
    const std::size_t value = quote + 2;
    const std::size_t end = document.find('"', value);
    made.add(document.substr(at, value - at));
    made.addValue(document.substr(value, end - value));
    at = end;
  }
  made.add(document.substr(at));
  made.endLine();
  return made;
}

const Template& templateOf(const Sample& sample) {
  static std::map<const Sample*, std::unique_ptr<Template>> made;
  std::unique_ptr<Template>& entry = made[&sample];
  if (entry == nullptr) entry = std::make_unique<Template>(makeTemplate(sample.document));
  return *entry;
}

}  // namespace

// Successive appends of the body into a zero-filled scratch area, the whole document from that into another, and a copy
// of what came of it.
void writeBySnprintf(const Sample& sample, char* out, std::size_t size) {
  const Template& text = templateOf(sample);
  const std::unique_ptr<char[]> body(new char[size]());
  const std::unique_ptr<char[]> document(new char[size]());
  std::size_t length = 0;
  for (const Template::Line& line : text.lines) {
    const char* const format = line.format.c_str();
    const std::vector<int>& n = line.numbers;
    const int added =
        line.hasText ? std::snprintf(body.get() + length, size - length, format, line.text.c_str())
                     : std::snprintf(body.get() + length, size - length, format, n[0], n[1], n[2], n[3], n[4], n[5]);
    length += static_cast<std::size_t>(added);
  }
  length = static_cast<std::size_t>(std::snprintf(document.get(), size, "%s", body.get()));
  std::memcpy(out, document.get(), length);
}

void writeByFmt(const Sample& sample, char* out, std::size_t size) {
  const Template& text = templateOf(sample);
  fmt::vformat_to_n(out, size, text.format, text.arguments);
}

// The least work that writes the document: its constant pieces copied, texts measured and copied, numbers converted by
// std::to_chars. There is no record, no choice and no bound to look at.
void writePieces(const Sample& sample, char* out, std::size_t) {
  const Template& made = templateOf(sample);
  for (const Template::Piece& piece : made.pieces) {
    std::memcpy(out, piece.constant.data(), piece.constant.size());
    out += piece.constant.size();
    if (piece.text != nullptr) {
      const std::size_t length = std::strlen(piece.text);
      std::memcpy(out, piece.text, length);
      out += length;
    } else {
      out = std::to_chars(out, out + 12, piece.number).ptr;
    }
  }
  std::memcpy(out, made.piece.constant.data(), made.piece.constant.size());
}

}  // namespace kov::bench
