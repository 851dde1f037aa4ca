#include "metafile/symbolencoding.h"

#include <string_view>

namespace terramark::metafile {
namespace {

/// The characters from 0x20 and from 0xA0, sixteen in a row.
constexpr std::u16string_view Lower =
    u" !∀#∃%&∋()∗+,−./"
    u"0123456789:;<=>?"
    u"≅ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟ"
    u"ΠΘΡΣΤΥςΩΞΨΖ[∴]⊥_"
    u"‾αβχδεφγηιϕκλμνο"
    u"πθρστυϖωξψζ{|}∼\uFFFD";
constexpr std::u16string_view Upper =
    u"€ϒ′≤⁄∞ƒ♣♦♥♠↔←↑→↓"
    u"°±″≥×∝∂•÷≠≡≈…⏐⎯↵"
    u"ℵℑℜ℘⊗⊕∅∩∪⊃⊇⊄⊂⊆∈∉"
    u"∠∇®©™∏√⋅¬∧∨⇔⇐⇑⇒⇓"
    u"◊〈®©™∑⎛⎜⎝⎡⎢⎣⎧⎨⎩⎪"
    u"\uFFFD〉∫⌠⎮⌡⎞⎟⎠⎤⎥⎦⎫⎬⎭\uFFFD";
constexpr std::size_t Row = 16;
static_assert(Lower.size() == 6 * Row && Upper.size() == 6 * Row);

struct Plainer {
  char16_t Symbol;
  char16_t Letter;
};

constexpr Plainer Plainers[] = {
    {u'∗', u'*'}, {u'∼', u'~'},  {u'⋅', u'·'},  {u'ϑ', u'θ'}, {u'ϒ', u'Υ'}, {u'ϕ', u'φ'},
    {u'∅', u'Ø'}, {u'〈', u'‹'}, {u'〉', u'›'}, {u'⏐', u'│'}, {u'⎯', u'─'},
};

}  // namespace

char16_t DecodeSymbol(unsigned char byte) {
  if (byte >= 0xA0) return Upper[byte - 0xA0u];
  return byte >= 0x20 && byte < 0x80 ? Lower[byte - 0x20u] : u'\uFFFD';
}

char16_t PlainerLetter(char16_t symbol) {
  for (const Plainer& plainer : Plainers) {
    if (plainer.Symbol == symbol) return plainer.Letter;
  }
  return 0;
}

}  // namespace terramark::metafile
