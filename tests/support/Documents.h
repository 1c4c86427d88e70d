#pragma once

#include "facade/contract/ZOLW_Doc.h"

#include <utility>
#include <vector>

namespace tests {

/// Open documents with their names.
struct Documents final : ZolWDoc::DocumentList {
    std::vector<std::pair<ZolWDoc::ZOLW_Doc *, QString>> all;
    Documents(std::initializer_list<std::pair<ZolWDoc::ZOLW_Doc *, QString>> docs) : all(docs) {}
    int count() const override { return int(all.size()); }
    ZolWDoc::ZOLW_Doc *item(int i) override { return all[size_t(i)].first; }
    QString name(int i) const override { return all[size_t(i)].second; }
};

} // namespace tests
