// Metafiles that ask for as much as their format allows, a kind for each way of being dear.
#pragma once

#include <QByteArray>
#include <vector>

namespace terramark {

struct HostileFile {
  const char* What;
  QByteArray Bytes;
};

/// Each is drawn for a box of 546 x 308 pixels, its 1000 units each way.
std::vector<HostileFile> HostileFiles();

}  // namespace terramark
