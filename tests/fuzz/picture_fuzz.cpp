// Feeds arbitrary bytes to the picture loader: no input may crash it, hang it or make it allocate
// without bound.
#include <QGuiApplication>
#include <cstddef>
#include <cstdint>

#include "pictures/pictureloader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static int argc = 1;
  static char name[] = "picture_fuzz";
  static char* argv[] = {name, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static const QGuiApplication application(argc, argv);
  terramark::pictures::LoadPictureBytes({reinterpret_cast<const char*>(data), size}, 120, 80);
  return 0;
}
