// Feeds arbitrary bytes to the picture loader: no input may crash it, hang it or make it allocate
// without bound. Of a metafile, one record is then played many times over.
#include <QGuiApplication>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "metafile/metafilereader.h"
#include "pictures/pictureloader.h"

namespace terramark {
namespace {

void Load(std::string_view bytes) {
  pictures::LoadPictureBytes(bytes, 120, 80);
}

/// Where each record begins, and where the last one ends.
std::vector<std::size_t> RecordsOf(const metafile::Metafile& read, const char* bytes) {
  std::vector<std::size_t> places;
  for (const metafile::MetafileRecord& record : read.Records) {
    constexpr std::ptrdiff_t HeadBytes = 6;
    const std::ptrdiff_t at = record.Parameters.data() - HeadBytes - bytes;
    if (places.empty()) places.push_back(static_cast<std::size_t>(at));
    places.push_back(static_cast<std::size_t>(at + HeadBytes + record.Parameters.size()));
  }
  return places;
}

/// One file in sixteen, to leave time for the others; its bytes say which record.
void LoadWithARecordRepeated(std::string_view bytes) {
  const QByteArrayView view(bytes.data(), static_cast<qsizetype>(bytes.size()));
  const auto read = metafile::ReadMetafile(view);
  if (!read) return;
  const std::vector<std::size_t> places = RecordsOf(*read, bytes.data());
  if (places.size() < 2) return;
  std::size_t sum = 0;
  for (const char byte : bytes) sum = sum * 31 + static_cast<unsigned char>(byte);
  if (sum % 16 != 0) return;
  const std::size_t record = sum / 16 % (places.size() - 1);
  const std::size_t begin = places[record];
  const std::string_view piece = bytes.substr(begin, places[record + 1] - begin);
  std::string many(bytes.substr(0, begin));
  for (std::size_t left = 100'000 / (piece.size() + 20); left > 0; --left) many += piece;
  Load(many.append(bytes.substr(begin)));
}

}  // namespace
}  // namespace terramark

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static int argc = 1;
  static char name[] = "picture_fuzz";
  static char* argv[] = {name, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static const QGuiApplication application(argc, argv);
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  terramark::Load(bytes);
  terramark::LoadWithARecordRepeated(bytes);
  return 0;
}
