#pragma once

#include "facade/contract_tests/Promise.h"

namespace ZolWDoc::contract {

/// Another value for one member; an identifier of something that is there where the member refers to it.
template <class Rec> struct MemberChange {
    const char *member;
    void (*change)(Rec &, ZOLW_Doc &);
};
/// A member whose values no two records share.
template <class Rec> struct UniqueMember {
    const char *member;
    void (*copy)(Rec &to, const Rec &from);
};

/// How to try one table: records made by rule, and rows for its members.
template <class Rec> struct Sample {
    const char *role;
    TableKind kind;
    qint16 Rec::*id;
    TableRole<Rec> &(*table)(ZOLW_Doc &);
    Rec (*make)(ZOLW_Doc &, int n);             ///< the n-th of any number of different ones, n from 1
    std::vector<MemberChange<Rec>> members;
    std::vector<UniqueMember<Rec>> unique;
};
template <class Rec> const Sample<Rec> &sample();
template <> const Sample<tLay> &sample();
template <> const Sample<tTxd> &sample();
template <> const Sample<tSid> &sample();
template <> const Sample<tPenStyle> &sample();
template <> const Sample<tPenStyleSi> &sample();
template <> const Sample<tPt> &sample();

/// The n-th sample record, stored; comes back as it must lie in the table now.
template <class Rec> Rec stored(ZOLW_Doc &doc, int n)
{
    Rec r = sample<Rec>().make(doc, n);
    r.*sample<Rec>().id = sample<Rec>().table(doc).add(r);
    return r;
}
/// An identifier that no record has.
template <class Rec> qint16 unusedId(ZOLW_Doc &doc)
{
    for (qint16 id = 32766; id > 0; --id)
        if (!sample<Rec>().table(doc).find(id)) return id;
    throw Broken(QStringLiteral("find answers to every identifier"));
}

} // namespace ZolWDoc::contract
