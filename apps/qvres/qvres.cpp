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
        if (parser.isSet(QStringLiteral("help"))) parser.showHelp();
        if (parser.isSet(QStringLiteral("version"))) parser.showVersion();
        return run(parser);
    } catch (const std::exception &e) {
        std::fprintf(stderr, "qvres: %s\n", e.what());
        return 2;
    }
}
