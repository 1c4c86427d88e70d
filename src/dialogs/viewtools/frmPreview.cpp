#include "dialogs/viewtools/frmPreview.h"

#include "facade/services/Language.h"
#include "facade/services/Prompts.h"
#include "facade/services/Services.h"
#include "kit/ask/PrinterChoice.h"
#include "kit/forms/QuietWheel.h"
#include "kit/forms/WindowSize.h"
#include "kit/paper/PageSetup.h"
#include "kit/paper/PageSetupDialog.h"
#include "kit/paper/SheetOutput.h"
#include "kit/paper/SheetPreview.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QPrinter>
#include <QPushButton>
#include <QShortcut>
#include <QSpinBox>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {
namespace {

constexpr Text kCaption{3133, u"Nyomtatási kép"};
const QString kForm = QStringLiteral("frmPreview");
constexpr QSize kUsualLetters(130, 50); ///< a page in it can be recognised

} // namespace

frmPreview::frmPreview()
    : grPrev(new SheetPreview(this)), m_pageLabel(new QLabel(this)), m_zoomLabel(new QLabel(this)),
      m_note(new QLabel(this)), m_page(new QSpinBox(this)), m_zoom(new QComboBox(this))
{
    setObjectName(kForm);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    grPrev->setObjectName(QStringLiteral("grPrev"));
    m_page->setObjectName(QStringLiteral("spinPage"));
    m_zoom->setObjectName(QStringLiteral("cboZoom"));
    m_note->setObjectName(QStringLiteral("lblNote"));
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

QPushButton *frmPreview::add(const char *name, Text caption, void (frmPreview::*run)())
{
    auto *const button = new QPushButton(this);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    m_commands.push_back({button, caption});
    connect(button, &QPushButton::clicked, this, run);
    return button;
}

void frmPreview::build()
{
    QPushButton *const previous = add("cmdPrevious", {21401, u"Előző oldal"}, &frmPreview::previousPage);
    QPushButton *const next = add("cmdNext", {21402, u"Következő oldal"}, &frmPreview::nextPage);
    QPushButton *const setup = add("cmdPageSetup", {3345, u"Oldalbeállítás"}, &frmPreview::pageSetup);
    QPushButton *const pdf = add("cmdSavePdf", {21400, u"Mentés PDF-be…"}, &frmPreview::askPdf);
    QPushButton *const printing = add("cmdPrint", {3346, u"Nyomtatás"}, &frmPreview::print);
    QPushButton *const closing = add("cmdClose", {3344, u"Bezárás"}, &frmPreview::reject);
    printing->setDefault(true);
    m_page->installEventFilter(this);
    m_pageLabel->setBuddy(m_page);
    m_zoomLabel->setBuddy(m_zoom);
    m_note->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_note->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    for (QWidget *box : {static_cast<QWidget *>(m_page), static_cast<QWidget *>(m_zoom)}) quietWheel(*box);

    auto *const looking = new QHBoxLayout;
    for (QWidget *w : {static_cast<QWidget *>(previous), static_cast<QWidget *>(next),
                       static_cast<QWidget *>(m_pageLabel), static_cast<QWidget *>(m_page),
                       static_cast<QWidget *>(m_zoomLabel), static_cast<QWidget *>(m_zoom)})
        looking->addWidget(w);
    looking->addStretch();
    auto *const doing = new QHBoxLayout;
    doing->addWidget(m_note, 1);
    for (QWidget *w : {setup, pdf, printing, closing}) doing->addWidget(w);
    auto *const column = new QVBoxLayout(this);
    column->addLayout(looking);
    column->addWidget(grPrev, 1);
    column->addLayout(doing);
}

void frmPreview::connectAll()
{
    connect(grPrev, &SheetPreview::currentPageMoved, this, &frmPreview::followPage);
    connect(grPrev, &SheetPreview::zoomChanged, this,
            [this](double zoom) { m_zoom->setCurrentIndex(m_zoom->findData(zoom)); });
    connect(m_page, &QSpinBox::valueChanged, this, [this](int page) { grPrev->goToPage(page - 1); });
    connect(m_zoom, &QComboBox::activated, this,
            [this] { grPrev->setZoom(m_zoom->currentData().toDouble()); });
    const auto key = [this](QKeySequence keys, void (frmPreview::*run)()) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, run);
    };
    key(QKeySequence::Print, &frmPreview::print);
    key(QKeySequence::Save, &frmPreview::askPdf);
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
    for (const Command &c : m_commands) c.button->setText(txt(c.caption));
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
    exec();
    keepSizeOf(*this, kForm);
    TearDown();
}

void frmPreview::followPage(int page)
{
    const QSignalBlocker quiet(m_page);
    m_page->setValue(page + 1);
    for (const Command &c : m_commands) {
        if (c.button->objectName() == QLatin1String("cmdPrevious")) c.button->setEnabled(page > 0);
        if (c.button->objectName() == QLatin1String("cmdNext"))
            c.button->setEnabled(page + 1 < grPrev->pageCount());
    }
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

void frmPreview::pageSetup()
{
    PageSetupDialog dialog(m_paper, this);
    if (dialog.exec() != QDialog::Accepted) return;
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
    QString error;
    m_note->clear();
    const OutputResult result =
        savePdf(sheet, path, error, [this](SheetOutput &output) { return runShown(output, this); });
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
