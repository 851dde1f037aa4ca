// Libraries that flood too, to compare with, each where it was found when this was built.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "floodmaps.h"

namespace terramark {

struct Peer {
  std::string Name;
  /// Gives the flooding of a fresh copy of a map from all its seeds by a brush, ready to be timed.
  std::function<void()> (*Prepare)(const FloodMap& map, std::uint32_t brush);
};

std::vector<Peer> Peers();

/// Runs it on a stack that holds a recursion along a winding corridor, which a peer makes.
void OnDeepStack(std::function<void()> act);

}  // namespace terramark
