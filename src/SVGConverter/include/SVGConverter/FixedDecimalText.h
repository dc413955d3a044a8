// Fixed-point text of a double without ICU, for the number formatter's common case. It rounds
// the shortest round-trip digits of the value (not its exact binary expansion) half-even, as
// ICU's decimal format does, so "2.675" with two fraction digits gives "2.68".
#pragma once

#include <string>

namespace SVGConverter {

// The largest fraction-digit limit the fast text is checked against the ICU formatter for;
// larger limits go to ICU.
inline constexpr int largestFastFractionDigits = 13;

// Appends `value` with at most `maximumFractionDigits` fraction digits, trailing fraction zeros
// dropped, at least one integer digit, no grouping and a "-" for every negative sign (also on
// -0 and on negatives that round to zero). Returns false, appending nothing, for NaN, the
// infinities and limits outside 0...largestFastFractionDigits.
bool appendFixedDecimal(std::string& out, double value, int maximumFractionDigits);

// The longest text `writeFixedDecimalQuickly` writes.
inline constexpr int maximumQuickLength = 40;

// The same text written at `out` for the values that need no digit generation (nearly all
// that a drawing holds); nullptr, with nothing written, for the others and for NaN and the
// infinities. Returns the end of the text.
char* writeFixedDecimalQuickly(char* out, double value, int maximumFractionDigits);

}  // namespace SVGConverter
