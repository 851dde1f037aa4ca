#include "files/openfile.h"

#include <algorithm>
#include <utility>

#include "files/windows/calls.h"
#include "files/windows/extendedpath.h"

namespace terramark::files {

namespace {

/// Read and written in pieces of at most this size.
constexpr std::size_t MaxPiece = std::size_t{1} << 30;

/// Where a call reads or writes; files are opened so that the call waits.
OVERLAPPED At(std::uintmax_t offset) {
  OVERLAPPED at{};
  at.Offset = static_cast<DWORD>(offset);
  at.OffsetHigh = static_cast<DWORD>(offset >> 32U);
  return at;
}

DWORD PieceOf(std::size_t size) {
  return static_cast<DWORD>(std::min(size, MaxPiece));
}

Result<std::uintmax_t> SizeOf(FileNumber file) {
  LARGE_INTEGER size{};
  if (const int error = ErrorOf(::GetFileSizeEx(Native(file), &size)); error != 0) {
    return Failed(error);
  }
  return static_cast<std::uintmax_t>(size.QuadPart);
}

Result<OpenedFile> Open(const std::filesystem::path& path, DWORD access) {
  const auto name = ExtendedPath(path);
  if (!name) return tl::unexpected(name.error());
  // Asked first, since opening a folder gives the reason that permission is denied.
  const DWORD attributes = ::GetFileAttributesW(name->c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return Failed(LastError());
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return tl::unexpected(Fault::IsFolder());
  // Whatever serves a name that is no file learns nothing of the user.
  constexpr DWORD Anonymous = SECURITY_SQOS_PRESENT | SECURITY_ANONYMOUS;
  Descriptor file = Owned(::CreateFileW(name->c_str(), access, SharedWithAll, nullptr,
                                        OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL | Anonymous, nullptr));
  if (!file.IsOpen()) return Failed(LastError());
  if (::GetFileType(Native(file.Number())) != FILE_TYPE_DISK) {
    return tl::unexpected(Fault::IsNoPlainFile());
  }
  const auto size = SizeOf(file.Number());
  if (!size) return tl::unexpected(size.error());
  return OpenedFile{std::move(file), *size};
}

}  // namespace

void Descriptor::Close() {
  if (IsOpen()) ::CloseHandle(Native(number_));
  number_ = -1;
}

Result<OpenedFile> OpenToRead(const std::filesystem::path& path) {
  return Open(path, GENERIC_READ);
}

Result<OpenedFile> OpenToOverwrite(const std::filesystem::path& path) {
  return Open(path, GENERIC_READ | GENERIC_WRITE);
}

Result<std::size_t> ReadSome(FileNumber file, std::uintmax_t offset, std::span<char> room) {
  // The system takes the highest offsets for places such as the end.
  if (offset > INT64_MAX) return Failed(ERROR_NEGATIVE_SEEK);
  OVERLAPPED at = At(offset);
  DWORD got = 0;
  const int error = ErrorOf(::ReadFile(Native(file), room.data(), PieceOf(room.size()), &got, &at));
  if (error != 0 && error != ERROR_HANDLE_EOF) return Failed(error);
  return got;
}

Result<std::size_t> WriteSome(FileNumber file, std::uintmax_t offset, std::string_view text) {
  OVERLAPPED at = At(offset);
  DWORD written = 0;
  const int error =
      ErrorOf(::WriteFile(Native(file), text.data(), PieceOf(text.size()), &written, &at));
  if (error != 0) return Failed(error);
  return written;
}

int Truncate(FileNumber file, std::uintmax_t size) {
  FILE_END_OF_FILE_INFO end{};
  end.EndOfFile.QuadPart = static_cast<LONGLONG>(size);
  return ErrorOf(::SetFileInformationByHandle(Native(file), FileEndOfFileInfo, &end, sizeof end));
}

int Reserve(FileNumber file, std::uintmax_t size) {
  const auto present = SizeOf(file);
  if (!present) return present.error().Error();
  // Less room than the file has would cut it.
  if (size <= *present) return 0;
  FILE_ALLOCATION_INFO room{};
  room.AllocationSize.QuadPart = static_cast<LONGLONG>(size);
  const int error =
      ErrorOf(::SetFileInformationByHandle(Native(file), FileAllocationInfo, &room, sizeof room));
  return error == ERROR_DISK_FULL || error == DiskQuotaExceeded ? error : 0;
}

int Flush(FileNumber file) {
  const int error = ErrorOf(::FlushFileBuffers(Native(file)));
  return IsUnknownRequest(error) ? 0 : error;
}

}  // namespace terramark::files
