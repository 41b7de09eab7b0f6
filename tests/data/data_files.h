// Plain readers for the tests of the data folder. They are strict and share nothing with the
// program's own tolerant readers, so a fault in those can't hide a fault in the data.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <fstream>
#include <iterator>
#include <limits>
#include <string>
#include <vector>

namespace datafolder {

using Items = std::vector<std::string>;

// All bytes of a file, under exactly this name; empty with a failure when it can't be read.
inline std::string bytes(const std::string& name) {
  std::ifstream file(std::string(POLARKREIS_DATA) + "/" + name, std::ios::binary);
  EXPECT_TRUE(file.good()) << name << " can't be read";
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// The lines of a text file without their ends (LF or CR LF); a last line without an end counts too.
inline std::vector<std::string> lines(const std::string& name) {
  const std::string text = bytes(name);
  std::vector<std::string> result;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = std::min(text.find('\n', start), text.size());
    std::string line = text.substr(start, end - start);
    if (!line.empty() && line.back() == '\r') line.pop_back();
    result.push_back(line);
    start = end + 1;
  }
  return result;
}

// The texts of a line of items, each in double quotes, with a comma between them. Empty when the
// line has another form.
inline Items items(const std::string& line) {
  Items result;
  for (std::size_t at = 0; at < line.size();) {
    const std::size_t close = line[at] == '"' ? line.find('"', at + 1) : std::string::npos;
    if (close == std::string::npos) return {};
    result.push_back(line.substr(at + 1, close - at - 1));
    at = close + 1;
    if (at == line.size()) return result;
    if (line[at] != ',') return {};
    ++at;
  }
  return {};
}

// The items of a file that holds one a line.
inline Items single_items(const std::string& name) {
  Items result;
  for (const std::string& line : lines(name)) {
    const Items one = items(line);
    EXPECT_EQ(one.size(), 1U) << name << ": " << line;
    result.push_back(one.empty() ? std::string() : one.front());
  }
  return result;
}

// The number that the whole text is, with a decimal point; not a number for anything else.
inline double number(const std::string& text) {
  double value = 0;
  const char* end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, value);
  const bool whole = error == std::errc() && rest == end && std::isfinite(value);
  return whole ? value : std::numeric_limits<double>::quiet_NaN();
}

inline std::vector<double> numbers(const Items& texts) {
  std::vector<double> result;
  for (const std::string& text : texts) result.push_back(number(text));
  return result;
}

// True when every line of the file, the last one too, ends with CR LF.
inline bool ends_lines_with_crlf(const std::string& name) {
  const std::string text = bytes(name);
  for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 1)) {
    if (at == 0 || text[at - 1] != '\r') return false;
  }
  return text.size() >= 2 && text.ends_with("\r\n");
}

}  // namespace datafolder
