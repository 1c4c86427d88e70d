#include "window/DialogCalls.h"
#include "window/HostServices.h"
#include "window/MainWindow.h"
#include "window/Pictures.h"

#include <QApplication>
#include <QCommandLineParser>

#include <algorithm>
#include <cstdio>
#include <string_view>

using namespace refhost;

namespace {

/// The command line is for scripts as much as for users: its texts are English, as its option names are.
struct Options {
    QCommandLineParser parser;
    QCommandLineOption language{QStringLiteral("language"),
                                QStringLiteral("Language of this run: hu, ro, vi or en."),
                                QStringLiteral("code")};
    QCommandLineOption pictures{QStringLiteral("pictures"),
                                QStringLiteral("Save a picture of each window there and end."),
                                QStringLiteral("folder")};
    QCommandLineOption dialog{QStringLiteral("dialog"),
                              QStringLiteral(
                                  "Open that dialog, e.g. bSelect_Lay, or all, one after the other."),
                              QStringLiteral("call")};
    QCommandLineOption yes{QStringLiteral("yes"),
                           QStringLiteral("Import with the guessed unit, without asking.")};

    explicit Options(const QCoreApplication &app)
    {
        parser.addPositionalArgument(
            QStringLiteral("files"),
            QStringLiteral("Drawings (.qvd) and .dxf files, a tab for each; without one a sample."),
            QStringLiteral("[file...]"));
        parser.addHelpOption();
        parser.addVersionOption();
        parser.addOptions({language, pictures, dialog, yes});
        parser.process(app);
    }
};

/// Help and version are asked for where there is no display, too.
bool asksForWordsOnly(int argc, char **argv)
{
    constexpr std::string_view kWords[] = {"-?", "-h", "--help", "--help-all", "-v", "--version"};
    return std::any_of(argv + 1, argv + argc,
                       [&](const char *word) { return std::ranges::count(kWords, word) > 0; });
}

/// False = there is no such call.
bool callsOf(const QString &name, std::vector<const DialogCall *> &calls)
{
    const size_t before = calls.size();
    for (const DialogCall &call : dialogCalls())
        if (name == QStringLiteral("all") || name == QLatin1String(call.name)) calls.push_back(&call);
    return calls.size() > before;
}

int wrongUse(const char *what, const QString &value)
{
    std::fprintf(stderr, "%s: %s (see --help)\n", what, qPrintable(value));
    return 2;
}

bool loadFile(MainWindow &window, const QString &file, bool yes)
{
    if (!file.endsWith(QStringLiteral(".dxf"), Qt::CaseInsensitive)) return window.files().openFile(file);
    const bool unseen = QGuiApplication::platformName() == QStringLiteral("offscreen"); // nobody could answer
    return window.files().importFile(file, !yes && !unseen);
}

/// False = something was asked for that could not be opened.
bool load(MainWindow &window, const Options &options)
{
    const QStringList files = options.parser.positionalArguments();
    bool all = !files.isEmpty() || window.files().openSample();
    for (const QString &file : files) all = loadFile(window, file, options.parser.isSet(options.yes)) && all;
    if (!window.files().drawing()) window.files().newDrawing();
    return all;
}

} // namespace

int main(int argc, char **argv)
{
    if (asksForWordsOnly(argc, argv)) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("qvdraw"));
    QApplication::setApplicationVersion(QStringLiteral(QVDC_VERSION));
    const Options options(app);
    HostServices services;
    if (options.parser.isSet(options.language)) {
        const int id = Language::idOf(options.parser.value(options.language));
        if (id == 0) return wrongUse("unknown language", options.parser.value(options.language));
        services.language()->setForThisRun(id);
    }
    std::vector<const DialogCall *> calls;
    for (const QString &name : options.parser.values(options.dialog)) {
        if (!callsOf(name, calls)) return wrongUse("unknown dialog", name);
    }

    MainWindow window(services);
    std::unique_ptr<Pictures> pictures;
    if (options.parser.isSet(options.pictures))
        pictures = std::make_unique<Pictures>(options.parser.value(options.pictures));
    window.show();
    const bool loaded = load(window, options);
    if (pictures) pictures->save(window, QStringLiteral("MainWindow"));
    for (const DialogCall *call : calls) window.run(*call);
    if (pictures) return loaded && pictures->failures() == 0 ? 0 : 1;
    return app.exec();
}
