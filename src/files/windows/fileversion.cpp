#include "files/fileversion.h"

#include "files/windows/calls.h"

namespace terramark::files {

namespace {

/// Times of files count in steps of 100 ns, from the year 1601 on.
constexpr std::int64_t StepsPerSecond = 10'000'000;
constexpr std::int64_t NanosecondsPerStep = 100;
constexpr std::int64_t SecondsTo1970 = 11'644'473'600;

Moment MomentOf(std::int64_t steps) {
  return {steps / StepsPerSecond - SecondsTo1970, steps % StepsPerSecond * NanosecondsPerStep};
}

constexpr std::uint64_t Joined(DWORD high, DWORD low) {
  return std::uint64_t{high} << 32U | low;
}

}  // namespace

Result<FileVersion> VersionOf(FileNumber file) {
  BY_HANDLE_FILE_INFORMATION found{};
  if (const int error = ErrorOf(::GetFileInformationByHandle(Native(file), &found)); error != 0) {
    return Failed(error);
  }
  const auto& written = found.ftLastWriteTime;
  const Moment modified =
      MomentOf(static_cast<std::int64_t>(Joined(written.dwHighDateTime, written.dwLowDateTime)));
  FileVersion version{.Device = found.dwVolumeSerialNumber,
                      .Inode = Joined(found.nFileIndexHigh, found.nFileIndexLow),
                      .Size = Joined(found.nFileSizeHigh, found.nFileSizeLow),
                      .Modified = modified,
                      .Changed = modified};
  // Not every file system keeps the time of the last change of any kind.
  FILE_BASIC_INFO basic{};
  if (::GetFileInformationByHandleEx(Native(file), FileBasicInfo, &basic, sizeof basic) != FALSE &&
      basic.ChangeTime.QuadPart != 0) {
    version.Changed = MomentOf(basic.ChangeTime.QuadPart);
  }
  return version;
}

}  // namespace terramark::files
