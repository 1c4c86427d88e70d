#pragma once

#include "support/LayerDoc.h"
#include "support/OwnStore.h"

#include <QFile>
#include <QTemporaryDir>

#include <memory>

namespace tests {

/// Three layers, a folder for files about them, and settings that remember it; all new with layOut().
class FileDesk {
protected:
    std::unique_ptr<refhost::SqliteDoc> m_doc;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<OwnStore> m_store;

    void layOut()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_store = std::make_unique<OwnStore>();
        m_doc = layerDoc("1 Út, -2 Erdő, 3 Árok");
    }
    QString at(const char *name) const { return m_folder->filePath(QString::fromUtf8(name)); }
    QString written(const char *name, const QByteArray &bytes) const ///< its path
    {
        QFile file(at(name));
        if (file.open(QIODevice::WriteOnly)) file.write(bytes);
        return file.fileName();
    }
};

} // namespace tests
