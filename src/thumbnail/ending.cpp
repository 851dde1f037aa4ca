#include "thumbnail/ending.h"

#include <unistd.h>

namespace terramark::thumbnail {

void Refuse(std::string_view why) {
  using namespace std::string_view_literals;
  for (const std::string_view part : {"terramark-thumbnail: "sv, why, "\n"sv}) {
    (void)!write(STDERR_FILENO, part.data(), part.size());
  }
  _exit(NoThumbnail);
}

}  // namespace terramark::thumbnail
