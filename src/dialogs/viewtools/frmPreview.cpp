#include "dialogs/viewtools/frmPreview.h"

#include "facade/services/Language.h"
#include "facade/services/Prompts.h"
#include "facade/services/Services.h"
#include "kit/ask/PrinterChoice.h"
#include "kit/ask/runModal.h"
#include "kit/forms/QuietWheel.h"
#include "kit/forms/WindowSize.h"
#include "kit/paper/PageSetup.h"
#include "kit/paper/PageSetupDialog.h"
#include "kit/paper/SheetOutput.h"
#include "kit/paper/SheetPreview.h"
#include "rules/WholeFile.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QPrinter>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardPaths>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {
namespace {

constexpr Text kCaption{3133, u"Nyomtatási kép"};
const QString kForm = QStringLiteral("frmPreview");
constexpr QSize kUsualLetters(130, 50); ///< a page in it can be recognised

constexpr Tool kPreviewTools[] = {
    {"barPreview", "cmdPrint", {3346, u"Nyomtatás"}, "print", "Ctrl+P"},
    {"barPreview", "cmdSavePdf", {21400, u"Mentés PDF-be…"}, "savePdf", "Ctrl+S"},
    {"barPreview", "cmdPageSetup", {3345, u"Oldalbeállítás"}, "pageSetup"},
    {"barPreview", kToolLine},
    {"barPreview", "cmdPrevious", {21401, u"Előző oldal"}, "pagePrevious"},
    {"barPreview", "cmdNext", {21402, u"Következő oldal"}, "pageNext"},
    {"barPreview", kToolLine},
};

} // namespace

frmPreview::frmPreview()
    : grPrev(new SheetPreview(this)), m_tools(kPreviewTools, ErrorRelay::reporting(), this),
      m_bar(m_tools.toolBar("barPreview", {21350, u"Az előnézet eszközei"})), m_pageLabel(new QLabel(this)),
      m_zoomLabel(new QLabel(this)), m_note(new QLabel(this)), m_page(new QSpinBox(this)),
      m_zoom(new QComboBox(this)), m_close(new QPushButton(this))
{
    setObjectName(kForm);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    grPrev->setObjectName(QStringLiteral("grPrev"));
    m_page->setObjectName(QStringLiteral("spinPage"));
    m_zoom->setObjectName(QStringLiteral("cboZoom"));
    m_note->setObjectName(QStringLiteral("lblNote"));
    m_close->setObjectName(QStringLiteral("cmdClose"));
    build();
    connectAll();
    retranslate();
}

frmPreview::~frmPreview() { TearDown(); }

void frmPreview::TearDown()
{
    grPrev->setSheet(nullptr);
    m_sheet.reset();
    m_grid = nullptr;
    m_titles = {};
}

/// Pages and zoom stand among the tools; the arrows beside the page need no words.
void frmPreview::buildBar()
{
    m_bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (const char *name : {"cmdPrevious", "cmdNext"})
        if (auto *const arrow = qobject_cast<QToolButton *>(m_bar->widgetForAction(m_tools.tool(name))))
            arrow->setToolButtonStyle(Qt::ToolButtonIconOnly);
    const int gap = fontMetrics().horizontalAdvance(u' ');
    for (QLabel *label : {m_pageLabel, m_zoomLabel}) label->setContentsMargins(gap, 0, gap, 0);
    m_bar->insertWidget(m_tools.tool("cmdNext"), m_pageLabel);
    m_bar->insertWidget(m_tools.tool("cmdNext"), m_page);
    m_bar->addWidget(m_zoomLabel);
    m_bar->addWidget(m_zoom);
}

void frmPreview::build()
{
    buildBar();
    m_close->setDefault(true);
    m_page->installEventFilter(this);
    m_pageLabel->setBuddy(m_page);
    m_zoomLabel->setBuddy(m_zoom);
    m_zoom->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_note->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_note->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    for (QWidget *box : {static_cast<QWidget *>(m_page), static_cast<QWidget *>(m_zoom)}) quietWheel(*box);
    auto *const below = new QHBoxLayout;
    below->addWidget(m_note, 1);
    below->addWidget(m_close);
    auto *const column = new QVBoxLayout(this);
    column->addWidget(m_bar);
    column->addWidget(grPrev, 1);
    column->addLayout(below);
}

void frmPreview::connectAll()
{
    connect(grPrev, &SheetPreview::currentPageMoved, this, &frmPreview::followPage);
    connect(grPrev, &SheetPreview::zoomChanged, this,
            [this](double zoom) { m_zoom->setCurrentIndex(m_zoom->findData(zoom)); });
    connect(m_page, &QSpinBox::valueChanged, this, [this](int page) { grPrev->goToPage(page - 1); });
    connect(m_zoom, &QComboBox::activated, this,
            [this] { grPrev->setZoom(m_zoom->currentData().toDouble()); });
    static constexpr ToolCommand<frmPreview> kCommands[] = {
        {"cmdPrint", &frmPreview::print},
        {"cmdSavePdf", &frmPreview::askPdf},
        {"cmdPageSetup", &frmPreview::pageSetup},
        {"cmdPrevious", &frmPreview::previousPage, &frmPreview::hasPreviousPage},
        {"cmdNext", &frmPreview::nextPage, &frmPreview::hasNextPage},
    };
    m_tools.connectTools(*this, kCommands);
    connect(m_close, &QPushButton::clicked, this, &frmPreview::reject);
    connect(&LanguageHub::instance(), &LanguageHub::LanguageChanged, this,
            &frmPreview::ml_RuntimeSupport_LanguageChanged);
}

void frmPreview::fillZooms()
{
    m_zoom->clear();
    m_zoom->addItem(txt(Text{21404, u"Teljes oldal"}), SheetPreview::kWholePage);
    m_zoom->addItem(txt(Text{21405, u"Oldalszélesség"}), SheetPreview::kPageWidth);
    for (double step : SheetPreview::zoomSteps())
        m_zoom->addItem(QStringLiteral("%1 %").arg(qRound(step * 100)), step);
    m_zoom->setCurrentIndex(m_zoom->findData(grPrev->zoom()));
}

void frmPreview::retranslate()
{
    setWindowTitle(txt(kCaption));
    m_tools.retranslate();
    m_close->setText(txt(Text{3344, u"Bezárás"}));
    m_pageLabel->setText(txt(Text{21403, u"Oldal:"}));
    m_zoomLabel->setText(txt(Text{21406, u"Nagyítás:"}));
    grPrev->setAccessibleName(txt(kCaption));
    m_note->clear();
    fillZooms();
}

void frmPreview::ml_RuntimeSupport_LanguageChanged()
{
    retranslate();
    layOutSheet();
}

void frmPreview::layOutSheet()
{
    if (!m_grid) return;
    auto sheet = std::make_unique<SheetPainter>(*m_grid, m_titles(), m_paper);
    {
        const QSignalBlocker quiet(m_page);
        m_page->setRange(1, sheet->pageCount());
        m_page->setSuffix(QStringLiteral(" / %1").arg(sheet->pageCount()));
    }
    grPrev->setSheet(sheet.get());          // tells its page
    m_sheet = std::move(sheet);
}

void frmPreview::showPages(const SheetSource &grid, Titles titles, QWidget *owner)
{
    const Trace trace("frmPreview", "showPages");
    if (QWidget *const over = owner ? owner->window() : QApplication::activeWindow())
        setParent(over, windowFlags());
    m_grid = &grid;
    m_titles = std::move(titles);
    m_paper = storedPageSetup();
    restoreSize(*this, kForm, sizeOfLetters(*this, kUsualLetters.width(), kUsualLetters.height()));
    layOutSheet();
    grPrev->setFocus();
    runModal(*this);
    keepSizeOf(*this, kForm);
    TearDown();
}

void frmPreview::followPage(int page)
{
    const QSignalBlocker quiet(m_page);
    m_page->setValue(page + 1);
    m_tools.refresh();
}

void frmPreview::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_PageDown) nextPage();
    else if (event->key() == Qt::Key_PageUp) previousPage();
    else QDialog::keyPressEvent(event);
}

/// In the box too the keys turn pages, instead of adding ten to the number.
bool frmPreview::eventFilter(QObject *watched, QEvent *event)
{
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent *>(event)->key() : 0;
    if (watched != m_page || (key != Qt::Key_PageDown && key != Qt::Key_PageUp))
        return QDialog::eventFilter(watched, event);
    keyPressEvent(static_cast<QKeyEvent *>(event));
    return true;
}

void frmPreview::nextPage() { grPrev->nextPage(); }
void frmPreview::previousPage() { grPrev->previousPage(); }
bool frmPreview::hasNextPage() const { return grPrev->currentPage() + 1 < grPrev->pageCount(); }
bool frmPreview::hasPreviousPage() const { return grPrev->currentPage() > 0; }

void frmPreview::pageSetup()
{
    PageSetupDialog dialog(m_paper, this);
    if (runModal(dialog) != QDialog::Accepted) return;
    m_paper = dialog.page();
    layOutSheet();
}

void frmPreview::print()
{
    if (!m_sheet) return;
    if (!hasPrinter()) {
        const QString question = join(Text{21410, u"Ezen a gépen nincs telepített nyomtató."},
                                      QStringLiteral("\n"), Text{21411, u"Menti inkább PDF-fájlba?"});
        if (prompts().yesNo({Icon::Question, appTitle(), question}, this)) askPdf();
        return;
    }
    if (const auto printer = choosePrinter(m_paper, m_sheet->pageCount(), this)) printOn(*printer);
}

void frmPreview::printOn(QPrinter &printer)
{
    // The user may have chosen other paper for this print; no printer reaches the very edge of it.
    const SheetPainter sheet(*m_grid, m_titles(), withinReach(printer.pageLayout()));
    if (printer.outputFormat() == QPrinter::PdfFormat) return writePdf(sheet, printer.outputFileName());
    const bool someOnly = printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0;
    const int first = someOnly ? printer.fromPage() - 1 : 0;
    const int last = someOnly ? printer.toPage() - 1 : sheet.pageCount() - 1;
    printer.setDocName(sheet.titles().header);
    const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
    for (int i = 0; i < copies; ++i) {
        SheetOutput output(sheet, printer, first, last);
        const OutputResult result = runShown(output, this);
        if (result == OutputResult::Done) continue;
        printer.abort();
        if (result == OutputResult::Failed)
            prompts().tell(
                {Icon::Exclamation, appTitle(),
                 join(Text{21412, u"A nyomtató nem nyomtatja ki az oldalakat: "}, printer.printerName())},
                this);
        return;
    }
}

QString frmPreview::proposedPdf() const
{
    QString name = m_sheet->titles().header;
    for (QChar &c : name)
        if (!c.isLetterOrNumber() && c != u'-' && c != u'.') c = u'_';
    if (name.isEmpty()) name = txt(Text{21413, u"tablazat"});
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString folder = settingsStore().read(QStringLiteral("ZolWOp"), QStringLiteral("Settings"),
                                                QStringLiteral("PdfFolder"), documents);
    return QDir(folder).filePath(name + QStringLiteral(".pdf"));
}

void frmPreview::askPdf()
{
    if (!m_sheet) return;
    const QString path = prompts().saveFile({txt(Text{21407, u"Mentés PDF-be"}),
                                             join(Text{21408, u"PDF-fájl"}, QStringLiteral(" (*.pdf)|*.pdf")),
                                             proposedPdf(), QStringLiteral("pdf")}, this);
    if (path.isEmpty()) return;
    settingsStore().write(QStringLiteral("ZolWOp"), QStringLiteral("Settings"), QStringLiteral("PdfFolder"),
                          QFileInfo(path).absolutePath());
    writePdf(*m_sheet, path);
}

void frmPreview::writePdf(const SheetPainter &sheet, const QString &path)
{
    const QString shown = QDir::toNativeSeparators(path);
    QString error = whyKept(path).value_or(QString());
    OutputResult result = OutputResult::Failed;
    m_note->clear();
    if (error.isEmpty())
        result = savePdf(sheet, path, error, [this](SheetOutput &output) { return runShown(output, this); });
    if (result == OutputResult::Done) m_note->setText(join(Text{21409, u"Elkészült: "}, shown));
    if (result != OutputResult::Failed) return;
    prompts().tell(
        {Icon::Exclamation, appTitle(),
         join(Text{21414, u"A PDF-fájl nem írható: "}, shown, QStringLiteral("\n"), error,
              QStringLiteral("\n"),
              Text{21415, u"Válasszon másik mappát vagy fájlnevet! A korábbi fájl változatlan maradt."})},
        this);
}

} // namespace QV_DOC_CONTROLS
