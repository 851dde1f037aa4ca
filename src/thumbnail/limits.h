// The limits on a thumbnail's time and memory.
#pragma once

namespace terramark::thumbnail {

/// From now on the program ends by Refuse after almost two seconds, even while it waits, and when
/// it uses more memory than the largest picture needs. To be called before any thread is started.
void LimitCost();

}  // namespace terramark::thumbnail
