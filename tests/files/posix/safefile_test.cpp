// Makes each call of a save fail, and kills the process around each. The linker sends the calls
// here.
#include "files/safefile.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <set>

#include "shell/colours.h"
#include "support/layoutfolder.h"

namespace {

// Besides an errno: a kill before the call, which is one after the call before it, too; or all
// calls fail from this one on, or all of its name; or another file takes the target's name.
enum Blow { Kill = -1, AllFail = -2, SameFail = -3, Rival = -4 };

struct Strike {
  int At = -1;                          // the call that is struck, counted from 0
  int Error = 0;                        // what it fails with, or a Blow
  std::map<std::string, int> Always{};  // these fail each time, and are not counted
  int Count = 0;
  std::string Hit{};    // the call that was struck
  std::string Rival{};  // where another file is to be; empty once it is
  int Folder = -1;      // the folder while it is flushed
  int InPlace = -1;     // the file that is written in place
  std::string Loose{};  // "text" or "name", while what has been done to it is not flushed
  bool Rash = false;    // whether more was done while it was loose

  void Touched(const std::string& what) {
    Rash |= !Loose.empty() && Loose != what;
    Loose = what;
  }
};

Strike* Armed = nullptr;

template <typename Real>
auto Call(const std::string& name, Real real) -> decltype(real()) {
  if (!Armed) return real();
  int error = Armed->Always.contains(name) ? Armed->Always[name] : 0;
  const int n = error == 0 ? Armed->Count++ : -2;
  if (n == Armed->At) Armed->Hit = name;
  if (n == Armed->At && Armed->Error == Kill) kill(getpid(), SIGKILL);
  if (n == Armed->At && Armed->Error == Blow::Rival && !std::filesystem::exists(Armed->Rival)) {
    std::ofstream(std::exchange(Armed->Rival, "")) << "rival";
  }
  if (n == Armed->At && Armed->Error > 0) error = Armed->Error;
  if (n >= Armed->At && Armed->Error == AllFail) error = EIO;
  if (name == Armed->Hit && Armed->Error == SameFail) error = EIO;
  errno = error;
  if (error != 0) return -1;
  const auto done = real();
  const auto begins = [&](const char* with) { return done >= 0 && name.starts_with(with); };
  if (begins("pwrite")) Armed->Touched("text");
  if (begins("link") || begins("rename")) Armed->Touched("name");
  return done;
}

}  // namespace

// None takes more than five words, and those go on in the registers that they came in.
#define WRAP(result, name, called, real)                         \
  result __real_##name(long, long, long, long, long);            \
  result __wrap_##name(long a, long b, long c, long d, long e) { \
    return Call(called, [&] { return real; });                   \
  }
#define PLAIN(result, name) WRAP(result, name, #name, __real_##name(a, b, c, d, e))

// clang-format off
extern "C" {
PLAIN(int, lstat) PLAIN(ssize_t, readlink) PLAIN(int, faccessat) PLAIN(ssize_t, getxattr)
PLAIN(int, fstat) PLAIN(int, fchown) PLAIN(int, fsetxattr) PLAIN(int, fremovexattr)
PLAIN(int, fchmod) PLAIN(ssize_t, pread) PLAIN(int, fallocate) PLAIN(int, ftruncate)
PLAIN(int, linkat) PLAIN(int, link) PLAIN(int, rename) PLAIN(int, renameat2) PLAIN(int, unlink)
WRAP(ssize_t, pwrite, d == 0 ? "pwrite" : "pwrite on",
     __real_pwrite(a, b, Armed ? std::min(c, 500L) : c, d, e))
}
// clang-format on

extern "C" {
// A killed process needs no flush, and many of them take their time.
int __wrap_fsync(int file) {
  const bool folder = Armed && Armed->Folder == file;
  return Call(folder ? "folder" : "fsync", [&] {
    if (Armed && Armed->Loose == (folder ? "name" : "text")) Armed->Loose.clear();
    return 0;
  });
}
int __real_close(int file);
int __wrap_close(int file) {
  if (Armed && Armed->InPlace == file) Armed->Rash |= Armed->Loose == "text";
  const int closed = __real_close(file);  // also when it fails
  return Call("close", [&] { return closed; });
}
int __real_open(const char* path, int flags, mode_t mode);
int __wrap_open(const char* path, int flags, mode_t mode) {
  const bool folder = (flags & ~O_CLOEXEC) == O_DIRECTORY;
  const char* name = flags & O_CREAT ? "create" : flags & O_DIRECTORY ? "unnamed" : "open";
  if (folder) name = "folder";
  const int file = Call(name, [&] { return __real_open(path, flags, mode); });
  if (Armed) Armed->Folder = folder ? file : -1;
  if (Armed) Armed->InPlace = name == std::string("open") ? file : -1;
  return file;
}
}

namespace terramark {
namespace {

namespace fs = std::filesystem;

const std::set<int> Refusals{EACCES, EPERM, EROFS, EBUSY};
const std::set<std::string> Ways{"unnamed", "linkat", "renameat2", "link"};  // or a simpler one
const std::set<int> Inabilities{EACCES, EPERM, ENOTSUP};
constexpr const char* ListName = "system.posix_acl_access";
// The folder's files give a list: rw- to the owner, r-- to one user, --- to group and others.
constexpr char List[] =
    "\2\0\0\0\1\0\7\0\xff\xff\xff\xff\2\0\4\0\x57\4\0\0\4\0\0\0\xff\xff\xff\xff"
    "\x10\0\4\0\xff\xff\xff\xff\x20\0\0\0\xff\xff\xff\xff";

struct Scene {
  const char* Name;
  bool Old;
  std::map<std::string, int> Always;
};

std::string RightsOf(const fs::path& path) {
  struct stat status {};
  EXPECT_EQ(stat(path.c_str(), &status), 0);
  char list[100]{};
  getxattr(path.c_str(), ListName, list, sizeof list);
  return std::to_string(status.st_mode) + " " + std::to_string(status.st_gid) + " " +
         std::to_string(status.st_uid) + std::string(list, sizeof list);
}

class Saving : public LayoutFolder, public testing::WithParamInterface<Scene> {
 public:
  Saving() { setxattr(Folder.c_str(), "system.posix_acl_default", List, sizeof List - 1, 0); }
  void Prepare(Strike strike) {
    for (const auto& file : fs::directory_iterator(Folder)) fs::remove_all(file);
    Struck = std::move(strike);
    Struck.Rival = Map;
    if (!HasOld) return;
    Put("map", Old);
    [[maybe_unused]] const int asRoot = chown(Map.c_str(), 1234, 2345);
    if (!HasList) removexattr(Map.c_str(), ListName);
    EXPECT_EQ(chmod(Map.c_str(), 0640), 0);
    Rights = RightsOf(Map);
  }
  bool Save(const std::string& text) {
    Armed = &Struck;
    bool said = false;
    {
      files::SafeFile file(Map);
      const auto done = file.Open().and_then([&] { return file.Replace(text); });
      said = done.has_value();
      Kept = file.Kept();
      Why = done ? 0 : done.error().Error();
    }
    Armed = nullptr;
    return said;
  }
  /// Whether a save is to succeed all the same.
  bool Bearable() {
    const std::string& hit = Struck.Hit;
    const int error = Struck.Error;
    if (error == EINTR || hit == "folder" || hit == "close" || hit == "unlink") return true;
    if (hit == "getxattr" || hit == "fallocate") return error == ENOTSUP;
    if (Ways.contains(hit)) return Refusals.contains(error) || error == ENOTSUP;
    if (hit == "create" || hit == "rename") return HasOld && Refusals.contains(error);
    const bool rights = hit == "fchown" || hit == "fchmod" || hit.ends_with("xattr");
    return hit.empty() || (rights && Inabilities.contains(error));
  }

  const std::string Old = std::string(1200, 'o');
  const std::vector<std::string> Texts{std::string(700, 's'), std::string(1800, 'l')};
  const fs::path Map = Folder / "map";
  bool HasOld = true;
  bool HasList = true;
  Strike Struck;
  std::string Rights;
  fs::path Kept;
  int Why = 0;  // an errno
};

TEST_P(Saving, LosesNothingWhateverFails) {
  const auto& [name, hasOld, always] = GetParam();
  HasOld = hasOld;
  HasList = !always.contains("unnamed");
  const std::string before = HasOld ? Old : "";
  const bool closed = always.contains("create");
  const std::set<int> blows{EIO,   ENOSPC,  EDQUOT, EMFILE, EACCES,  EPERM,    EROFS,
                            EBUSY, ENOTSUP, EINTR,  Kill,   AllFail, SameFail, Rival};
  for (const std::string& text : Texts) {
    for (const int blow : blows) {
      if ((blow == Kill && text != Texts.back()) || (blow == Rival && HasOld)) continue;
      bool over = false;
      // A file that is there at the first call is no rival.
      for (int n = blow == Rival ? 1 : 0; !over; ++n) {
        Prepare({.At = n, .Error = blow, .Always = always});
        SCOPED_TRACE(std::to_string(n) + (blow > 0 ? strerror(blow) : std::to_string(blow)));
        bool said = false;
        if (blow == Kill) {
          const pid_t child = fork();
          if (child == 0) _exit(Save(text) ? 0 : 1);
          int status = 0;
          ASSERT_EQ(waitpid(child, &status, 0), child);
          over = WIFEXITED(status);
          ASSERT_TRUE(!over || WEXITSTATUS(status) == 0);
          said = BytesOf(Map) == text;
        } else {
          said = Save(text);
          over = Struck.Hit.empty();
          EXPECT_TRUE(blow < 0 || said == Bearable()) << Struck.Hit;
          const int error = blow == Rival ? EEXIST : blow > 0 ? blow : EIO;
          EXPECT_EQ(Why, said ? 0 : error);
        }
        EXPECT_TRUE(!over || Struck.Loose.empty()) << Struck.Loose;
        EXPECT_FALSE(Struck.Rash && (over || (blow > 0 && !said))) << Struck.Hit;
        const bool rival = Struck.Rival.empty();
        int litter = 0;
        bool whole = BytesOf(Map) == (rival ? "rival" : said ? text : before);
        for (const fs::path& file : fs::directory_iterator(Folder)) {
          // No file gives a right that the old one did not, at no moment.
          EXPECT_TRUE(!HasOld || Struck.Hit == "getxattr" || RightsOf(file) == Rights ||
                      (fs::status(file).permissions() & fs::perms(0077)) == fs::perms::none);
          if (file == Map) continue;
          ++litter;
          EXPECT_TRUE(file.filename().string().starts_with(".terramark-"));
          EXPECT_TRUE(!always.empty() || BytesOf(file) == text);
          if (blow < 0 && BytesOf(file) == text && (blow == Kill || Kept == file)) whole = true;
        }
        EXPECT_LE(litter, (blow < 0 && blow != Rival) || Struck.Hit == "unlink");
        EXPECT_TRUE(whole || (closed && blow < 0)) << Struck.Hit;
        // A bad spot that stops the new text stops the old one there too, but has it still.
        EXPECT_TRUE(Kept.empty() || BytesOf(Map) != before || Struck.Hit == "fsync");
        // An empty file may be left that has held the name.
        EXPECT_TRUE(fs::exists(Map) == (said || HasOld || rival) ||
                    (blow < 0 && always.contains("link")));
        EXPECT_TRUE(!HasOld || Struck.Hit == "getxattr" || RightsOf(Map) == Rights) << Struck.Hit;
        ASSERT_FALSE(HasFailure());
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    SafeFile, Saving,
    testing::Values(Scene{"Old", true, {}}, Scene{"New", false, {}},
                    Scene{"OldByName", true, {{"unnamed", EOPNOTSUPP}}},
                    Scene{"NewByName", false, {{"unnamed", EISDIR}}},
                    Scene{"OldWithoutProc", true, {{"linkat", ENOENT}}},
                    Scene{"NewWithoutProc", false, {{"linkat", ENOENT}}},
                    Scene{"NewByLink", false, {{"unnamed", EISDIR}, {"renameat2", EINVAL}}},
                    Scene{"NewBySimpleName",
                          false,
                          {{"unnamed", EISDIR}, {"renameat2", EINVAL}, {"link", EPERM}}},
                    Scene{"RightsFixed", true, {{"fchown", EPERM}, {"fchmod", ENOTSUP}}},
                    Scene{"OwnerFixed", true, {{"unnamed", ENOENT}, {"fchown", EPERM}}},
                    Scene{"FolderClosed", true, {{"unnamed", EACCES}, {"create", EACCES}}},
                    Scene{"NameRefused", true, {{"rename", EBUSY}}}),
    [](const auto& info) { return info.param.Name; });

TEST_F(Saving, FailsAtTheLimitOnTheSizeOfFiles) {
  for (const int closed : {0, EACCES}) {
    Prepare({.Always = {{"unnamed", closed}, {"create", closed}}});
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit lower{Old.size(), limit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &lower);
    EXPECT_FALSE(Save(Texts.back()));
    setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_EQ(BytesOf(Map), Old);
  }
}

TEST_F(Saving, CutsNoFileThatHasItsSize) {
  Prepare({.Always = {{"create", EACCES}, {"unnamed", EACCES}, {"ftruncate", EIO}}});
  EXPECT_FALSE(Save(Texts.front()));
  EXPECT_EQ(BytesOf(Map), Old);
  EXPECT_TRUE(Save(Texts.back()));
}

TEST_F(Saving, KeepsTheFileWhereItsGroupWouldLoseARight) {
  HasList = false;
  for (const mode_t mode : {0640, 0644, 0604}) {
    Prepare({.Always = {{"fchown", EPERM}}});
    if (chown(Map.c_str(), geteuid(), 2345) != 0) GTEST_SKIP() << "only root can give a group";
    EXPECT_EQ(chmod(Map.c_str(), mode), 0);
    fs::create_hard_link(Map, Folder / "link");
    EXPECT_TRUE(Save(Texts.back()));
    EXPECT_EQ(BytesOf(Folder / "link") == Texts.back(), mode != 0644) << mode;
    EXPECT_EQ(fs::status(Map).permissions(), fs::perms(mode));
  }
}

TEST_F(Saving, FollowsLinksToFilesOnly) {
  fs::create_directories(Folder / "inner/deep");
  Put("inner/real", "old");
  fs::permissions(Folder / "inner/real", fs::perms(0604));
  ASSERT_EQ(mkfifo((Folder / "fifo").c_str(), 0600), 0);
  const std::array<std::string, 3> links[]{{"inner/first", "deep/link", ""},
                                           {"inner/deep/link", Folder / "inner/deep/last", ""},
                                           {"inner/deep/last", "../real", ""},
                                           {"inner/new", "deep/fresh", ""},
                                           {"ping", "pong", "too many levels of symbolic links"},
                                           {"pong", "ping", "too many levels of symbolic links"},
                                           {"pipe", "fifo", "it is no plain file"},
                                           {"folder", "inner", "it is a folder"},
                                           {"lost", "nowhere/map", "no such file or directory"}};
  for (const auto& [link, to, why] : links) fs::create_symlink(to, Folder / link);
  for (const auto& [link, to, why] : links) {
    files::SafeFile file(Folder / link);
    const auto done = file.Open().and_then([&] { return file.Replace("new"); });
    EXPECT_EQ(done ? "" : done.error().Description(), why) << link;
    EXPECT_EQ(fs::read_symlink(Folder / link), to);
  }
  EXPECT_EQ(BytesOf(Folder / "inner/real"), "new");
  EXPECT_EQ(fs::status(Folder / "inner/real").permissions(), fs::perms(0604));
  EXPECT_EQ(BytesOf(Folder / "inner/deep/fresh"), "new");
}

TEST_F(Saving, SaysWhereTheMapIsKeptOnlyWhenTheFileIsDamaged) {
  const std::string fault = "Cannot write Map Layout File old.tml: input/output error";
  std::string message;
  for (int n = 0; message.find(';') == std::string::npos; ++n) {
    Prepare({.At = n, .Error = AllFail, .Always = {{"rename", EBUSY}}});
    AddPicture(TinyPicture);
    Put("old.tml", "old text");
    LoadBytes(Tiny);
    Form.Text1.Text = "";
    Armed = &Struck;
    FileNames = {"old.tml"};
    SaveCFG_MouseUp(Form);
    Armed = nullptr;
    ASSERT_FALSE(Struck.Hit.empty());
    message = Form.Message.Caption;
    EXPECT_EQ(message.substr(0, message.find(';')), fault);
    EXPECT_EQ(Form.Message.BackColor, ClrRed);
    EXPECT_EQ(Form.Text1.Text.Get(), "");
    EXPECT_EQ(Form.LayoutFile + Form.LoadMpa.Caption.Get(), "map.tmlmap.tml");
  }
  const std::string where = "; the old file is damaged, and the map is kept beside it in ";
  ASSERT_TRUE(message.starts_with(fault + where));
  const std::string kept = Folder.string() + "/" + message.substr((fault + where).size());
  EXPECT_EQ(BytesOf(kept), TinyWith({{1, "MAP Layout File"}}));
}

}  // namespace
}  // namespace terramark
