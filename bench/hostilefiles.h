// Metafiles that each ask for as much work as the format allows, in different ways.
#pragma once

#include <QByteArray>
#include <vector>

namespace terramark {

struct HostileFile {
  const char* What;
  QByteArray Bytes;
};

/// They cover 1000 x 1000 units, and are meant for a box of 546 x 308 pixels.
std::vector<HostileFile> HostileFiles();

}  // namespace terramark
