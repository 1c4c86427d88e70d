#include "facade/services/Language.h"

#include "facade/services/Services.h"
#include "facade/services/Text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>

#include <algorithm>
#include <array>

static void initResources() { Q_INIT_RESOURCE(qvdc_strings); } // outside the namespace, as the macro wants it

namespace QV_DOC_CONTROLS {
namespace {

using Table = QHash<int, QString>;
struct LanguageRow {
    int localeId;
    const char *file;
    const char16_t *name;
};
constexpr LanguageRow kLanguages[] = {
    {Hungarian, "hu", u"Magyar"},
    {Romanian, "ro", u"Română"},
    {Vietnamese, "vi", u"Tiếng Việt"},
    {English, "en", u"English"},
};
constexpr int kAccepted[] = {Hungarian, Romanian, English, Vietnamese, 100000, 2074};

struct State {
    int current = 0;
    bool loaded = false;
    std::array<Table, std::size(kLanguages)> tables;
    const Table *table = nullptr;               ///< of the current language
};
State &state()
{
    static State s;
    return s;
}

QString unescaped(QStringView text)
{
    QString out;
    out.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool escape = text[i] == u'\\' && i + 1 < text.size();
        if (!escape) out += text[i];
        else if (const QChar c = text[++i]; c == u'n') out += u'\n';
        else if (c == u't') out += u'\t';
        else out += c;
    }
    return out;
}

/// The lines of a UTF-8 text file, whatever ends them.
QStringList linesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(file.readAll()).remove(u'\r').split(u'\n');
}

/// "identifier <tab> text"; backslash escapes n, t and itself. Lines of another form are passed over.
void readLine(QStringView line, Table &into)
{
    const qsizetype tab = line.indexOf(u'\t');
    bool isNumber = false;
    const int id = tab < 0 ? 0 : line.left(tab).toInt(&isNumber);
    if (isNumber) into.insert(id, unescaped(line.mid(tab + 1)));
}

void readFolder(const QString &folder)
{
    for (size_t i = 0; i < std::size(kLanguages); ++i)
        for (const QString &line :
             linesOf(folder + u'/' + QLatin1String(kLanguages[i].file) + QLatin1String(".tsv")))
            readLine(line, state().tables[i]);
}

/// Its lines begin with the locale that they belong to.
void readDevelopmentFile()
{
    if (qEnvironmentVariableIsEmpty("QV_DOC_CONTROLS_DEVELOPMENT") || !QCoreApplication::instance()) return;
    for (const QString &line :
         linesOf(QCoreApplication::applicationDirPath() + QLatin1String("/QV_DOC_CONTROLS.res"))) {
        const int locale = line.section(u'\t', 0, 0).toInt();
        const auto row = std::ranges::find(kLanguages, locale, &LanguageRow::localeId);
        if (row != std::end(kLanguages))
            readLine(line.section(u'\t', 1), state().tables[size_t(row - kLanguages)]);
    }
}

} // namespace

void ensureResourcesLoaded()
{
    State &s = state();
    if (!s.loaded) {
        s.loaded = true;
        initResources();
        readFolder(QStringLiteral(":/qvdc/strings"));
        readDevelopmentFile();
    }
    if (s.current == 0) setLanguage(Hungarian, {});
}

void setLanguage(int localeId, const QString &)
{
    State &s = state();
    s.current = std::ranges::count(kAccepted, localeId) ? localeId : Hungarian;
    const auto row = std::ranges::find(kLanguages, s.current, &LanguageRow::localeId);
    s.table = &s.tables[row == std::end(kLanguages) ? 0 : size_t(row - kLanguages)];
}

int currentLanguage() { return state().current; }

void addStringTables(const QString &folder)
{
    ensureResourcesLoaded();
    readFolder(folder);
}

QString languageNameOf(int localeId)
{
    const auto row = std::ranges::find(kLanguages, localeId, &LanguageRow::localeId);
    return row == std::end(kLanguages) ? QString() : QString::fromUtf16(row->name);
}

QString txt(Text t)
{
    if (!state().loaded || !state().table) ensureResourcesLoaded();
    const auto found = state().table->constFind(t.id);
    return found == state().table->constEnd() ? QString::fromUtf16(t.hu) : *found;
}

QStringList everyTxt(Text t)
{
    ensureResourcesLoaded();
    QStringList all;
    for (const Table &table : state().tables) all << table.value(t.id, QString::fromUtf16(t.hu));
    all.removeDuplicates();
    return all;
}

LanguageHub &LanguageHub::instance()
{
    static LanguageHub hub;
    return hub;
}

void LanguageHub::connectToRuntime()
{
    ZolWDoc::LanguageRuntime &runtime = languageRuntime();
    if (m_runtime == &runtime) return;
    if (m_runtime) disconnect(m_runtime, nullptr, this, nullptr);
    m_runtime = &runtime;
    connect(&runtime, &QObject::destroyed, this, [this] { m_runtime = nullptr; });
    connect(&runtime, &ZolWDoc::LanguageRuntime::LanguageChanged, this, [this] {
        takeOver();
        emit LanguageChanged();
    });
}

void LanguageHub::takeOver()
{
    const QString component = QStringLiteral("QV_DOC_CONTROLS");
    const int own = languageRuntime().componentLanguage(component);
    const int wanted = own ? own : languageRuntime().currentLanguage();
    if (wanted) setLanguage(wanted, component);
}

} // namespace QV_DOC_CONTROLS
