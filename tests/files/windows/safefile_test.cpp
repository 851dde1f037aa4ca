// On Windows: makes each call of a save fail, and ends the process before each. The linker sends
// the calls here.
#include <gtest/gtest.h>
#include <windows.h>
// After the header above.
#include <sddl.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "files/safefile.h"
#include "support/temporaryfolder.h"

namespace {

// Besides an error code: the process ends before the call, or all calls fail from this one on.
enum Blow { Kill = -1, AllFail = -2 };
constexpr UINT Killed = 9;

struct Strike {
  int At = -1;          // the call that is struck, counted from 0
  int Error = 0;        // what it fails with, or a Blow
  bool Closed = false;  // the folder takes no new file
  int Count = 0;
  std::string Hit{};     // the call that was struck
  bool Created = false;  // before it, the temporary file was there
  bool Named = false;    // before it, that had the target's name
  bool Loose = false;    // what has been written is not flushed
  bool Rash = false;     // the name was taken while it was so
};

Strike* Armed = nullptr;

/// What a call fails with now; 0 for nothing.
int Fails(const std::string& name) {
  if (Armed->Closed && name == "create") return ERROR_ACCESS_DENIED;
  const int n = Armed->Count++;
  if (n == Armed->At && Armed->Error == Kill) TerminateProcess(GetCurrentProcess(), Killed);
  if (n == Armed->At) Armed->Hit = name;
  if (n >= Armed->At && Armed->Error == AllFail) return ERROR_IO_DEVICE;
  return n == Armed->At ? Armed->Error : 0;
}

template <typename Failure, typename Real>
auto Call(const std::string& name, Failure failure, Real real) {
  const int error = Armed != nullptr ? Fails(name) : 0;
  if (error == 0) return real();
  SetLastError(static_cast<DWORD>(error));
  return static_cast<decltype(real())>(failure);
}

template <typename Real>
BOOL Naming(const char* name, LPCWSTR target, LPCWSTR backup, Real real) {
  const bool struck = Armed != nullptr && Armed->Count == Armed->At;
  // A replacement may stop between its two changes of names.
  const int error = struck ? Armed->Error : 0;
  const bool halfway = error == AllFail || error == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2;
  if (halfway && backup != nullptr) MoveFileW(target, backup);
  const BOOL done = Call(name, FALSE, real);
  if (Armed != nullptr && done != FALSE) {
    Armed->Named = Armed->Hit.empty();
    Armed->Rash = Armed->Loose;
  }
  return done;
}

BOOL Written(bool loose, BOOL done) {
  if (Armed != nullptr && done != FALSE) Armed->Loose = loose;
  return done;
}

HANDLE Created(HANDLE file) {
  if (Armed != nullptr && Armed->Hit.empty()) Armed->Created = file != INVALID_HANDLE_VALUE;
  return file;
}

}  // namespace

// The program calls by pointers that have these names.
#define WRAP(result, name, parameters, called)                   \
  extern "C" result(WINAPI* __real___imp_##name) parameters;     \
  static result WINAPI Struck##name parameters {                 \
    const auto& real = __real___imp_##name;                      \
    return called;                                               \
  }                                                              \
  extern "C" {                                                   \
  result(WINAPI* __wrap___imp_##name) parameters = Struck##name; \
  }
#define PLAIN(name, parameters, arguments) \
  WRAP(BOOL, name, parameters, Call(#name, FALSE, [&] { return real arguments; }))

// clang-format off
WRAP(DWORD, GetFileAttributesW, (LPCWSTR a),
     Call(std::wstring_view(a).ends_with(L"-old") ? "taken" : "attributes", INVALID_FILE_ATTRIBUTES,
          [&] { return real(a); }))
WRAP(HANDLE, CreateFileW,
     (LPCWSTR a, DWORD b, DWORD c, LPSECURITY_ATTRIBUTES d, DWORD e, DWORD f, HANDLE g),
     Call(e == CREATE_NEW ? "create" : b == GENERIC_WRITE ? "try" : "open", INVALID_HANDLE_VALUE,
          [&] { const HANDLE file = real(a, b, c, d, e, f, g);
                return e == CREATE_NEW ? Created(file) : file; }))
PLAIN(GetFileSizeEx, (HANDLE a, PLARGE_INTEGER b), (a, b))
PLAIN(ReadFile, (HANDLE a, LPVOID b, DWORD c, LPDWORD d, LPOVERLAPPED e), (a, b, c, d, e))
WRAP(BOOL, WriteFile, (HANDLE a, LPCVOID b, DWORD c, LPDWORD d, LPOVERLAPPED e),
     Written(true, Call("WriteFile", FALSE, [&] {
       return real(a, b, Armed != nullptr ? std::min<DWORD>(c, 500) : c, d, e);
     })))
PLAIN(SetFileInformationByHandle, (HANDLE a, FILE_INFO_BY_HANDLE_CLASS b, LPVOID c, DWORD d),
      (a, b, c, d))
WRAP(BOOL, FlushFileBuffers, (HANDLE a),
     Written(false, Call("FlushFileBuffers", FALSE, [&] { return real(a); })))
PLAIN(SetFileAttributesW, (LPCWSTR a, DWORD b), (a, b))
PLAIN(GetFileSecurityW, (LPCWSTR a, SECURITY_INFORMATION b, PSECURITY_DESCRIPTOR c, DWORD d,
                         LPDWORD e), (a, b, c, d, e))
PLAIN(DeleteFileW, (LPCWSTR a), (a))
WRAP(BOOL, ReplaceFileW, (LPCWSTR a, LPCWSTR b, LPCWSTR c, DWORD d, LPVOID e, LPVOID f),
     Naming("rename", a, c, [&] { return real(a, b, c, d, e, f); }))
WRAP(BOOL, MoveFileExW, (LPCWSTR a, LPCWSTR b, DWORD c),
     Naming("rename", b, nullptr, [&] { return real(a, b, c); }))
// clang-format on

namespace terramark::files {
namespace {

namespace fs = std::filesystem;

std::string BytesOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator(file), {}};
}

std::wstring OwnerOf(const fs::path& path) {
  std::array<std::byte, 1000> block{};
  DWORD size = 0;
  PSID owner = nullptr;
  BOOL byDefault = FALSE;
  LPWSTR name = nullptr;
  EXPECT_TRUE(
      GetFileSecurityW(path.c_str(), OWNER_SECURITY_INFORMATION, block.data(), 1000, &size));
  EXPECT_TRUE(GetSecurityDescriptorOwner(block.data(), &owner, &byDefault));
  EXPECT_TRUE(ConvertSidToStringSidW(owner, &name));
  std::wstring found = name;
  LocalFree(name);
  return found;
}

constexpr std::size_t RightsBytes = 1000;

/// Owner and access list in so many bytes, and then the attributes.
std::string RightsOf(const fs::path& path) {
  std::string rights(RightsBytes, '\0');
  DWORD size = 0;
  EXPECT_TRUE(GetFileSecurityW(path.c_str(), OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION,
                               rights.data(), RightsBytes, &size));
  return rights + std::to_string(GetFileAttributesW(path.c_str()));
}

struct Scene {
  const char* Name;
  bool Old;
  bool Closed;
};

class WindowsSaving : public testing::TestWithParam<Scene> {
 public:
  void Prepare() {
    for (const auto& file : fs::directory_iterator(Folder.Path())) fs::remove(file);
    if (!HasOld) return;
    std::ofstream(Map, std::ios::binary) << Old;
    // For the owner alone, unlike other files of the folder.
    PSECURITY_DESCRIPTOR list = nullptr;
    ASSERT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorW(
        (L"D:P(A;;FA;;;" + OwnerOf(Map) + L")").c_str(), SDDL_REVISION_1, &list, nullptr));
    ASSERT_TRUE(SetFileSecurityW(Map.c_str(), DACL_SECURITY_INFORMATION, list));
    LocalFree(list);
    SetFileAttributesW(Map.c_str(), FILE_ATTRIBUTE_HIDDEN);
    Rights = RightsOf(Map);
  }
  static bool Save(const fs::path& map, const std::string& text, Strike& strike, fs::path& kept) {
    Armed = &strike;
    bool said = false;
    {
      SafeFile file(map);
      said = file.Open().and_then([&] { return file.Replace(text); }).has_value();
      kept = file.Kept();
    }
    Armed = nullptr;
    return said;
  }
  /// Saves in a process of its own, which ends before the call; its exit status.
  DWORD SaveAndEnd(int call) const {
    std::wstring program(MAX_PATH, L'\0');
    GetModuleFileNameW(nullptr, program.data(), MAX_PATH);
    SetEnvironmentVariableW(L"SAVING_MAP", Map.c_str());
    SetEnvironmentVariableW(L"SAVING_CALL", std::to_wstring(call).c_str());
    std::wstring words = L"saving --gtest_filter=SavingProcess.*";
    STARTUPINFOW start{};
    PROCESS_INFORMATION process{};
    EXPECT_TRUE(CreateProcessW(program.c_str(), words.data(), nullptr, nullptr, FALSE,
                               DETACHED_PROCESS, nullptr, nullptr, &start, &process));
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD status = 0;
    GetExitCodeProcess(process.hProcess, &status);
    SetEnvironmentVariableW(L"SAVING_CALL", nullptr);
    return status;
  }
  /// Whether a save is to succeed all the same.
  bool Bearable(const Strike& strike) const {
    const auto& [at, error, closed, count, hit, created, named, loose, rash] = strike;
    if (hit.empty() || named || hit == "taken" || hit == "DeleteFileW") return true;
    if (hit == "GetFileSecurityW") {
      return error == ERROR_ACCESS_DENIED || error == ERROR_NOT_SUPPORTED || created;
    }
    if (hit == "SetFileInformationByHandle") return error != ERROR_DISK_FULL;
    if (error == ERROR_NOT_SUPPORTED && hit == "FlushFileBuffers") return true;
    if (error == ERROR_NOT_SUPPORTED && hit == "rename") return HasOld;
    if (error == ERROR_SHARING_VIOLATION) return hit == "rename" || hit == "try";
    const bool refused = error == ERROR_ACCESS_DENIED || error == ERROR_UNABLE_TO_REMOVE_REPLACED;
    return refused && HasOld && (hit == "create" || hit == "rename");
  }

  const TemporaryFolder Folder;
  fs::path Map = Folder.Path() / "map";
  const bool HasOld = GetParam().Old;
  const std::string Old = std::string(1200, 'o');
  static inline const std::string New = std::string(1800, 'n');
  std::string Rights;
  fs::path Kept;
};

TEST(SavingProcess, SavesUntilItEnds) {
  std::array<wchar_t, MAX_PATH> map{};
  std::array<wchar_t, 10> call{};
  GetEnvironmentVariableW(L"SAVING_MAP", map.data(), MAX_PATH);
  if (GetEnvironmentVariableW(L"SAVING_CALL", call.data(), call.size()) == 0) return;
  Strike strike{.At = std::stoi(call.data()), .Error = Kill};
  fs::path kept;
  const bool said = WindowsSaving::Save(map.data(), WindowsSaving::New, strike, kept);
  TerminateProcess(GetCurrentProcess(), said ? 0 : 1);
}

TEST_P(WindowsSaving, LosesNothingWhateverFails) {
  const auto& [name, hasOld, closed] = GetParam();
  constexpr int Blows[] = {ERROR_IO_DEVICE,
                           ERROR_DISK_FULL,
                           ERROR_ACCESS_DENIED,
                           ERROR_SHARING_VIOLATION,
                           ERROR_NOT_SUPPORTED,
                           ERROR_UNABLE_TO_REMOVE_REPLACED,
                           ERROR_UNABLE_TO_MOVE_REPLACEMENT_2,
                           Kill,
                           AllFail};
  for (const int blow : Blows) {
    if (blow == Kill && closed) continue;
    bool over = false;
    for (int n = 0; !over; ++n) {
      Prepare();
      SCOPED_TRACE(std::to_string(n) + " " + std::to_string(blow));
      Strike strike{.At = n, .Error = blow, .Closed = closed};
      bool said = false;
      if (blow == Kill) {
        const DWORD status = SaveAndEnd(n);
        over = status != Killed;
        ASSERT_TRUE(!over || status == 0);
        said = BytesOf(Map) == New;
      } else {
        said = Save(Map, New, strike, Kept);
        over = strike.Hit.empty();
        EXPECT_TRUE(blow < 0 || said == Bearable(strike)) << strike.Hit;
      }
      bool whole = BytesOf(Map) == (said ? New : HasOld ? Old : "");
      int litter = 0;
      for (const fs::path& file : fs::directory_iterator(Folder.Path())) {
        if (file == Map) continue;
        ++litter;
        EXPECT_TRUE(file.filename().string().starts_with(".terramark-"));
        EXPECT_TRUE(!HasOld ||
                    RightsOf(file).substr(0, RightsBytes) == Rights.substr(0, RightsBytes));
        if (blow == AllFail && Kept.filename() == file.filename()) whole = BytesOf(file) == New;
      }
      // A file system that knows no flush or no rights is taken as it is.
      const bool unknown = blow == ERROR_NOT_SUPPORTED && !strike.Named;
      EXPECT_FALSE(!unknown && (strike.Rash || (said && strike.Loose && over))) << strike.Hit;
      EXPECT_TRUE(HasOld || !said ||
                  (GetFileAttributesW(Map.c_str()) & FILE_ATTRIBUTE_HIDDEN) == 0);
      EXPECT_LE(litter, blow < 0 ? 2 : strike.Hit == "DeleteFileW" ? 1 : 0);
      EXPECT_TRUE(whole || (closed && blow == AllFail)) << strike.Hit;
      EXPECT_TRUE(!HasOld || !Kept.empty() || unknown || RightsOf(Map) == Rights) << strike.Hit;
      ASSERT_FALSE(HasFailure());
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Files, WindowsSaving,
                         testing::Values(Scene{"Old", true, false}, Scene{"New", false, false},
                                         Scene{"FolderClosed", true, true}),
                         [](const auto& info) { return info.param.Name; });

}  // namespace
}  // namespace terramark::files
