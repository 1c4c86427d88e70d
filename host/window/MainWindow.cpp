#include "window/MainWindow.h"

#include "window/CodePageMenu.h"
#include "window/DialogCalls.h"
#include "window/HostServices.h"
#include "window/WindowActions.h"

#include "facade/clsDocDlgs.h"
#include "facade/services/Language.h"
#include "facade/services/Services.h"

#include <QAction>
#include <QActionGroup>
#include <QCloseEvent>
#include <QDockWidget>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

const QString kProgram = QStringLiteral("QVDraw"), kSection = QStringLiteral("Window");
const QString kGeometry = QStringLiteral("Geometry"), kState = QStringLiteral("State"),
              kDark = QStringLiteral("Dark"), kWarn = QStringLiteral("WarnInvisible");
constexpr int kStateVersion = 2;               // another one when toolbars or pages come or go

QString withoutKey(QString caption) { return caption.remove(u'&'); }

} // namespace

MainWindow::MainWindow(HostServices &services)
    : m_services(services), m_dialogs(std::make_unique<clsDocDlgs>()), m_tabs(new DrawingTabs(this)),
      m_files(*m_tabs), m_status(*statusBar()), m_newElement(new NewElementForm(this)),
      m_newElementPage(new QDockWidget(this))
{
    setAppTitle(kProgram);
    setCentralWidget(m_tabs);
    m_dialogs->setoDocList(&m_tabs->documents());
    buildActions();
    buildDialogs();
    buildLanguages();
    buildNewElement();
    connectParts();
    retranslate();
    restoreLook();
}

MainWindow::~MainWindow()
{
    m_tabs->disconnect(this);
    m_newElementPage->disconnect(this);         // it tells that it is hidden when the window goes
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
            if (!m_tabs->page() && row.needsDrawing()) return;
            if (row.tool()) chooseTool(*row.tool());
            else std::get<WindowActions::Act>(row.does)(*this, checked);
        });
    }
    m_recent = new QMenu(this);
    m_menus[WindowActions::File]->insertMenu(action("saveAs"), m_recent);
    connect(m_recent, &QMenu::aboutToShow, this, &MainWindow::showRecent);
    m_codePages = new CodePageMenu(this);
    m_menus[WindowActions::Settings]->addMenu(m_codePages);
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

void MainWindow::buildNewElement()
{
    m_newElementPage->setObjectName(QStringLiteral("newElementPage"));
    m_newElementPage->setWidget(m_newElement);
    addDockWidget(Qt::RightDockWidgetArea, m_newElementPage);
    connect(m_newElementPage, &QDockWidget::visibilityChanged, this,
            [this] { action("newElement")->setChecked(!m_newElementPage->isHidden()); });
    connect(m_newElement, &NewElementForm::failed, &m_files, &FileCommands::tellFailure);
    connect(m_newElement, &NewElementForm::done, this, [this] {
        if (m_tabs->page()) m_tabs->page()->setFocus();
    });
}

void MainWindow::showNewElement(bool shown)
{
    m_newElementPage->setVisible(shown);
    if (shown) m_newElement->setFocus(Qt::TabFocusReason);
}

void MainWindow::connectParts()
{
    connect(&LanguageHub::instance(), &LanguageHub::LanguageChanged, this, &MainWindow::retranslate);
    connect(m_tabs, &DrawingTabs::pageOpened, this, [this](DrawingPage *page) { adopt(*page); });
    connect(m_tabs, &DrawingTabs::tabCloseRequested, &m_files, &FileCommands::close);
    connect(m_tabs, &DrawingTabs::currentChanged, this, [this] {
        showTool();
        showStatus();
        m_newElement->setPage(m_tabs->page());
        if (m_tabs->page()) m_tabs->page()->setFocus();
    });
}

/// What its view tells counts while the drawing is in front.
void MainWindow::adopt(DrawingPage &page)
{
    page.view().setDark(m_dark);
    page.view().setColors(m_colors);
    const auto inFront = [this, &page](auto act) {
        return [this, &page, act](auto &&...told) {
            if (m_tabs->page() == &page) act(told...);
        };
    };
    const auto status = inFront([this](auto &&...) { showStatus(); });
    connect(&page, &DrawingPage::refreshed, this, status);
    connect(&page, &DrawingPage::failed, &m_files, &FileCommands::tellFailure);
    connect(&page.view(), &DrawingView::viewChanged, this, status);
    connect(&page.view(), &DrawingView::selectionChanged, this, status);
    connect(&page.view(), &DrawingView::toolChanged, this, inFront([this](auto &&...) { showTool(); }));
    connect(&page.view(), &DrawingView::cursorAt, this,
            [this](QPointF world) { m_status.showCursor(world); });
}

QAction *MainWindow::action(const char *name) const { return findChild<QAction *>(QLatin1String(name)); }

void MainWindow::chooseTool(DrawingView::Tool tool)
{
    view().setTool(tool);
    view().setFocus();
}

void MainWindow::setDark(bool dark)
{
    m_dark = dark;
    for (int i = 0; i < m_tabs->count(); ++i) m_tabs->page(i)->view().setDark(dark);
}

void MainWindow::setColors(Colors colors)
{
    m_colors = colors;
    for (int i = 0; i < m_tabs->count(); ++i) m_tabs->page(i)->view().setColors(colors);
}

void MainWindow::setWarning(bool on) { m_dialogs->setWarnInvisibleCurrentLayer(on); }
void MainWindow::setOldStyle(bool on)
{
    m_services.settings()->write(QLatin1String(kSetup), QLatin1String(kOldStyle), on);
}

void MainWindow::showTool()
{
    const DrawingView::Tool tool = m_tabs->page() ? view().tool() : DrawingView::Tool::Select;
    for (QAction *a : m_tools->actions())
        if (a->data().toInt() == int(tool)) a->setChecked(true);
    m_status.showHint(txt(WindowActions::hintOf(tool)));
}

void MainWindow::retranslate()
{
    for (size_t i = 0; i < m_menus.size(); ++i) m_menus[i]->setTitle(txt(WindowActions::menus()[i]));
    for (const WindowActions::Row &row : WindowActions::rows()) action(row.name)->setText(txt(row.text));
    for (const DialogCall &call : dialogCalls()) action(call.name)->setText(txt(call.text));
    m_codePages->retranslate();
    m_recent->setTitle(txt(Text{30414, u"&Legutóbbi rajzok"}));
    m_newElementPage->setWindowTitle(withoutKey(action("newElement")->text()));
    const QList<QToolBar *> bars = findChildren<QToolBar *>(Qt::FindDirectChildrenOnly);
    for (qsizetype i = 0; i < bars.size(); ++i)
        bars[i]->setWindowTitle(withoutKey(m_menus[size_t(i)]->title()));
    for (QAction *a : m_languages->actions())
        a->setChecked(a->data().toInt() == m_services.language()->currentLanguage());
    showTool();
    showStatus();
}

bool MainWindow::run(const DialogCall &call)
{
    if (!m_tabs->page()) return false;
    bool confirmed = false;
    try {
        confirmed = call.run(*m_dialogs, page());
    } catch (const std::exception &e) {
        m_files.tellFailure(QString::fromUtf8(e.what()));
    }
    for (int i = 0; i < m_tabs->count(); ++i) m_tabs->page(i)->refreshIfChanged();
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
    OpenDrawing *const shown = m_files.drawing();
    const QString mark = shown && shown->hasUnsavedWork() ? QStringLiteral("*") : QString();
    setWindowTitle(shown ? shown->name() + mark + QStringLiteral(" – ") + kProgram : kProgram);
    action("delete")->setEnabled(shown && !view().selection().empty());
    action("close")->setEnabled(shown && (m_tabs->count() > 1 || !shown->isUntouched()));
    if (shown) m_status.show(view());
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
    if (!restoreGeometry(QByteArray::fromBase64(read(kGeometry).toLatin1())))
        resize(DrawingView().sizeHint());
    restoreState(QByteArray::fromBase64(read(kState).toLatin1()), kStateVersion);
    const QString dark = read(kDark);
    const bool desktopIsDark = palette().color(QPalette::Base).lightness() < 128;
    action("dark")->setChecked(dark.isEmpty() ? desktopIsDark : dark == u"1");
    setDark(action("dark")->isChecked());
    action("warn")->setChecked(read(kWarn) != u"0");
    setWarning(action("warn")->isChecked());
    action("oldStyle")->setChecked(
        m_services.settings()->readBool(QLatin1String(kSetup), QLatin1String(kOldStyle), false));
}

void MainWindow::rememberLook() const
{
    const auto write = [](const QString &key, const QString &value) {
        settingsStore().write(settingsName(), kSection, key, value);
    };
    write(kGeometry, QString::fromLatin1(saveGeometry().toBase64()));
    write(kState, QString::fromLatin1(saveState(kStateVersion).toBase64()));
    write(kWarn, action("warn")->isChecked() ? QStringLiteral("1") : QStringLiteral("0"));
    write(kDark, m_dark ? QStringLiteral("1") : QStringLiteral("0"));
}

} // namespace refhost
