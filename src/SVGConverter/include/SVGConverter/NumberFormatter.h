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

  // Nothing when ICU is needed but could not build the formatter or format the value; the
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
  // Opening an ICU format costs more than a whole small document's conversion, and the faster
  // road serves nearly every number, so the format is opened on first need.
  UNumberFormat* icuFormat() const;

  mutable std::unique_ptr<UNumberFormat, Close> format_;
  mutable bool opened_ = false;
  int maximumFractionDigits_ = 0;
  bool useThousandsSeparator_ = false;
};

}  // namespace SVGConverter
