#include "window/FileCommands.h"

#include "window/HostServices.h"
#include "window/ImportCommand.h"

#include "facade/services/Prompts.h"
#include "facade/services/Services.h"
#include "facade/services/Text.h"

#include <QFileInfo>
#include <QWidget>

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

constexpr int kRecent = 8;
const QString kSection = QStringLiteral("Files"), kKey = QStringLiteral("Recent");

QString filter() { return txt(Text{30472, u"Rajzok"}) + QStringLiteral("|*.qvd"); }

} // namespace

FileCommands::FileCommands(DrawingTabs &tabs) : QObject(&tabs), m_tabs(tabs) {}

OpenDrawing *FileCommands::drawing() { return m_tabs.page() ? &m_tabs.page()->drawing() : nullptr; }

void FileCommands::tellFailure(const QString &why)
{
    prompts().tell({Icon::Exclamation, txt(Text{30488, u"A művelet nem sikerült"}), why}, &window());
}

template <class Make> bool FileCommands::opened(Make make)
{
    try {
        std::unique_ptr<OpenDrawing> drawing = make();
        if (!drawing) return false;
        OpenDrawing &shown = m_tabs.open(std::move(drawing)).drawing();
        const QStringList notes = shown.doc().openNotes();
        if (!notes.isEmpty())
            prompts().tell({Icon::Information, shown.name(), notes.join(u'\n')}, &window());
        return true;
    } catch (const std::exception &e) {
        tellFailure(QString::fromUtf8(e.what()));
        return false;
    }
}

bool FileCommands::newDrawing() { return opened(OpenDrawing::fresh); }
bool FileCommands::openSample() { return opened(OpenDrawing::sample); }

bool FileCommands::open()
{
    const QString folder = recent().isEmpty() ? QString() : QFileInfo(recent().front()).path();
    const QString path = prompts().openFile(
        {txt(Text{30489, u"Rajz megnyitása"}), filter(), folder, QStringLiteral("qvd")}, &window());
    return !path.isEmpty() && openFile(path);
}

bool FileCommands::openFile(const QString &path)
{
    const QString full = QFileInfo(path).absoluteFilePath();
    if (DrawingPage *const shown = m_tabs.pageOf(full)) m_tabs.setCurrentWidget(shown);
    else if (!opened([&full] { return OpenDrawing::file(full); })) return false;
    remember(full);
    return true;
}

bool FileCommands::import()
{
    const QString dxf = txt(Text{30473, u"DXF rajzok"}) + QStringLiteral("|*.dxf *.DXF");
    const QString path =
        prompts().openFile({txt(Text{30510, u"DXF importálása"}), dxf, {}, QStringLiteral("dxf")}, &window());
    return !path.isEmpty() && importFile(path);
}

bool FileCommands::importFile(const QString &path, bool ask)
{
    QString report;
    if (!opened([&] { return importedDrawing(window(), path, ask, report); })) return false;
    prompts().tell({Icon::Information, txt(Text{30510, u"DXF importálása"}), report}, &window());
    return true;
}

bool FileCommands::saveAs()
{
    OpenDrawing *const saved = drawing();
    if (!saved) return false;
    const QString proposed =
        saved->isUnsaved() ? saved->name() + QStringLiteral(".qvd") : saved->doc().path();
    const QString path = prompts().saveFile(
        {txt(Text{30480, u"Rajz mentése"}), filter(), proposed, QStringLiteral("qvd")}, &window());
    if (path.isEmpty()) return false;
    try {
        requireNotOpen(path);
        saved->saveAs(path);
    } catch (const std::exception &e) {
        tellFailure(QString::fromUtf8(e.what()));
        return false;
    }
    remember(QFileInfo(path).absoluteFilePath());
    m_tabs.page()->refresh();
    return true;
}

/// A file that is replaced under an open drawing would take what is written there later with it.
void FileCommands::requireNotOpen(const QString &path)
{
    const DrawingPage *const there = m_tabs.pageOf(path);
    if (there && there != m_tabs.page())
        throw DocumentError(
            join(Text{30481, u"A(z) '"}, QFileInfo(path).fileName(),
                 Text{30516, u"' rajz egy másik lapon meg van nyitva. Zárd be ott, vagy adj meg "
                             u"másik nevet!"}));
}

bool FileCommands::close(int tab)
{
    if (!m_tabs.page(tab) || !mayClose(tab)) return false;
    if (m_tabs.count() > 1) {
        m_tabs.close(tab);
        return true;
    }
    if (m_tabs.page(tab)->drawing().isUntouched()) return true;
    if (!newDrawing()) return false;
    m_tabs.close(tab);
    return true;
}

bool FileCommands::mayClose(int tab)
{
    if (!m_tabs.page(tab)->drawing().hasUnsavedWork()) return true;
    m_tabs.setCurrentIndex(tab);        // the user sees what is asked about
    Choice question;
    question.title = txt(Text{30480, u"Rajz mentése"});
    question.text = join(Text{30481, u"A(z) '"}, drawing()->name(),
                         Text{30482, u"' rajz még nincs fájlba mentve. Mi legyen vele?"});
    question.items = {txt(Text{30483, u"Mentés fájlba…"}), txt(Text{30484, u"A rajz eldobása"})};
    const std::optional<int> answer = prompts().choose(question, &window());
    if (!answer) return false;
    return *answer == 1 || saveAs();
}

bool FileCommands::mayLeave()
{
    for (int i = 0; i < m_tabs.count(); ++i)
        if (!mayClose(i)) return false;
    return true;
}

QStringList FileCommands::recent()
{
    return settingsStore().read(settingsName(), kSection, kKey, {}).split(u'\n', Qt::SkipEmptyParts);
}

void FileCommands::remember(const QString &path)
{
    QStringList all = recent();
    all.removeAll(path);
    all.prepend(path);
    settingsStore().write(settingsName(), kSection, kKey, all.mid(0, kRecent).join(u'\n'));
}

} // namespace refhost
