#include "support/Registry.h"

#include <QDir>
#include <QLocale>
#include <QStandardPaths>
#include <QStringList>
#include <QTemporaryDir>
#include <QtTest/qtestcase.h>

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
int s_unexpected = 0;
QtMessageHandler s_next = nullptr;

// What the platform says of itself and no program can help.
constexpr const char *kAllowed[] = {"This plugin does not support propagateSizeHints()",
                                    "This plugin does not support raise()",
                                    "This plugin does not support setting window"};

void watch(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    bool known = type != QtWarningMsg && type != QtCriticalMsg;
    for (const char *part : kAllowed) known = known || text.contains(QLatin1String(part));
    for (qsizetype i = 0; !known && i < s_expected.size(); ++i)
        if (text.contains(s_expected[i])) known = true, s_expected.removeAt(i);
    if (!known) {
        ++s_unexpected;
        std::fprintf(stderr, "FAIL!  : unexpected warning: %s\n", qPrintable(text));
    }
    if (s_next) s_next(type, context, text);
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

    int failed = 0, run = 0;
    for (const auto &[name, make] : tests::registry()) {
        if (only && std::strcmp(only, name) != 0) continue;
        ++run;
        const auto test = make();
        tests::s_next = nullptr;
        tests::s_unexpected = 0;
        tests::s_next = qInstallMessageHandler(tests::watch);
        failed += QTest::qExec(test.get(), arguments);
        qInstallMessageHandler(nullptr);
        failed += tests::s_unexpected + tests::leftOvers();
    }
    if (run == 0) std::fprintf(stderr, "no such test: %s\n", only ? only : "");
    return run == 0 || failed > 0 ? 1 : 0;
}
