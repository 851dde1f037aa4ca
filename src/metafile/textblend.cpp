#include "metafile/textblend.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace terramark::metafile {
namespace {

/// Measured in pictures of metafiles as the system that they were made for draws them.
constexpr double Gamma = 2.33;

/// The weight of the brighter colour for each coverage by it, both 0 to 255.
std::array<int, 256> MakeWeights() {
  std::array<int, 256> weights{};
  for (std::size_t i = 0; i < weights.size(); ++i) {
    const double share = static_cast<double>(i) / 255;
    weights[i] = static_cast<int>(std::lround(255 * std::pow(share, 1 / Gamma)));
  }
  return weights;
}

int BlendChannel(int text, int ground, std::uint8_t coverage) {
  static const std::array<int, 256> weights = MakeWeights();
  const auto [dark, bright] = std::minmax(text, ground);
  const int byBright = text > ground ? coverage : 255 - coverage;
  return dark + ((bright - dark) * weights[static_cast<std::size_t>(byBright)] + 127) / 255;
}

}  // namespace

QRgb BlendText(QRgb text, QRgb ground, std::uint8_t coverage) {
  return qRgb(BlendChannel(qRed(text), qRed(ground), coverage),
              BlendChannel(qGreen(text), qGreen(ground), coverage),
              BlendChannel(qBlue(text), qBlue(ground), coverage));
}

}  // namespace terramark::metafile
