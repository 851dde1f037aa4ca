// A folder of the test's own, which goes with it.
#pragma once

#include <filesystem>
#include <random>
#include <string>
#include <system_error>

namespace terramark {

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::random_device draw;
    do {
      path_ = std::filesystem::temp_directory_path() / ("terramark" + std::to_string(draw()));
    } while (!std::filesystem::create_directory(path_));
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace terramark
