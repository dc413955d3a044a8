#include "SVGConverter/NumberFormatter.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "SVGConverter/FixedDecimalText.h"

#include <unicode/ustring.h>

namespace SVGConverter {

namespace {

// ICU refuses larger limits; a setting from a file is taken unchecked, so it is clamped here.
constexpr int largestFractionDigits = 340;

void setSymbol(UNumberFormat* format, UNumberFormatSymbol symbol, const UChar* text,
               UErrorCode& status) {
  unum_setSymbol(format, symbol, text, -1, &status);
}

}  // namespace

NumberFormatter::NumberFormatter(int maximumFractionDigits, bool useThousandsSeparator)
    : maximumFractionDigits_(std::clamp(maximumFractionDigits, 0, largestFractionDigits)),
      useThousandsSeparator_(useThousandsSeparator) {}

UNumberFormat* NumberFormatter::icuFormat() const {
  if (opened_) return format_.get();
  opened_ = true;
  UErrorCode status = U_ZERO_ERROR;
  static const UChar pattern[] = {u'#', 0};
  format_.reset(unum_open(UNUM_PATTERN_DECIMAL, pattern, -1, "en_US_POSIX", nullptr, &status));
  if (U_FAILURE(status)) {
    format_.reset();
    return nullptr;
  }
  UNumberFormat* format = format_.get();
  setSymbol(format, UNUM_DECIMAL_SEPARATOR_SYMBOL, u".", status);
  // The generated language's digit separator. The formatter never groups, so it only names
  // the separator: 1234.5 stays "1234.5".
  if (useThousandsSeparator_) setSymbol(format, UNUM_GROUPING_SEPARATOR_SYMBOL, u"_", status);
  unum_setAttribute(format, UNUM_GROUPING_USED, 0);
  // "#" alone would print 0.5 as ".5", which the generated language does not accept.
  unum_setAttribute(format, UNUM_MIN_INTEGER_DIGITS, 1);
  unum_setAttribute(format, UNUM_MIN_FRACTION_DIGITS, 0);
  unum_setAttribute(format, UNUM_MAX_FRACTION_DIGITS, maximumFractionDigits_);
  unum_setAttribute(format, UNUM_ROUNDING_MODE, UNUM_ROUND_HALFEVEN);
  if (U_FAILURE(status)) format_.reset();
  return format_.get();
}

std::optional<std::string> NumberFormatter::format(double value) const {
  std::string text;
  if (!appendTo(text, value)) return std::nullopt;
  return text;
}

bool NumberFormatter::appendTo(std::string& out, double value) const {
  if (appendFixedDecimal(out, value, maximumFractionDigits_)) return true;
  auto text = formatWithICU(value);
  if (!text) return false;
  out += *text;
  return true;
}

std::optional<std::string> NumberFormatter::formatWithICU(double value) const {
  UNumberFormat* format = icuFormat();
  if (!format) return std::nullopt;
  std::vector<UChar> buffer(64);
  UErrorCode status = U_ZERO_ERROR;
  int32_t length = unum_formatDouble(format, value, buffer.data(),
                                     static_cast<int32_t>(buffer.size()), nullptr, &status);
  if (status == U_BUFFER_OVERFLOW_ERROR) {
    buffer.resize(static_cast<std::size_t>(length) + 1);
    status = U_ZERO_ERROR;
    length = unum_formatDouble(format, value, buffer.data(), static_cast<int32_t>(buffer.size()),
                               nullptr, &status);
  }
  if (U_FAILURE(status)) return std::nullopt;

  std::string text(static_cast<std::size_t>(length) * 3 + 1, '\0');
  int32_t written = 0;
  status = U_ZERO_ERROR;
  u_strToUTF8(text.data(), static_cast<int32_t>(text.size()), &written, buffer.data(), length,
              &status);
  if (U_FAILURE(status)) return std::nullopt;
  text.resize(static_cast<std::size_t>(written));
  return text;
}

}  // namespace SVGConverter
