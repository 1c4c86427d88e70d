#include "Figures.h"

#include "fonts/CharacterGrid.h"
#include "fonts/FontCatalogue.h"
#include "kit/ask/ErrorRelay.h"

#include <QTableWidget>
#include <QTest>

#include <memory>
#include <stdexcept>

// All codes of a font in the viewer's grid, and the same cells in the toolkit's own table.
namespace benchmarks {
namespace {

using namespace QV_DOC_CONTROLS;

constexpr double kFrame = 16;                   ///< milliseconds of one picture on the screen
const QString kFace = QStringLiteral("DejaVu Sans");

template <class Body> double millisecondsOf(Body body)
{
    const auto start = Clock::now();
    body();
    return nanosecondsSince(start) / 1e6;
}

/// All of it, also where no screen asks for it.
void paint(QWidget &view) { keep(view.grab().width()); }

struct Own {
    ErrorRelay host;
    CharacterGrid grid{host, nullptr};
    Own()
    {
        grid.resize(grid.sizeHint());
        grid.setSource(trueTypeCharacters({kFace, 238}));
        grid.setCode('A');
        paint(grid);
    }
};

struct Stock {
    QTableWidget table{kCodes / 16, 16};
    explicit Stock(QSize size)
    {
        table.resize(size);
        table.setFont(plainFont(kFace));
        for (int code = 0; code < kCodes; ++code)
            table.setItem(code / 16, code % 16, new QTableWidgetItem(QString(QChar(char16_t(code)))));
        paint(table);
    }
};

/// Makes one with what is remembered from before.
template <class Make> double opened(Make make)
{
    return medianOf([&] { return millisecondsOf([&] { const auto made = make(); }); });
}
double ownOpened()
{
    return opened([] { return std::make_unique<Own>(); });
}

/// A step and the picture after it.
template <class Step> double stepped(Step step)
{
    Own own;
    return medianOf([&] {
        return millisecondsOf([&] {
            step(own.grid);
            paint(own.grid);
        });
    });
}

double paged()
{
    return stepped([](CharacterGrid &grid) { QTest::keyClick(&grid, Qt::Key_PageDown); });
}

double jumped()
{
    return stepped([](CharacterGrid &grid) { grid.setCode((grid.code() + 20011) % kCodes); });
}

double presentOnly()
{
    return stepped([](CharacterGrid &grid) {
        grid.setOnlyPresent(false);
        grid.setOnlyPresent(true);
    });
}

/// What is asked of the machine's fonts when their list is shown, and when every face has been looked at.
double scriptsPerFace()
{
    const QStringList &faces = trueTypeFaces();
    if (faces.isEmpty()) throw std::runtime_error("no face");
    return millisecondsOf([&] { for (const QString &face : faces) keep(scriptsOf(face).size()); })
           / double(faces.size());
}

[[maybe_unused]] const bool s_entered = [] {
    figure("fonts.65536.open", "ms", atMost(kFrame), ownOpened);
    figure("fonts.65536.tableWidget.open", "times longer", atLeast(3), [] {
        const QSize size = Own().grid.size();
        return opened([=] { return std::make_unique<Stock>(size); }) / ownOpened();
    });
    figure("fonts.65536.page", "ms", atMost(kFrame), paged);
    figure("fonts.65536.jump", "ms", atMost(kFrame), jumped);
    figure("fonts.65536.presentOnly", "ms", unbounded(), presentOnly);
    figure("fonts.scripts.face", "ms", unbounded(), scriptsPerFace);
    return true;
}();

} // namespace
} // namespace benchmarks
