#pragma once

#include "facade/contract/Records.h"
#include "facade/services/Text.h"

#include <QVariant>

#include <span>

/// How records lie in the document's tables: one row per column, in the order of the record's members.
namespace refhost {

template <class Rec> struct Field {
    const char *column;
    const char *type; ///< type and constraints; null = read only, `column` is an expression
    QVariant (*get)(const Rec &);
    void (*put)(Rec &, const QVariant &);
    bool (*same)(const Rec &, const Rec &);
};

/// A column whose values no two rows share, and what to say when one is already taken; the value follows the
/// text.
struct UniqueColumn {
    const char *column;
    QV_DOC_CONTROLS::Text taken;
};

/// Facts about one table; the first field is the identifier.
template <class Rec> struct TableFacts {
    ZolWDoc::TableKind kind;
    const char *table;
    qint16 Rec::*id;
    bool numbered; ///< the user's number is the identifier: a free one is taken as given
    std::span<const Field<Rec>> fields;
    std::span<const UniqueColumn> unique;
    QV_DOC_CONTROLS::Text unknown;          ///< "there is no such ...: ", the identifier follows
};

template <class Rec> const TableFacts<Rec> &factsOf();
template <> const TableFacts<ZolWDoc::tLay> &factsOf();
template <> const TableFacts<ZolWDoc::tTxd> &factsOf();
template <> const TableFacts<ZolWDoc::tSid> &factsOf();
template <> const TableFacts<ZolWDoc::tPenStyle> &factsOf();
template <> const TableFacts<ZolWDoc::tPenStyleSi> &factsOf();
template <> const TableFacts<ZolWDoc::tPt> &factsOf();

} // namespace refhost
