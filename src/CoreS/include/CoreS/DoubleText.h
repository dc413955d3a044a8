// The text that Swift's `Double.description` gives a value: the shortest digits that read
// back as the same double, in decimal form with at least one fractional digit ("24.0"), or in
// exponential form for tiny and huge magnitudes ("1e-05", "1.5e+20").
#pragma once

#include <string>

namespace CoreS {

std::string swiftDoubleDescription(double value);

}  // namespace CoreS
