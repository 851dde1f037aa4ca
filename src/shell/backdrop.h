// The backdrop picture in its box.
#pragma once

#include <string>
#include <tl/expected.hpp>

namespace terramark {

struct Form1;

/// No value, or the reason why a picture cannot be shown: a text to stand after a colon.
using ShowResult = tl::expected<void, std::string>;

/// Reads a picture and puts it into Picture1: a bitmap in its own size, a metafile drawn into the
/// whole box. The empty path empties the box. A red message about an earlier picture or its name is
/// cleared. If the file cannot be read, also for lack of memory, nothing changes.
ShowResult ShowPicture(Form1& form, const std::string& path);

/// The same for another picture than the present one: it is shown in its actual size.
ShowResult ShowNewPicture(Form1& form, const std::string& path);

/// Reports in red that a picture cannot be read, and why.
void ShowPictureFault(Form1& form, const std::string& path, const std::string& fault);

/// Reports in red that a Map Layout cannot hold a picture's name.
void ShowNameFault(Form1& form, const std::string& name);

}  // namespace terramark
