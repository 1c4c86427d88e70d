#pragma once

#include <string_view>
#include <vector>

namespace refhost {

/// What the texts of a drawing say about its unit: how high they are, and whether they give lengths in feet
/// and inches.
class LetteringClues {
public:
    void take(double height, std::string_view text);    ///< one text of the model or of a block
    double usualHeight() const;                         ///< the middle one, in drawing units; 0 = no texts
    /// Lengths such as 12'-6" stand in them, and not only once: such drawings are made in inches.
    bool givesFeetAndInches() const;
private:
    std::vector<double> m_heights;
    size_t m_lengths = 0;
};

} // namespace refhost
