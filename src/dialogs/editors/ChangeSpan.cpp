#include "dialogs/editors/ChangeSpan.h"

#include "kit/ask/ErrorRelay.h"

#include <utility>

namespace QV_DOC_CONTROLS {

ChangeSpan::~ChangeSpan()
{
    ErrorRelay::tryQuietly([this] { commit(); });
}

void ChangeSpan::begin()
{
    ZolWDoc::ChangeScopeRole *const scopes = m_doc.changeScopes();
    if (m_open || !scopes || scopes->changesOpen(m_kind)) return;
    scopes->beginChanges(m_kind);
    m_open = true;
}

void ChangeSpan::commit()
{
    if (m_open) m_doc.changeScopes()->commitChanges(m_kind);
    m_kept = m_kept || m_changed;
    m_open = m_changed = false;
}

void ChangeSpan::discard()
{
    m_changed = false;
    if (std::exchange(m_open, false))
        m_doc.changeScopes()->discardChanges(m_kind); // refused for good, even if it fails
}

} // namespace QV_DOC_CONTROLS
