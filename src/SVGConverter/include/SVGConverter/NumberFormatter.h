// The formatter behind every number of the generated text: a style-less ICU decimal format
// ("#"), "." as decimal separator whatever the locale, no grouping, a fixed limit of fraction
// digits and ICU's default half-even rounding. The usual limits take a faster road that gives
// the same text (see FixedDecimalText.h); ICU stays for everything else.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include <unicode/unum.h>

namespace SVGConverter {

class NumberFormatter {
 public:
  NumberFormatter(int maximumFractionDigits, bool useThousandsSeparator);

  // Nothing when ICU could not build the formatter or could not format the value; the
  // caller falls back to plain double text then.
  std::optional<std::string> format(double value) const;
  // The same text appended to `out`; false, with `out` untouched, where `format` gives nothing.
  bool appendTo(std::string& out, double value) const;
  // Always through ICU: the reference the faster road is compared with.
  std::optional<std::string> formatWithICU(double value) const;

 private:
  struct Close {
    void operator()(UNumberFormat* format) const { unum_close(format); }
  };
  std::unique_ptr<UNumberFormat, Close> format_;
  int maximumFractionDigits_ = 0;
};

}  // namespace SVGConverter
