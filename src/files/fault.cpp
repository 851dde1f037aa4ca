#include "files/fault.h"

namespace terramark::files {

Fault Fault::IsFolder() {
  Fault fault(0);
  fault.kind_ = "it is a folder";
  return fault;
}

Fault Fault::IsNoPlainFile() {
  Fault fault(0);
  fault.kind_ = "it is no plain file";
  return fault;
}

std::string Fault::Description() const {
  return kind_ != nullptr ? kind_ : ErrorText(error_);
}

}  // namespace terramark::files
