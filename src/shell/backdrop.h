// The backdrop picture in its box.
#pragma once

#include <string>
#include <tl/expected.hpp>

namespace terramark {

struct Form1;

/// Nothing, or why a picture cannot be shown: words that stand behind a colon.
using ShowResult = tl::expected<void, std::string>;

/// Reads a picture and puts it into Picture1: a bitmap at its own size, a metafile drawn into the
/// whole box; the empty path empties the box. A red text about an earlier picture or its name goes
/// off the bar. Where the file cannot be read, for want of memory too, nothing has changed.
ShowResult ShowPicture(Form1& form, const std::string& path);

/// Likewise another picture than the one that was shown, which begins at its actual size.
ShowResult ShowNewPicture(Form1& form, const std::string& path);

/// Says in red that a picture cannot be read, and why.
void ShowPictureFault(Form1& form, const std::string& path, const std::string& fault);

/// Says in red that a picture's name cannot stand in a Map Layout.
void ShowNameFault(Form1& form, const std::string& name);

}  // namespace terramark
