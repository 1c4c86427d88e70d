#include "window/NewElementForm.h"

#include "controls/ZOL3_LayGroup.h"
#include "controls/ZOL3_LayInfo.h"
#include "controls/usInputBox.h"
#include "facade/services/InterfaceLocale.h"
#include "facade/services/Text.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

constexpr int kDecimal = 3;                         // input type
constexpr quint8 kFollows = 1;                      // change mode of what the document says
constexpr int kLetters = 50;                        // across: the layer's name has room
constexpr int kRotationTab = 1, kHeightTab = 2;     // where Enter goes on

} // namespace

NewElementForm::NewElementForm(QWidget *parent)
    : QWidget(parent), m_layer(new ZOL3_LayInfo(this)), m_layersCaption(new QLabel(this)),
      m_layers(new ZOL3_LayGroup(this))
{
    m_layer->setObjectName(QStringLiteral("layerOfNew"));
    m_layers->setObjectName(QStringLiteral("layersOfNew"));
    m_layersCaption->setBuddy(m_layers);
    auto *const column = new QVBoxLayout(this);
    for (QWidget *control : std::initializer_list<QWidget *>{m_layer, m_layersCaption, m_layers})
        column->addWidget(control);
    m_width = addBox("widthOfNew", "0.00", 10, 0.05);
    m_rotation = addBox("rotationOfNew", "0.0###", 360, 5);
    m_textHeight = addBox("heightOfNew", "0.0#", 100, 0.5);
    column->addStretch(1);
    setFocusProxy(m_layer);
    setMinimumWidth(fontMetrics().averageCharWidth() * kLetters);
    m_width->setSetFocusNextTabIndex(kRotationTab);
    m_rotation->setProperty("TabIndex", kRotationTab);
    m_rotation->setSetFocusNextTabIndex(kHeightTab);
    m_textHeight->setProperty("TabIndex", kHeightTab);
    connectControls();
    retranslate();
    setPage(nullptr);
}

usInputBox *NewElementForm::addBox(const char *name, const char *format, double max, double step)
{
    auto *const box = new usInputBox(this);
    box->setObjectName(QLatin1String(name));
    box->setInputType(kDecimal);
    box->setReadsLocale(true);
    box->setFormatString(QLatin1String(format));
    box->setMin(0);
    box->setMax(max);
    box->setUpDownInc(step);
    box->setUpDownVisible(true);
    connect(box, &usInputBox::Change, this, &NewElementForm::takeNumbers);
    layout()->addWidget(box);
    return box;
}

void NewElementForm::connectControls()
{
    connect(m_layers, &ZOL3_LayGroup::ChangeLays, this, [this](const LayerSet &set) { takeSet(set); });
    connect(&LanguageHub::instance(), &LanguageHub::LanguageChanged, this, &NewElementForm::retranslate);
}

template <class Act> void NewElementForm::guarded(Act act)
{
    try {
        act();
    } catch (const std::exception &e) {
        emit failed(QString::fromUtf8(e.what()));
    }
}

void NewElementForm::setPage(DrawingPage *page)
{
    if (m_page) m_page->disconnect(this);
    m_page = page;
    setEnabled(page);
    m_layer->TearDown();
    m_layers->TearDown();
    if (!page) return;
    connect(page, &DrawingPage::refreshed, this, &NewElementForm::followDocument);
    followDocument();
    handOver();
}

/// The current layer, its name and the groups may be others now; after saving, so may the document.
void NewElementForm::followDocument()
{
    guarded([this] {
        SqliteDoc &doc = m_page->doc();
        if (m_layer->oDoc() != &doc) m_layer->setoDoc(&doc);
        const auto current = doc.layers().find(doc.layers().currentId());
        if (current && !m_layer->txtLayNr->isModified()) m_layer->LetLayId(current->LayId, kFollows);
        if (m_layers->ZOLW_Doc() != &doc) m_layers->setZOLW_Doc(&doc);
        else if (!m_layers->txtLays->hasFocus()) m_layers->setsLayGroup(m_layers->sLayGroup());
    });
}

void NewElementForm::takeSet(const LayerSet &set)
{
    m_attributes.layers.clear();
    for (const ZolWDoc::tLay &lay : set.layers()) m_attributes.layers.push_back(lay.LayId);
    handOver();
}

void NewElementForm::takeNumbers()
{
    m_attributes.width = m_width->Value().toDouble();
    m_attributes.rotation = m_rotation->Value().toDouble();
    m_attributes.textHeight = m_textHeight->Value().toDouble();
    handOver();
}

void NewElementForm::handOver()
{
    if (m_page) m_page->edits().setNewElement(m_attributes);
}

void NewElementForm::retranslate()
{
    m_layersCaption->setText(txt(Text{30625, u"Az új elem ré&tegei:"}));
    m_layersCaption->setToolTip(
        txt(Text{30626, u"Az elem mindegyik rétegre elkészül; üresen az aktuális rétegre."}));
    m_layers->setToolTip(m_layersCaption->toolTip());
    m_width->setBeforeString(txt(Text{30627, u"Vonal&vastagság"}));
    m_rotation->setBeforeString(txt(Text{30628, u"&Elforgatás"}));
    m_rotation->setAfterString(QStringLiteral("°"));
    m_textHeight->setBeforeString(txt(Text{30629, u"&Szövegmagasság"}));
    m_width->setToolTip(txt(Text{30630, u"Milliméter a papíron; 0: a réteg vonaltípusa szerint."}));
    m_textHeight->setToolTip(txt(Text{30631, u"Milliméter a papíron; 0: a felirattípus szerint."}));
    const std::initializer_list<usInputBox *> boxes{m_width, m_rotation, m_textHeight};
    int widest = 0;                                 // pixels: the values stand below each other
    for (const usInputBox *box : boxes)
        widest = std::max(widest, fontMetrics().horizontalAdvance(box->BeforeString() + u' '));
    for (usInputBox *box : boxes) {
        box->setLocale(interfaceLocale());
        box->setWidthBeforeString(widest * 1440 / logicalDpiX());
    }
}

void NewElementForm::keyPressEvent(QKeyEvent *e)
{
    if (e->key() != Qt::Key_Escape) return QWidget::keyPressEvent(e);
    dropTyped();
    emit done();
}

void NewElementForm::dropTyped()
{
    for (usInputBox *box : {m_width, m_rotation, m_textHeight}) box->LetValue(box->Value());
    if (m_layer->LayId() != -1) guarded([this] { m_layer->LetLayId(m_layer->LayId(), kFollows); });
}

} // namespace refhost
