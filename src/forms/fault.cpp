#include "forms/fault.h"

#include <sys/stat.h>

#include <cctype>
#include <cstring>

namespace terramark::forms {

Fault FaultOf(int error) {
  // strerror would speak the desktop's language, in an encoding that is not the editor's.
  const char* const words = ::strerrordesc_np(error);
  if (words == nullptr) return "error " + std::to_string(error);
  Fault fault = words;
  // "RPC" keeps its capitals.
  const bool word = fault.size() > 1 && std::islower(static_cast<unsigned char>(fault[1])) != 0;
  if (word) fault[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(fault[0])));
  return fault;
}

Fault FaultOfKind(mode_t mode) {
  if (S_ISREG(mode)) return {};
  return S_ISDIR(mode) ? "it is a folder" : "it is no plain file";
}

}  // namespace terramark::forms
