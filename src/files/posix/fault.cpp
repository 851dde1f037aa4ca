#include "files/fault.h"

#include <cctype>
#include <cerrno>
#include <cstring>

namespace terramark::files {

const int NoSuchFile = ENOENT;
const int FileTooLarge = EFBIG;
const int InputOutputError = EIO;

std::string ErrorText(int error) {
  // strerror would use the language and the encoding of the desktop.
  const char* const known = ::strerrordesc_np(error);
  if (known == nullptr) return "error " + std::to_string(error);
  std::string words = known;
  // An abbreviation such as "RPC" keeps its capitals.
  const bool word = words.size() > 1 && std::islower(static_cast<unsigned char>(words[1])) != 0;
  if (word) words[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(words[0])));
  return words;
}

}  // namespace terramark::files
