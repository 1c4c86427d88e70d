#pragma once

#include "document/Database.h"

namespace refhost {

/// The elements of the drawing, in the order in which they were added.
class ElementStore {
public:
    explicit ElementStore(Database &db) : m_db(db) {}
    std::vector<Element> all() const;
    std::vector<Element> onLayer(qint16 layId) const;   ///< -1: those on no layer
    qint64 add(const Element &); ///< throws when it refers to something that is not there
    void addAll(std::span<const Element>);
    void removeAll(std::span<const qint64> ids);
    int count() const;
private:
    Database &m_db;
};

} // namespace refhost
