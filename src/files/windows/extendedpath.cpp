#include "files/windows/extendedpath.h"

#include <algorithm>
#include <string_view>

#include "files/windows/calls.h"

namespace terramark::files {

namespace {

constexpr std::wstring_view AsItStands = L"\\\\?\\";
constexpr std::wstring_view AsItStandsInNetwork = L"\\\\?\\UNC\\";
constexpr std::wstring_view OfDevices = L"\\\\.\\";
constexpr std::wstring_view OfNetwork = L"\\\\";

/// Names that mean devices in every folder.
constexpr std::wstring_view Devices[] = {L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$"};
/// These do with a digit behind them, which may be a superscript.
constexpr std::wstring_view Ports[] = {L"COM", L"LPT"};
constexpr std::wstring_view PortDigits = L"0123456789\u00B9\u00B2\u00B3";

bool SameName(std::wstring_view one, std::wstring_view other) {
  return ::CompareStringOrdinal(one.data(), static_cast<int>(one.size()), other.data(),
                                static_cast<int>(other.size()), TRUE) == CSTR_EQUAL;
}

bool BeginsWith(std::wstring_view name, std::wstring_view start) {
  return SameName(name.substr(0, start.size()), start);
}

/// Whether a name without folders is that of a device. On older versions of Windows an ending, and
/// blanks before it, do not count.
bool IsDevice(std::wstring_view name) {
  std::wstring_view stem = name.substr(0, name.find(L'.'));
  stem = stem.substr(0, stem.find_last_not_of(L' ') + 1);
  const auto isPort = [&](std::wstring_view port) {
    return stem.size() == port.size() + 1 && BeginsWith(stem, port) &&
           PortDigits.find(stem.back()) != std::wstring_view::npos;
  };
  return std::ranges::any_of(Devices, [&](auto device) { return SameName(stem, device); }) ||
         std::ranges::any_of(Ports, isPort);
}

/// The name behind a computer and the name of what it shares: `\\computer\share\...` without the
/// first two backslashes. Pipes look like files of a share.
bool IsPipe(std::wstring_view name) {
  const std::size_t end = std::min(name.find(L'\\'), name.size());
  const std::wstring_view share =
      name.substr(std::min(name.find_first_not_of(L'\\', end), name.size()));
  return BeginsWith(share, L"pipe\\") || BeginsWith(share, L"mailslot\\");
}

Result<std::wstring> FullName(const std::filesystem::path& path) {
  const std::wstring& name = path.native();
  if (name.empty()) return Failed(NoSuchFile);
  std::wstring full(MAX_PATH, L'\0');
  // Gives the length without the NUL, or, where the room is too small, the room that it takes.
  for (DWORD length = 0;; full.resize(length)) {
    length =
        ::GetFullPathNameW(name.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    if (length == 0) return Failed(LastError());
    if (length < full.size()) {
      full.resize(length);
      return full;
    }
  }
}

}  // namespace

Result<std::wstring> ExtendedPath(const std::filesystem::path& path) {
  const auto full = FullName(path);
  if (!full) return full;
  const auto noFile = tl::unexpected(Fault::IsNoPlainFile());
  std::wstring_view rest = *full;
  std::wstring_view start = AsItStands;
  if (BeginsWith(rest, AsItStandsInNetwork)) {
    start = AsItStandsInNetwork;
    rest.remove_prefix(AsItStandsInNetwork.size());
  } else if (BeginsWith(rest, AsItStands)) {
    rest.remove_prefix(AsItStands.size());
  } else if (BeginsWith(rest, OfDevices)) {
    return noFile;
  } else if (BeginsWith(rest, OfNetwork)) {
    start = AsItStandsInNetwork;
    rest.remove_prefix(OfNetwork.size());
  }
  constexpr std::size_t DriveLength = 2;  // a letter and a colon
  const bool inNetwork = start == AsItStandsInNetwork;
  // Behind the letter of a drive comes its colon; whatever else begins so is a device.
  if (!inNetwork && (rest.size() <= DriveLength || rest[1] != L':')) return noFile;
  if (inNetwork && IsPipe(rest)) return noFile;
  if (rest.find(L':', inNetwork ? 0 : DriveLength) != std::wstring_view::npos) {
    return Failed(ERROR_INVALID_NAME);
  }
  if (IsDevice(rest.substr(rest.find_last_of(L'\\') + 1))) return noFile;
  return std::wstring(start) + std::wstring(rest);
}

}  // namespace terramark::files
