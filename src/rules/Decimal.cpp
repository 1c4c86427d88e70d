#include "rules/Decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace QV_DOC_CONTROLS {
namespace {

void dropTrailingZeros(std::string &digits) { digits.erase(digits.find_last_not_of('0') + 1); }

} // namespace

Decimal::Decimal(double value)
{
    std::array<char, 32> buffer;                // d.ddddddddddddddddde-ddd
    const char *const text = buffer.data();
    const char *const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                          std::chars_format::scientific).ptr;
    const char *const exponent = std::find(text, end, 'e');
    digits.assign(text, size_t(exponent - text));
    std::erase(digits, '.');
    std::from_chars(exponent + (exponent[1] == '+' ? 2 : 1), end, point);
    ++point;
    dropTrailingZeros(digits);
    if (digits.empty()) point = 0;
}

void Decimal::roundTo(int decimals)
{
    const int kept = point + decimals;
    if (kept >= int(digits.size())) return;
    const bool up = kept >= 0 && digits[size_t(kept)] >= '5';
    digits.resize(size_t(std::max(kept, 0)));
    if (up) {
        const size_t last = digits.find_last_not_of('9');
        if (last == std::string::npos) digits.assign("1"), ++point;
        else ++digits[last], digits.resize(last + 1);
    }
    dropTrailingZeros(digits);
    if (digits.empty()) point = 0;
}

std::string Decimal::whole() const
{
    if (point <= 0) return {};
    std::string out = digits.substr(0, size_t(point));
    out.resize(size_t(point), '0');
    return out;
}

std::string Decimal::fraction() const
{
    if (point <= 0) return digits.empty() ? std::string() : std::string(size_t(-point), '0') + digits;
    return size_t(point) < digits.size() ? digits.substr(size_t(point)) : std::string();
}

} // namespace QV_DOC_CONTROLS
