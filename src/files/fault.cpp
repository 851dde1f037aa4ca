#include "files/fault.h"

#include <sys/stat.h>

#include <cctype>
#include <cstring>

namespace terramark::files {

Fault Fault::OfKind(mode_t mode) {
  Fault fault(0);
  fault.kind_ = S_ISDIR(mode) ? "it is a folder" : "it is no plain file";
  return fault;
}

std::string Fault::Description() const {
  if (kind_ != nullptr) return kind_;
  // strerror would use the language and the encoding of the desktop.
  const char* const known = ::strerrordesc_np(error_);
  if (known == nullptr) return "error " + std::to_string(error_);
  std::string words = known;
  // An abbreviation such as "RPC" keeps its capitals.
  const bool word = words.size() > 1 && std::islower(static_cast<unsigned char>(words[1])) != 0;
  if (word) words[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(words[0])));
  return words;
}

}  // namespace terramark::files
