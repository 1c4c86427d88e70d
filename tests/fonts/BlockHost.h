#pragma once

#include "facade/contract/HostServices.h"
#include "facade/services/Services.h"

#include <stdexcept>

namespace tests {

/// A host with one vector font of three characters: a cross at 33, a dot at 200 and a line at 40000. It
/// counts how often a character is asked for, and fails when it is told to.
class BlockHost final : public ZolWDoc::HostServices,
                        public ZolWDoc::VectorFontProvider,
                        public ZolWDoc::VectorFont {
public:
    BlockHost() { QV_DOC_CONTROLS::setHostServices(this); }
    ~BlockHost() override { QV_DOC_CONTROLS::setHostServices(nullptr); }
    bool fails = false;
    QStringList offered{"Blocks"};
    mutable int asked = 0;

    ZolWDoc::VectorFontProvider *vectorFonts(const ZolWDoc::ZOLW_Doc *) override { return this; }
    QStringList names() const override { return offered; }
    const ZolWDoc::VectorFont *find(const QString &n) const override { return n == name() ? this : nullptr; }
    QString name() const override { return "Blocks"; }
    std::vector<Entry> entries() const override
    {
        return {{33, "cross"}, {200, "dot"}, {40000, "line"}};
    }
    ZolWDoc::Glyph glyph(qint32 code) const override
    {
        ++asked;
        if (fails) throw std::runtime_error("the block table is gone");
        switch (code) {
        case 33: return {{{{-1, 0}, {1, 0}}, {{0, -1}, {0, 1}}}, 0};
        case 200: return {{{{0, 0}}}, 0};
        case 40000: return {{{{0, 0}, {40, 0}}}, 40};
        default: return {};
        }
    }
};

} // namespace tests
