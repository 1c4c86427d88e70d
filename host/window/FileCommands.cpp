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

FileCommands::FileCommands(QWidget &window) : QObject(&window), m_window(window) {}

void FileCommands::tellFailure(const QString &why)
{
    prompts().tell({Icon::Exclamation, txt(Text{30488, u"A művelet nem sikerült"}), why}, &m_window);
}

void FileCommands::adopt(std::unique_ptr<OpenDrawing> drawing)
{
    emit aboutToClose();
    m_drawing = std::move(drawing);
    emit opened();
    const QStringList notes = m_drawing->doc().openNotes();
    if (!notes.isEmpty())
        prompts().tell({Icon::Information, m_drawing->name(), notes.join(u'\n')}, &m_window);
}

template <class Make> bool FileCommands::replaceBy(Make make)
{
    if (!mayLeave()) return false;
    try {
        adopt(make());
        return true;
    } catch (const std::exception &e) {
        tellFailure(QString::fromUtf8(e.what()));
        return false;
    }
}

bool FileCommands::newDrawing() { return replaceBy(OpenDrawing::fresh); }
bool FileCommands::openSample() { return replaceBy(OpenDrawing::sample); }

bool FileCommands::open()
{
    const QString folder = recent().isEmpty() ? QString() : QFileInfo(recent().front()).path();
    const QString path = prompts().openFile(
        {txt(Text{30489, u"Rajz megnyitása"}), filter(), folder, QStringLiteral("qvd")}, &m_window);
    return !path.isEmpty() && openFile(path);
}

bool FileCommands::openFile(const QString &path)
{
    const QString full = QFileInfo(path).absoluteFilePath();
    if (!replaceBy([&full] { return OpenDrawing::file(full); })) return false;
    remember(full);
    return true;
}

bool FileCommands::import()
{
    const QString dxf = txt(Text{30473, u"DXF rajzok"}) + QStringLiteral("|*.dxf *.DXF");
    const QString path =
        prompts().openFile({txt(Text{30510, u"DXF importálása"}), dxf, {}, QStringLiteral("dxf")}, &m_window);
    return !path.isEmpty() && importFile(path);
}

bool FileCommands::importFile(const QString &path, bool ask)
{
    if (!mayLeave()) return false;
    QString report;
    try {
        std::unique_ptr<OpenDrawing> imported = importedDrawing(m_window, path, ask, report);
        if (!imported) return false;
        adopt(std::move(imported));
    } catch (const std::exception &e) {
        tellFailure(QString::fromUtf8(e.what()));
        return false;
    }
    prompts().tell({Icon::Information, txt(Text{30510, u"DXF importálása"}), report}, &m_window);
    return true;
}

bool FileCommands::saveAs()
{
    if (!m_drawing) return false;
    const QString proposed =
        m_drawing->isUnsaved() ? m_drawing->name() + QStringLiteral(".qvd") : m_drawing->doc().path();
    const QString path = prompts().saveFile(
        {txt(Text{30480, u"Rajz mentése"}), filter(), proposed, QStringLiteral("qvd")}, &m_window);
    if (path.isEmpty()) return false;
    try {
        m_drawing->saveAs(path);
    } catch (const std::exception &e) {
        tellFailure(QString::fromUtf8(e.what()));
        return false;
    }
    remember(QFileInfo(path).absoluteFilePath());
    emit opened();
    return true;
}

bool FileCommands::mayLeave()
{
    if (!m_drawing || !m_drawing->hasUnsavedWork()) return true;
    Choice question;
    question.title = txt(Text{30480, u"Rajz mentése"});
    question.text = join(Text{30481, u"A(z) '"}, m_drawing->name(),
                         Text{30482, u"' rajz még nincs fájlba mentve. Mi legyen vele?"});
    question.items = {txt(Text{30483, u"Mentés fájlba…"}), txt(Text{30484, u"A rajz eldobása"})};
    const std::optional<int> answer = prompts().choose(question, &m_window);
    if (!answer) return false;
    return *answer == 1 || saveAs();
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
