#include "controls/input/TypingFilter.h"

#include <algorithm>

namespace QV_DOC_CONTROLS {

/// What came in stands before the cursor; it is what differs from the text before.
QValidator::State TypingFilter::validate(QString &text, int &cursor) const
{
    if (m_passing || text == m_before || text == m_shown) return m_before = text, Acceptable;
    const auto end = std::clamp<qsizetype>(cursor, 0, text.size());
    const QString behind = text.mid(end);
    const qsizetype kept = m_before.endsWith(behind) ? m_before.size() - behind.size() : 0;
    qsizetype same = 0;
    while (same < std::min(kept, end) && text[same] == m_before[same]) ++same;
    const TypedText typed = textTyped(m_input, {text.left(same), behind}, text.mid(same, end - same));
    m_dropped |= typed.dropped;
    text = text.left(same) + typed.text + behind;
    cursor = int(same + typed.text.size());
    m_before = text;
    return Acceptable;
}

} // namespace QV_DOC_CONTROLS
