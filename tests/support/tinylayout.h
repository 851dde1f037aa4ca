// The layout of six Areas in a chain, as it is and spoilt.
#pragma once

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

namespace terramark {

inline std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

/// So many of its forty lines, some of them, counted from 1, with another text.
inline std::string TinyWith(const std::map<int, std::string>& changes, int count = 40) {
  std::ifstream lines(SAMPLES "/../tests/layoutfile/tiny.tml", std::ios::binary);
  std::string bytes;
  std::string line;
  for (int n = 1; n <= count && std::getline(lines, line); ++n) {
    bytes += (changes.contains(n) ? changes.at(n) + "\r" : line) + "\n";
  }
  return bytes;
}

}  // namespace terramark
