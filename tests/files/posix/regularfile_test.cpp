#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>

#include "files/regularfile.h"
#include "support/temporaryfolder.h"

namespace terramark::files {
namespace {

TEST(RegularFile, OpensNoPipeDeviceOrFileOfTheKernel) {
  const TemporaryFolder folder;
  const std::string pipe = folder.Path() / "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  for (const std::string& name :
       {pipe, std::string("/proc/self/status"), std::string("/dev/zero")}) {
    const auto opened = RegularFile::Open(name);
    EXPECT_EQ(opened ? "" : opened.error().Description(), "it is no plain file") << name;
  }
}

}  // namespace
}  // namespace terramark::files
