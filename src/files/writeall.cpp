#include "files/writeall.h"

#include "files/openfile.h"

namespace terramark::files {

Written WriteAll(FileNumber file, std::string_view text) {
  Written done;
  while (done.Bytes < text.size()) {
    const auto written = WriteSome(file, done.Bytes, text.substr(done.Bytes));
    if (!written) done.Error = written.error().Error();
    if (written && *written == 0) done.Error = InputOutputError;
    if (done.Error != 0) break;
    done.Bytes += *written;
  }
  return done;
}

}  // namespace terramark::files
