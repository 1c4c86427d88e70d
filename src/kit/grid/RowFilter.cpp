#include "kit/grid/RowFilter.h"

#include <algorithm>

namespace QV_DOC_CONTROLS {

void RowFilter::reset(int rows, Fold fold)
{
    m_fold = std::move(fold);
    refill(rows);
}

void RowFilter::refill(int rows)
{
    m_rows = rows;
    m_texts = {}, m_ends = {};
    m_edited.clear();
}

bool RowFilter::prepare(int rows)
{
    const int end = std::min(int(m_ends.size()) + rows, m_rows);
    m_ends.reserve(size_t(m_rows));
    for (int row = int(m_ends.size()); row < end; ++row) {
        m_folder.clear();
        m_fold(row, m_folder);
        m_texts += m_folder.row();
        m_ends.push_back(quint32(m_texts.size()));
    }
    if (end == m_rows && m_texts.capacity() > m_texts.size() * 9 / 8) m_texts.shrink_to_fit();
    return end == m_rows;
}

std::string_view RowFilter::folded(int row)
{
    for (const auto &[edited, text] : m_edited)
        if (edited == row) return text;
    const size_t begin = row ? m_ends[size_t(row) - 1] : 0;
    return std::string_view(m_texts).substr(begin, m_ends[size_t(row)] - begin);
}

void RowFilter::rowEdited(int row)
{
    constexpr size_t kMany = 64;
    if (row >= int(m_ends.size())) return;                  // not folded yet
    if (m_edited.size() >= kMany) return refill(m_rows);
    m_folder.clear();
    m_fold(row, m_folder);
    const auto known = std::ranges::find(m_edited, row, &std::pair<int, std::string>::first);
    if (known != m_edited.end()) known->second = m_folder.row();
    else m_edited.emplace_back(row, m_folder.row());
}

std::vector<bool> RowFilter::fitting(const FilterRule &rule)
{
    if (rule.isEmpty()) return {};
    prepare(m_rows);
    std::vector<bool> fit(static_cast<size_t>(m_rows));
    size_t begin = 0;
    const std::string_view all = m_texts;
    for (size_t row = 0; row < fit.size(); begin = m_ends[row++])
        fit[row] = rule.fits(all.substr(begin, m_ends[row] - begin));
    for (const auto &[row, text] : m_edited) fit[size_t(row)] = rule.fits(text);
    return fit;
}

bool RowFilter::fits(int row, const FilterRule &rule)
{
    if (rule.isEmpty()) return true;
    prepare(m_rows);
    return rule.fits(folded(row));
}

} // namespace QV_DOC_CONTROLS
