// What Validate Map costs on a large map that passes, from the press on its button to the end of
// the repaint: in CPU, as a multiple of a pass, which reads and writes each pixel of the picture
// once.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <cstdio>

#include "editor/backdroppress.h"
#include "floodmaps.h"
#include "forms/geometry.h"
#include "gridmap.h"
#include "largemap.h"
#include "processes.h"
#include "samples.h"
#include "shell/colours.h"
#include "window/appstyle.h"

namespace terramark {
namespace {

constexpr int Side = 4096;
constexpr int Rounds = 25;

/// A picture of 96 lands and its bitmap file, in a temporary folder that is deleted with it.
struct LandsBitmap {
  LandsBitmap() {
    const QImage image(reinterpret_cast<const uchar*>(Map.Picture.Pixels.data()), Side, Side,
                       QImage::Format_RGB32);
    if (!image.save(Path)) qFatal("cannot write %s", qPrintable(Path));
  }

  const FloodMap Map = LandsMap(Side, Side);
  const QTemporaryDir Folder;
  const QString Path = Folder.filePath("lands.bmp");
};

/// Puts the fill point of each Area into a land.
void LoadMap(Form1& form, const LandsBitmap& bitmap) {
  MakeGridMap(form);
  form.PictureFile = bitmap.Path.toStdString();
  const ShowResult shown = ShowPicture(form, form.PictureFile);
  if (!shown) qFatal("cannot show the lands: %s", shown.error().c_str());
  for (std::int16_t i = 1; i <= form.AreaCount; ++i) {
    const forms::PixelPoint seed = bitmap.Map.Seeds.at(static_cast<std::size_t>(i - 1));
    form.AreaCorner(i) = 0;
    form.ArmyAt(i).Move(static_cast<float>(seed.X), static_cast<float>(seed.Y));
  }
}

double CpuOf(const std::function<void()>& act) {
  const double begin = CpuSeconds();
  act();
  return CpuSeconds() - begin;
}

void Pass(forms::Raster& raster) {
  for (std::uint32_t& pixel : raster.Pixels) pixel ^= 0x00010203U;
  benchmark::DoNotOptimize(raster.Pixels.data());
  benchmark::ClobberMemory();
}

void Run(int argc, char** argv) {
  QApplication application(argc, argv);
  window::InstallStyle(application);
  ShownEditor editor;
  Form1& form = editor.Form;
  const LandsBitmap bitmap;
  LoadMap(form, bitmap);
  forms::Raster raster = bitmap.Map.Picture;
  const forms::PixelPoint button = CentreOnForm(form.Cvalid);
  Samples validate;
  Samples pass;
  for (int i = 0; i < Rounds; ++i) {
    // A press on the bare picture removes the paint of the round before.
    Picture1_MouseUp(form, {0, forms::LeftButton, 0, 5, 5});
    Repaint(editor.Window);
    pass.Add(CpuOf([&] { Pass(raster); }));
    validate.Add(CpuOf([&] {
      form.Pointer.Press(button.X, button.Y, forms::LeftButton, 0);
      form.Pointer.Release(button.X, button.Y, forms::LeftButton, 0);
      Repaint(editor.Window);
    }));
    const forms::Raster image = form.Picture1.Image();
    for (const forms::PixelPoint seed : bitmap.Map.Seeds) {
      if (image.Pixels[image.IndexOf(seed.X, seed.Y)] != forms::PixelOf(ClrRed)) {
        qFatal("the map is not painted");
      }
    }
  }
  std::printf("%-40s a pass %.2f ms   press to repaint %.2f ms, %.2f passes\n",
              "Validate Map, 4096 x 4096, 96 Areas", 1000 * pass.Median(), 1000 * validate.Median(),
              validate.Median() / pass.Median());
}

}  // namespace
}  // namespace terramark

int main(int argc, char** argv) {
  terramark::Run(argc, argv);
  return 0;
}
