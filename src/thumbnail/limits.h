// What a thumbnail may cost.
#pragma once

namespace terramark::thumbnail {

/// From now on the program ends by Refuse: after less than two seconds, whatever it waits for, and
/// when it takes more memory than the largest picture needs. Before any thread is started.
void LimitCost();

}  // namespace terramark::thumbnail
