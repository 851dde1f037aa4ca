// Owner, access list and attributes of a file, for the file that is to replace it.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>
#include <vector>

namespace terramark::files {

class Rights {
 public:
  /// Reads those of a file that exists; 0 or an error code. Where the file system keeps no rights,
  /// or does not show them to the user, there are none.
  int Read(const std::wstring& name, DWORD attributes);

  /// Whether the user may know the rights. Otherwise no other file can be given them.
  bool AreShown() const { return shown_; }

  /// For creating a file that only those may open who may open this one. It refers to this object;
  /// null where the file system keeps no rights.
  SECURITY_ATTRIBUTES* ForCreating();

  /// Makes the owner that of another file too; false where the user may not. The owner can always
  /// change the rights, so that with another owner somebody would lose a right.
  bool GiveOwnerTo(const std::wstring& name) const;

  /// The attributes that a user sets: hidden, system, ready to be archived, not to be indexed.
  DWORD Attributes() const { return attributes_; }

 private:
  DWORD attributes_ = FILE_ATTRIBUTE_NORMAL;
  bool shown_ = true;
  std::vector<std::byte> descriptor_;  // owner and access list in one block; may be empty
  SECURITY_DESCRIPTOR listOnly_{};
  SECURITY_ATTRIBUTES creating_{};
};

}  // namespace terramark::files
