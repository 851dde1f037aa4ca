#include "paint/cp1252.h"

#include <gtest/gtest.h>

#include "document/codepage.h"

namespace terramark::paint {
namespace {

TEST(Cp1252, EveryByteGoesRoundAndOnlyWhatItLacksIsLost) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  EXPECT_EQ(ToCp1252(FromCp1252(all)), all);
  EXPECT_EQ(ToUtf8(all), FromCp1252(all).toStdString());
  EXPECT_EQ(FromCp1252("\x80\x9F\xA0\x81"), QStringLiteral("\u20AC\u0178\u00A0\u0081"));
  EXPECT_EQ(ToCp1252(QStringLiteral("\u0080\u0100\U0001F600")), "???");
}

TEST(Cp1252, LongTextsComposeInPiecesAsTheyDoWhole) {
  // The lead moves the seams over every place in a syllable.
  for (const char16_t* syllable : {u"e\u0323\u0302", u"\u1112\u1161\u11AB"}) {
    for (const char* lead : {"", "x", "xx"}) {
      const QString text = lead + QString::fromUtf16(syllable).repeated(300);
      EXPECT_EQ(ComposedForm(text), text.normalized(QString::NormalizationForm_C));
    }
  }
  const QString marks(2000, QChar(0x0301));
  EXPECT_EQ(ComposedForm("e" + marks), QChar(0xE9) + marks.chopped(1));
}

}  // namespace
}  // namespace terramark::paint
