#include "window/OpenDrawing.h"

#include "sample/Village.h"

#include "facade/services/Text.h"

#include <QFileInfo>

using namespace QV_DOC_CONTROLS;

namespace refhost {
std::unique_ptr<QTemporaryDir> OpenDrawing::newFolder()
{
    auto folder = std::make_unique<QTemporaryDir>();
    if (folder->isValid()) return folder;
    throw DocumentError(
        join(Text{30490, u"Nem hozható létre ideiglenes fájl. Ellenőrizd a szabad helyet! Részletek: "},
             folder->errorString()));
}

QString OpenDrawing::pathIn(const QTemporaryDir &folder)
{
    return folder.filePath(QStringLiteral("drawing.qvd"));
}

std::unique_ptr<OpenDrawing> OpenDrawing::fresh()
{
    std::unique_ptr<OpenDrawing> d(new OpenDrawing);
    d->m_folder = newFolder();
    d->m_doc = SqliteDoc::create(pathIn(*d->m_folder));
    d->m_name = txt(Text{30470, u"Névtelen rajz"});
    d->m_begun = d->state();
    d->m_isNew = true;
    return d;
}

std::unique_ptr<OpenDrawing> OpenDrawing::sample()
{
    std::unique_ptr<OpenDrawing> d = fresh();
    d->m_isNew = false;
    makeVillage(*d->m_doc);
    d->m_name = txt(Text{30471, u"Mintarajz"});
    d->m_begun = d->state();
    return d;
}

std::unique_ptr<OpenDrawing> OpenDrawing::file(const QString &path)
{
    std::unique_ptr<OpenDrawing> d(new OpenDrawing);
    d->m_doc = SqliteDoc::open(path);
    return d;
}

std::unique_ptr<OpenDrawing> OpenDrawing::unsaved(std::unique_ptr<QTemporaryDir> folder, const QString &name)
{
    std::unique_ptr<OpenDrawing> d = file(pathIn(*folder));
    d->m_folder = std::move(folder);
    d->m_name = name;
    d->m_keepsWork = true;
    return d;
}

QString OpenDrawing::name() const { return isUnsaved() ? m_name : QFileInfo(m_doc->path()).fileName(); }

std::vector<quint64> OpenDrawing::state() const
{
    using ZolWDoc::TableKind;
    std::vector<quint64> all{quint64(m_doc->elementCount())};
    for (TableKind kind : {TableKind::Layers, TableKind::TextTypes, TableKind::LineTypes, TableKind::Symbols,
                           TableKind::PenColors, TableKind::LineSymbolizations, TableKind::Points})
        all.push_back(m_doc->revisions()->revision(kind));
    return all;
}

bool OpenDrawing::hasUnsavedWork() const { return isUnsaved() && (m_keepsWork || state() != m_begun); }

void OpenDrawing::saveAs(const QString &path)
{
    m_doc->saveCopyAs(path);
    std::unique_ptr<SqliteDoc> saved = SqliteDoc::open(path);
    m_doc = std::move(saved);
    m_folder.reset();
    m_isNew = m_keepsWork = false;
    watch();
}

void OpenDrawing::setWatcher(std::function<void()> watcher)
{
    m_watcher = std::move(watcher);
    watch();
}

void OpenDrawing::watch()
{
    m_doc->onRedraw = m_watcher;
    m_doc->onWrite = m_watcher;
}

} // namespace refhost
