#include "peers.h"

#ifdef TERRAMARK_PEER_GD
#include <gd.h>
#endif
#ifdef TERRAMARK_PEER_OPENCV
#include <opencv2/imgproc.hpp>
#endif

#include <pthread.h>

#include <cstddef>
#include <cstdlib>
#include <memory>

namespace terramark {

#ifdef TERRAMARK_PEER_GD

namespace {

std::function<void()> PrepareGd(const FloodMap& map, std::uint32_t brush) {
  const forms::Raster& picture = map.Picture;
  const std::shared_ptr<gdImage> image(gdImageCreateTrueColor(picture.Width, picture.Height),
                                       gdImageDestroy);
  for (int y = 0; y < picture.Height; ++y) {
    for (int x = 0; x < picture.Width; ++x) {
      image->tpixels[y][x] = static_cast<int>(picture.Pixels[picture.IndexOf(x, y)] & 0xFFFFFFU);
    }
  }
  return [image, &map, colour = static_cast<int>(brush & 0xFFFFFFU)] {
    for (const forms::PixelPoint seed : map.Seeds) {
      gdImageFillToBorder(image.get(), seed.X, seed.Y, 0, colour);
    }
  };
}

}  // namespace

#endif
#ifdef TERRAMARK_PEER_OPENCV

namespace {

std::function<void()> PrepareOpenCv(const FloodMap& map, std::uint32_t brush) {
  // It stops at any other colour; all but the border is of one colour here.
  const auto raster = std::make_shared<forms::Raster>(map.Picture);
  return [raster, &map, brush] {
    cv::Mat image(raster->Height, raster->Width, CV_32SC1, raster->Pixels.data());
    for (const forms::PixelPoint seed : map.Seeds) {
      if (raster->Pixels[raster->IndexOf(seed.X, seed.Y)] == brush) continue;
      cv::floodFill(image, {seed.X, seed.Y}, cv::Scalar(static_cast<std::int32_t>(brush)), nullptr,
                    {}, {}, 4);
    }
  };
}

}  // namespace

#endif

std::vector<Peer> Peers() {
  return {
#ifdef TERRAMARK_PEER_GD
      {"libgd", PrepareGd},
#endif
#ifdef TERRAMARK_PEER_OPENCV
      {"opencv", PrepareOpenCv},
#endif
  };
}

void OnDeepStack(std::function<void()> act) {
  constexpr std::size_t StackBytes = std::size_t{2} << 30U;
  pthread_attr_t attributes;
  pthread_t thread;
  const auto run = [](void* given) -> void* {
    (*static_cast<std::function<void()>*>(given))();
    return nullptr;
  };
  if (pthread_attr_init(&attributes) != 0 ||
      pthread_attr_setstacksize(&attributes, StackBytes) != 0 ||
      pthread_create(&thread, &attributes, run, &act) != 0) {
    std::abort();
  }
  pthread_join(thread, nullptr);
  pthread_attr_destroy(&attributes);
}

}  // namespace terramark
