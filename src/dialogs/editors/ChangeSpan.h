#pragma once

#include "facade/contract/ZOLW_Doc.h"

namespace QV_DOC_CONTROLS {

/// What the user of a manager has changed in one table since the last commit. It can be dropped when the
/// document offers change scopes and nobody else has one open; otherwise every change stays at once.
///
/// What is still open when it goes is kept, also after a commit that failed. What the user refused is never
/// committed: when the document fails to drop it, its span stays open there.
class ChangeSpan {
public:
    ChangeSpan(ZolWDoc::ZOLW_Doc &doc, ZolWDoc::TableKind kind) : m_doc(doc), m_kind(kind) {}
    ~ChangeSpan();
    ChangeSpan(const ChangeSpan &) = delete;
    ChangeSpan &operator=(const ChangeSpan &) = delete;

    void begin();                     ///< before anything is written; throws the document's error
    void note() { m_changed = true; } ///< something was written
    bool isChanged() const { return m_changed; }
    bool isKept() const { return m_kept; } ///< a change was committed
    bool canDiscard() const { return m_open; }
    void commit(); ///< both throw the document's error
    void discard();

private:
    ZolWDoc::ZOLW_Doc &m_doc;
    ZolWDoc::TableKind m_kind;
    bool m_open = false, m_changed = false, m_kept = false;
};

} // namespace QV_DOC_CONTROLS
