#include "window/MainWindow.h"

#include "window/DialogCalls.h"
#include "window/HostServices.h"
#include "window/WindowActions.h"

#include "facade/clsDocDlgs.h"
#include "facade/services/InterfaceLocale.h"
#include "facade/services/Language.h"
#include "facade/services/Services.h"

#include <QAction>
#include <QActionGroup>
#include <QCloseEvent>
#include <QLabel>
#include <QLocale>
#include <QMenuBar>
#include <QPainter>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

const QString kProgram = QStringLiteral("QVDraw"), kSection = QStringLiteral("Window");
const QString kGeometry = QStringLiteral("Geometry"), kState = QStringLiteral("State"),
              kDark = QStringLiteral("Dark");
constexpr int kStateVersion = 1;               // another one when toolbars come or go

QString withoutKey(QString caption) { return caption.remove(u'&'); }

/// Shortens its text to the room it has.
class HintLabel final : public QLabel {
public:
    using QLabel::QLabel;
protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter p(this);
        const QString fitting = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
        style()->drawItemText(&p, contentsRect(), int(alignment()), palette(), isEnabled(), fitting,
                              foregroundRole());
    }
};

QString shown(double value, int decimals) { return QLocale::c().toString(value, 'f', decimals); }

} // namespace

MainWindow::MainWindow(HostServices &services)
    : m_services(services), m_dialogs(std::make_unique<clsDocDlgs>()), m_view(new DrawingView(this)),
      m_files(*this), m_edits(*m_view)
{
    setAppTitle(kProgram);
    setCentralWidget(m_view);
    buildActions();
    buildDialogs();
    buildLanguages();
    buildStatus();
    connectParts();
    retranslate();
    restoreLook();
    m_view->setFocus();
}

MainWindow::~MainWindow()
{
    m_edits.setDrawing(nullptr);
    LanguageHub::instance().disconnect(this);
}

void MainWindow::buildActions()
{
    m_tools = new QActionGroup(this);
    for (size_t i = 0; i < WindowActions::MenuCount; ++i) m_menus.push_back(menuBar()->addMenu(QString()));
    std::vector<QToolBar *> bars;
    for (const char *name : {"fileBar", "viewBar", "drawBar"}) {
        bars.push_back(addToolBar(QString()));
        bars.back()->setObjectName(QLatin1String(name));
    }
    for (const WindowActions::Row &row : WindowActions::rows()) {
        auto *const a = new QAction(this);
        a->setObjectName(QLatin1String(row.name));
        a->setCheckable(row.tool() || row.kind == WindowActions::Switch);
        if (*row.keys) a->setShortcuts(QKeySequence::listFromString(QLatin1String(row.keys)));
        if (row.sign) a->setIcon(iconOf(*row.sign));
        if (row.separatorBefore) m_menus[size_t(row.menu)]->addSeparator();
        m_menus[size_t(row.menu)]->addAction(a);
        if (row.sign) bars[size_t(row.menu)]->addAction(a);
        if (row.tool()) a->setData(int(*row.tool())), m_tools->addAction(a);
        connect(a, &QAction::triggered, this, [this, &row](bool checked) {
            if (row.tool()) chooseTool(*row.tool());
            else std::get<WindowActions::Act>(row.does)(*this, checked);
        });
    }
    m_recent = new QMenu(this);
    m_menus[WindowActions::File]->insertMenu(action("saveAs"), m_recent);
    connect(m_recent, &QMenu::aboutToShow, this, &MainWindow::showRecent);
}

void MainWindow::buildDialogs()
{
    QToolBar *const bar = addToolBar(QString());
    bar->setObjectName(QStringLiteral("dialogBar"));
    for (const DialogCall &call : dialogCalls()) {
        auto *const a = new QAction(iconOf(call.sign), {}, this);
        a->setObjectName(QLatin1String(call.name));
        m_menus[WindowActions::Dialogs]->addAction(a);
        bar->addAction(a);
        connect(a, &QAction::triggered, this, [this, &call] { run(call); });
    }
}

void MainWindow::buildLanguages()
{
    m_languages = new QActionGroup(this);
    for (int id : Language::all()) {
        QAction *const a = m_menus[WindowActions::LanguageMenu]->addAction(languageNameOf(id));
        a->setCheckable(true);
        a->setData(id);
        m_languages->addAction(a);
        connect(a, &QAction::triggered, this, [this, id] { m_services.language()->setCurrent(id); });
    }
}

void MainWindow::buildStatus()
{
    m_hint = new HintLabel(this);
    for (QLabel **label : {&m_layer, &m_place, &m_scale, &m_count}) {
        *label = new QLabel(this);
        (*label)->setTextFormat(Qt::PlainText);
        (*label)->setIndent(fontMetrics().averageCharWidth());
    }
    m_hint->setSizePolicy(QSizePolicy::Ignored,
                          QSizePolicy::Preferred); // the first to give way in a narrow window
    m_layer->setObjectName(QStringLiteral("layerStatus"));
    m_count->setObjectName(QStringLiteral("countStatus"));
    statusBar()->addWidget(m_hint, 1);
    for (QLabel *label : {m_layer, m_place, m_scale, m_count}) statusBar()->addPermanentWidget(label);
}

void MainWindow::connectParts()
{
    connect(&LanguageHub::instance(), &LanguageHub::LanguageChanged, this, &MainWindow::retranslate);
    connect(&m_files, &FileCommands::aboutToClose, this, [this] { m_edits.setDrawing(nullptr); });
    connect(&m_files, &FileCommands::opened, this, [this] {
        m_files.drawing()->doc().onRedraw = [this] { refresh(); };
        m_edits.setDrawing(m_files.drawing());
        refresh();
        m_view->fitMain();
    });
    connect(&m_edits, &DrawingEdits::changed, this, &MainWindow::refresh);
    connect(&m_edits, &DrawingEdits::failed, &m_files, &FileCommands::tellFailure);
    connect(m_view, &DrawingView::cursorAt, this, &MainWindow::showCursor);
    connect(m_view, &DrawingView::viewChanged, this, &MainWindow::showStatus);
    connect(m_view, &DrawingView::selectionChanged, this, &MainWindow::showStatus);
    connect(m_view, &DrawingView::toolChanged, this, &MainWindow::showTool);
    showTool();
}

QAction *MainWindow::action(const char *name) const { return findChild<QAction *>(QLatin1String(name)); }

void MainWindow::chooseTool(DrawingView::Tool tool)
{
    m_view->setTool(tool);
    m_view->setFocus();
}

void MainWindow::showTool()
{
    for (QAction *a : m_tools->actions())
        if (a->data().toInt() == int(m_view->tool())) a->setChecked(true);
    m_hint->setText(txt(WindowActions::hintOf(m_view->tool())));
    m_hint->setToolTip(m_hint->text());
}

void MainWindow::retranslate()
{
    for (size_t i = 0; i < m_menus.size(); ++i) m_menus[i]->setTitle(txt(WindowActions::menus()[i]));
    for (const WindowActions::Row &row : WindowActions::rows()) action(row.name)->setText(txt(row.text));
    for (const DialogCall &call : dialogCalls()) action(call.name)->setText(txt(call.text));
    m_recent->setTitle(txt(Text{30414, u"&Legutóbbi rajzok"}));
    const QList<QToolBar *> bars = findChildren<QToolBar *>(Qt::FindDirectChildrenOnly);
    for (qsizetype i = 0; i < bars.size(); ++i)
        bars[i]->setWindowTitle(withoutKey(m_menus[size_t(i)]->title()));
    for (QAction *a : m_languages->actions())
        a->setChecked(a->data().toInt() == m_services.language()->currentLanguage());
    showTool();
    showStatus();
}

void MainWindow::refresh()
{
    if (!m_files.drawing()) return;
    try {
        SqliteDoc &doc = m_files.drawing()->doc();
        m_view->setScene(Scene(resourcesOf(doc), doc.elements()));
    } catch (const std::exception &e) {
        m_files.tellFailure(QString::fromUtf8(e.what()));
    }
    showStatus();
}

bool MainWindow::run(const DialogCall &call)
{
    if (!m_files.drawing()) return false;
    bool confirmed = false;
    try {
        confirmed = call.run(*m_dialogs, m_files.drawing()->doc());
    } catch (const std::exception &e) {
        m_files.tellFailure(QString::fromUtf8(e.what()));
    }
    refresh(); // a cancelled dialog may have changed tables too
    return confirmed;
}

void MainWindow::showRecent()
{
    m_recent->clear();
    for (const QString &path : FileCommands::recent())
        connect(m_recent->addAction(QString(path).replace(u'&', QStringLiteral("&&"))), &QAction::triggered,
                this, [this, path] { m_files.openFile(path); });
    if (m_recent->isEmpty()) m_recent->addAction(txt(Text{30417, u"Még nincs"}))->setEnabled(false);
}

void MainWindow::showStatus()
{
    const Scene &scene = m_view->scene();
    const bool open = m_files.drawing() != nullptr;
    setWindowTitle(open ? m_files.drawing()->name() + QStringLiteral(" – ") + kProgram : kProgram);
    action("delete")->setEnabled(!m_view->selection().empty());
    m_scale->setText(QStringLiteral("1 : ") +
                     interfaceLocale().toString(qRound64(m_view->viewport().scale())));
    const int chosen = int(m_view->selection().size());
    m_count->setText(join(interfaceLocale().toString(qlonglong(scene.elements().size())),
                          Text{30464, u" elem"},
                          chosen ? join(Text{30465, u", kijelölve: "}, chosen) : QString()));
    if (!open) return;
    const ZolWDoc::tLay *lay = scene.resources().layers.find(scene.resources().currentLayer);
    QString layer = lay ? join(Text{30460, u"Réteg: "}, int(lay->gNr), QStringLiteral(" "), lay->Name)
                        : txt(Text{30462, u"Nincs aktuális réteg"});
    if (lay && !lay->Visible) layer += txt(Text{30461, u" (nem látható)"});
    m_layer->setText(layer);
}

void MainWindow::showCursor(QPointF world)
{
    m_place->setText(shown(world.x(), 2) + QStringLiteral("; ") + shown(world.y(), 2));
    m_place->setMinimumWidth(
        std::max(m_place->minimumWidth(), m_place->sizeHint().width())); // the bar stands still
}

void MainWindow::closeEvent(QCloseEvent *e)
{
    if (!m_files.mayLeave()) return e->ignore();
    rememberLook();
    e->accept();
}

void MainWindow::changeEvent(QEvent *e)
{
    if (e->type() == QEvent::PaletteChange) // the icons' colour
        for (QToolBar *bar : findChildren<QToolBar *>()) bar->update();
    QMainWindow::changeEvent(e);
}

void MainWindow::restoreLook()
{
    const auto read = [](const QString &key) {
        return settingsStore().read(settingsName(), kSection, key, {});
    };
    if (!restoreGeometry(QByteArray::fromBase64(read(kGeometry).toLatin1()))) resize(m_view->sizeHint());
    restoreState(QByteArray::fromBase64(read(kState).toLatin1()), kStateVersion);
    const QString dark = read(kDark);
    const bool desktopIsDark = palette().color(QPalette::Base).lightness() < 128;
    action("dark")->setChecked(dark.isEmpty() ? desktopIsDark : dark == u"1");
    m_view->setDark(action("dark")->isChecked());
}

void MainWindow::rememberLook() const
{
    const auto write = [](const QString &key, const QString &value) {
        settingsStore().write(settingsName(), kSection, key, value);
    };
    write(kGeometry, QString::fromLatin1(saveGeometry().toBase64()));
    write(kState, QString::fromLatin1(saveState(kStateVersion).toBase64()));
    write(kDark, m_view->isDark() ? QStringLiteral("1") : QStringLiteral("0"));
}

} // namespace refhost
