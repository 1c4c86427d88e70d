#include "import/LetteringClues.h"

#include <algorithm>

namespace refhost {
namespace {

constexpr size_t kEnough = 3;           // lengths in feet and inches; one may stand in a remark

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// 12'-6": the mark of feet and the dash between two digits. Minutes of an angle have no dash.
bool hasFeetAndInches(std::string_view text)
{
    for (size_t at = text.find("'-"); at != std::string_view::npos; at = text.find("'-", at + 1))
        if (at > 0 && at + 2 < text.size() && isDigit(text[at - 1]) && isDigit(text[at + 2])) return true;
    return false;
}

} // namespace

void LetteringClues::take(double height, std::string_view text)
{
    if (height > 0) m_heights.push_back(height);
    m_lengths += hasFeetAndInches(text);
}

double LetteringClues::usualHeight() const
{
    if (m_heights.empty()) return 0;
    std::vector<double> heights = m_heights;
    const auto middle = heights.begin() + std::ptrdiff_t(heights.size() / 2);
    std::ranges::nth_element(heights, middle);
    return *middle;
}

bool LetteringClues::givesFeetAndInches() const { return m_lengths >= kEnough; }

} // namespace refhost
