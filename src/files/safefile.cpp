#include "files/safefile.h"

#include <utility>

#include "files/inplace.h"

namespace terramark::files {

SafeFile::SafeFile(std::filesystem::path target) : new_(MakeReplacementFile(std::move(target))) {
}

Result<> SafeFile::Open() {
  if (auto found = new_->FindTarget(); !found) return found;
  refusal_ = new_->Create();
  if (refusal_ != 0 && !new_->OldMayBeOverwritten(refusal_)) return Failed(refusal_);
  return {};
}

Result<> SafeFile::Replace(std::string_view text) {
  const int error = refusal_ != 0 ? refusal_ : new_->TakeTarget(text);
  if (error == 0) return {};
  if (new_->OldMayBeOverwritten(error)) return WriteOver(text);
  if (new_->HasLostTarget()) KeepText();
  return Failed(error);
}

Result<> SafeFile::WriteOver(std::string_view text) {
  // So that the file with the whole text survives a power failure during the writing in place.
  new_->FlushName();
  const auto written = WriteInPlace(new_->Target(), text);
  if (written) return {};
  if (written.error().Damaged) KeepText();
  return tl::unexpected(written.error().Why);
}

void SafeFile::KeepText() {
  damaged_ = true;
  kept_ = new_->Keep();
}

}  // namespace terramark::files
