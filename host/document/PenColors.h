#pragma once

#include "document/Database.h"

namespace refhost {

class PenColors : public ZolWDoc::PenColorRole, public ZolWDoc::PaletteRole {
public:
    explicit PenColors(Database &db) : m_db(db) {}
    ZolWDoc::PenColorTable read() const override;
    void write(const ZolWDoc::PenColorTable &) override;
    ZolWDoc::Palette palette() const override;
    void replacePalette(const ZolWDoc::Palette &) override;
private:
    Database &m_db;
};

class KhItems : public ZolWDoc::KhRole {
public:
    explicit KhItems(Database &db) : m_db(db) {}
    std::vector<ZolWDoc::tKh> items(int mode) const override;
private:
    Database &m_db;
};

} // namespace refhost
