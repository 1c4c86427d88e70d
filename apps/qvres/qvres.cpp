// qvres: looks into the files of layers, symbols and drawings from a script.
#include "qvres/Commands.h"
#include "qvres/Table.h"

#include "document/HostTexts.h"
#include "facade/services/Language.h"
#include "facade/services/Text.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QLocale>

#include <cstdio>

using namespace QV_DOC_CONTROLS;

namespace {

int languageOf(const QLocale &locale)
{
    switch (locale.language()) {
    case QLocale::Hungarian: return Hungarian;
    case QLocale::Romanian: return Romanian;
    case QLocale::Vietnamese: return Vietnamese;
    default: return English;
    }
}

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        txt(Text{31120,
                 u"Jelkulcskészletek, rétegfájlok és rajzok megjelenítése, átalakítása, ellenőrzése és "
                 u"összehasonlítása."}) +
        QStringLiteral("\n\n  qvres show FILE [--json]\n  qvres convert IN OUT [--like FILE.rst]\n"
                       "  qvres check FILE\n  qvres diff A B\n"));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption({QStringLiteral("json"), txt(Text{31121, u"A sorok egy JSON-tömbként (show)."})});
    parser.addOption({QStringLiteral("like"),
                      txt(Text{31122, u"A kiírt jelkulcskészlet oszlopai ebből a fájlból (convert)."}),
                      QStringLiteral("FILE.rst")});
    parser.addOption(
        {QStringLiteral("code-page"),
         txt(Text{31123, u"A rétegfájlok kódlapja, pl. windows-1250; alapértelmezés: a rendszeré."}),
         QStringLiteral("NAME")});
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("show | convert | check | diff"));
    parser.addPositionalArgument(QStringLiteral("files"), QStringLiteral(".rst .z3l .qvd .json .csv"));
}

int run(const QCommandLineParser &parser)
{
    const QStringList words = parser.positionalArguments();
    const qvres::Command *const command = qvres::commandNamed(words.value(0));
    if (!command || words.size() != 1 + command->files)
        throw qvres::Failure(txt(Text{31124, u"Hiányzó vagy hibás parancs; a lehetőségek: qvres --help"}));
    return command->run(words.sliced(1), parser);
}

int runOrHelp(const QCommandLineParser &parser)
{
    if (parser.isSet(QStringLiteral("help"))) return std::fputs(qPrintable(parser.helpText()), stdout), 0;
    if (!parser.isSet(QStringLiteral("version"))) return run(parser);
    std::puts("qvres " QVDC_VERSION);
    return 0;
}

/// On a full disk or a closed output the last letters fail only here.
void finishOutput()
{
    if (std::fflush(stdout) != 0 || std::ferror(stdout))
        throw qvres::Failure(txt(Text{31130, u"Az eredményt nem lehetett teljesen kiírni. Ellenőrizd a "
                                             u"kimenetet és a szabad helyet!"}));
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("qvres"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QVDC_VERSION));
    refhost::loadHostTexts();
    setLanguage(languageOf(QLocale::system()), {});
    QCommandLineParser parser;
    describe(parser);
    try {
        if (!parser.parse(QCoreApplication::arguments())) throw qvres::Failure(parser.errorText());
        const int code = runOrHelp(parser);
        finishOutput();
        return code;
    } catch (const std::exception &e) {
        std::fprintf(stderr, "qvres: %s\n", e.what());
        return 2;
    }
}
