#include "files/windows/rights.h"

#include "files/windows/calls.h"

namespace terramark::files {

namespace {

constexpr DWORD Kept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE |
                       FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
constexpr SECURITY_INFORMATION Parts = OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION;

PSID OwnerIn(const std::vector<std::byte>& descriptor) {
  PSID owner = nullptr;
  BOOL byDefault = FALSE;
  auto* const block = const_cast<std::byte*>(descriptor.data());
  return ::GetSecurityDescriptorOwner(block, &owner, &byDefault) != FALSE ? owner : nullptr;
}

/// Reads owner and access list of a file into a block; 0 or an error code.
int ReadRights(const std::wstring& name, std::vector<std::byte>& block) {
  DWORD size = 0;
  int error = ErrorOf(::GetFileSecurityW(name.c_str(), Parts, nullptr, 0, &size));
  if (error == ERROR_INSUFFICIENT_BUFFER) {
    block.resize(size);
    error = ErrorOf(::GetFileSecurityW(name.c_str(), Parts, block.data(), size, &size));
  }
  if (error != 0) block.clear();
  return error;
}

bool HasOwner(const std::wstring& name, PSID owner) {
  std::vector<std::byte> rights;
  if (ReadRights(name, rights) != 0) return false;
  const PSID now = OwnerIn(rights);
  return now != nullptr && ::EqualSid(now, owner) != FALSE;
}

}  // namespace

int Rights::Read(const std::wstring& name, DWORD attributes) {
  attributes_ = (attributes & Kept) != 0 ? attributes & Kept : FILE_ATTRIBUTE_NORMAL;
  const int error = ReadRights(name, descriptor_);
  if (error == 0) return 0;
  shown_ = error != ERROR_ACCESS_DENIED;
  return IsUnknownRequest(error) || !shown_ ? 0 : error;
}

SECURITY_ATTRIBUTES* Rights::ForCreating() {
  if (descriptor_.empty()) return nullptr;
  BOOL present = FALSE;
  BOOL byDefault = FALSE;
  PACL list = nullptr;
  SECURITY_DESCRIPTOR_CONTROL control = 0;
  DWORD revision = 0;
  // The owner is left out: only some users may name another one.
  const bool made =
      ::GetSecurityDescriptorDacl(descriptor_.data(), &present, &list, &byDefault) != FALSE &&
      ::GetSecurityDescriptorControl(descriptor_.data(), &control, &revision) != FALSE &&
      ::InitializeSecurityDescriptor(&listOnly_, SECURITY_DESCRIPTOR_REVISION) != FALSE &&
      ::SetSecurityDescriptorDacl(&listOnly_, present, list, FALSE) != FALSE &&
      ::SetSecurityDescriptorControl(&listOnly_, SE_DACL_PROTECTED, control & SE_DACL_PROTECTED) !=
          FALSE;
  if (!made) return nullptr;
  creating_ = {sizeof creating_, &listOnly_, FALSE};
  return &creating_;
}

bool Rights::GiveOwnerTo(const std::wstring& name) const {
  const PSID owner = descriptor_.empty() ? nullptr : OwnerIn(descriptor_);
  if (owner == nullptr || HasOwner(name, owner)) return true;
  auto* const block = const_cast<std::byte*>(descriptor_.data());
  ::SetFileSecurityW(name.c_str(), OWNER_SECURITY_INFORMATION, block);
  return HasOwner(name, owner);
}

}  // namespace terramark::files
