#pragma once

#include <QString>

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace QV_DOC_CONTROLS {

/// What the filter line says, as a rule over one row's cells.
///
/// Words are AND-ed; each must be part of some cell. A word with * or ? describes a whole cell, "-word"
/// excludes, "caption:word" looks in one column (a unique beginning of its caption will do), quotes hold
/// blanks together. Case never counts; accents count in words that have some.
class FilterRule {
public:
    FilterRule() = default;
    FilterRule(QStringView typed, std::span<const QString> captions);
    bool isEmpty() const { return m_terms.empty(); }    ///< everything fits
    bool fits(std::string_view row) const; ///< as foldedRow() has it, cells in the order of the captions

    /// Appends a cell of a row. What is `quiet` is found only by "caption:word", as the state of a check box.
    class RowFolder {
    public:
        void add(QStringView cell, bool quiet = false);
        std::string_view row();                         ///< until the next clear()
        void clear();
    private:
        std::string m_bare, m_exact;
        bool m_accented = false;
    };

private:
    struct Term {
        std::string text;
        int column = -1;                                ///< -1 = any
        bool excluded = false, exact = false, wild = false;
    };
    void add(QStringView token, std::span<const QString> captions);
    static bool fits(const Term &term, std::string_view cells);
    std::vector<Term> m_terms;
};

} // namespace QV_DOC_CONTROLS
