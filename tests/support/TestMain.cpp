#include "support/Registry.h"

#include <QFile>
#include <QLocale>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#ifdef QVDC_WITH_WIDGETS
#include <QApplication>
#include <QWidget>
using Application = QApplication;
#else
#include <QCoreApplication>
using Application = QCoreApplication;
#endif

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace tests {
namespace {

QStringList s_expected;

// What the platform says of itself and no program can help.
constexpr const char *kAllowed[] = {"This plugin does not support propagateSizeHints()",
                                    "This plugin does not support raise()",
                                    "This plugin does not support setting window",
                                    "This plugin does not support grabbing the"};

bool known(const QString &line)
{
    for (const char *part : kAllowed)
        if (line.contains(QLatin1String(part))) return true;
    for (qsizetype i = 0; i < s_expected.size(); ++i) {
        if (!line.contains(s_expected[i])) continue;
        s_expected.removeAt(i);
        return true;
    }
    return false;
}

/// Warnings in the log of a run that nobody announced.
int unexpectedWarnings(const QString &log)
{
    int n = 0;
    QFile file(log);
    if (!file.open(QIODevice::ReadOnly)) return 1;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        if ((!line.startsWith(u"QWARN") && !line.startsWith(u"QCRITICAL")) || known(line)) continue;
        ++n;
        std::fprintf(stderr, "FAIL!  : unexpected warning: %s\n", qPrintable(line));
    }
    return n;
}

/// Expected warnings that never came and windows left open are failures too.
int leftOvers()
{
    int n = int(s_expected.size());
    for (const QString &text : std::as_const(s_expected))
        std::fprintf(stderr, "FAIL!  : expected warning never came: %s\n", qPrintable(text));
    s_expected.clear();
#ifdef QVDC_WITH_WIDGETS
    for (const QWidget *w : QApplication::topLevelWidgets()) {
        if (!w->isVisible()) continue;
        ++n;
        std::fprintf(stderr, "FAIL!  : window left open: %s '%s'\n", w->metaObject()->className(),
                     qPrintable(w->windowTitle()));
    }
#endif
    return n;
}

} // namespace

std::vector<std::pair<const char *, Maker>> &registry()
{
    static std::vector<std::pair<const char *, Maker>> all;
    return all;
}

bool enter(const char *name, Maker make)
{
    registry().emplace_back(name, std::move(make));
    return true;
}

void expectWarning(const QString &part) { s_expected << part; }

} // namespace tests

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir home; // settings of the user who runs the tests are neither read nor written
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
    qputenv("QT_STYLE_OVERRIDE", "Fusion");
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    Application app(argc, argv);

    const char *only = argc > 1 && std::strncmp(argv[1], "tst_", 4) == 0 ? argv[1] : nullptr;
    QStringList arguments = app.arguments();
    if (only) arguments.removeAt(1);

    const QString log = home.filePath("log.txt");
    arguments << "-o" << "-,txt" << "-o"
              << log + ",txt";

    int failed = 0, run = 0;
    for (const auto &[name, make] : tests::registry()) {
        if (only && std::strcmp(only, name) != 0) continue;
        ++run;
        const auto test = make();
        failed += QTest::qExec(test.get(), arguments);
        failed += tests::unexpectedWarnings(log) + tests::leftOvers();
    }
    if (run == 0) std::fprintf(stderr, "no such test: %s\n", only ? only : "");
    return run == 0 || failed > 0 ? 1 : 0;
}
