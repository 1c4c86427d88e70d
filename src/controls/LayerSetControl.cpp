#include "controls/LayerSetControl.h"

#include "controls/DesignMode.h"
#include "controls/PropertyError.h"
#include "facade/services/Language.h"
#include "facade/services/Text.h"
#include "kit/ask/ErrorRelay.h"
#include "kit/forms/GroupRole.h"
#include "kit/forms/QuietWheel.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QSignalBlocker>

#include <algorithm>
#include <limits>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

namespace {

struct Entry {
    int data; ///< groups have theirs, which are not negative
    Text caption;
};
constexpr Entry kEntries[] = {
    {-1, {33, u"(Aktuális réteg)"}},
    {-2, {34, u"(Összes réteg)"}},
    {-3, {35, u"(Látható rétegek)"}},
    {-4, {36, u"(Felsorolt rétegek)"}},
};
constexpr int kCurrent = -1, kAll = -2, kVisible = -3, kEnumerated = -4;
constexpr int kEnumeratedRow = 3;

} // namespace

LayerSetControl::LayerSetControl(const char *type, QWidget *parent)
    : QWidget(parent), cboLays(new QComboBox(this)), txtLays(new QLineEdit(this)), m_type(type),
      m_identity(type), m_sLayGroup(QString::fromUtf16(kFirstEntry))
{
    announceAsGroup<LayerSetControl>();
    txtLays->setObjectName(QStringLiteral("txtLays"));
    txtLays->setMaxLength(std::numeric_limits<int>::max()); // as long as the numbers of all layers
    txtLays->installEventFilter(this);
    cboLays->setObjectName(QStringLiteral("cboLays"));
    cboLays->setMinimumContentsLength(8);
    cboLays->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    quietWheel(*cboLays);
    cboLays->installEventFilter(this);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    ErrorRelay &user = ErrorRelay::reporting();
    connect(txtLays, &QLineEdit::textChanged, this, [this, &user] {
        if (!m_writing) user.guard([this] { takeText(); });
    });
    connect(cboLays, &QComboBox::activated, this, [this, &user](int entry) {
        if (!user.guard([&] { choose(entry); })) cboLays->setCurrentIndex(cboLays->findText(m_sLayGroup));
    });
    connect(&LanguageHub::instance(), &LanguageHub::LanguageChanged, this,
            &LayerSetControl::ml_RuntimeSupport_LanguageChanged);
    setSingleLine(false);
}

LayerSetControl::~LayerSetControl() = default;

void LayerSetControl::setsLays(const QString &text)
{
    if (isDesigned(*this)) throw PropertyError(PropertyError::SetNotPermitted, "sLays");
    const QPointer<LayerSetControl> alive(this);
    writeText(text);
    takeText();
    if (alive) showSet();
}

void LayerSetControl::setsLayGroup(const QString &caption)
{
    if (isDesigned(*this)) throw PropertyError(PropertyError::SetNotPermitted, "sLayGroup");
    chooseNamed(caption);
}

void LayerSetControl::chooseNamed(const QString &caption)
{
    const QPointer<LayerSetControl> alive(this);
    if (!select(caption)) select(kCurrent);
    if (!alive || cboLays->currentData().toInt() != kEnumerated) return;
    QString text = m_sLays;
    readSet(text);
    if (alive) showSet();
}

void LayerSetControl::layersArrived()
{
    showChoices();
    const bool kept = !m_arrived && m_set.count() > 0;
    m_arrived = true;
    if (!kept) return chooseNamed(m_sLayGroup);
    select(kEnumerated);
    showSet();
    emit ChangeLays(m_set);
}

void LayerSetControl::layersLeft()
{
    m_arrived = false;
    m_set = {};
    describe();
}

void LayerSetControl::currentLayerArrived()
{
    if (cboLays->currentData().toInt() == kCurrent) select(kCurrent);
}

void LayerSetControl::readSet(QString &text)
{
    const std::vector<LayerNumbers> numbers = layerNumbersIn(text);
    m_set = hasLayers() ? layersWith(numbers) : LayerSet();
    describe();
    if (hasLayers()) emit ChangeLays(m_set);
}

void LayerSetControl::writeNumber(qint16 number)
{
    writeText(QString::number(number));
    takeText();
}

void LayerSetControl::takeText()
{
    m_sLays = txtLays->text();
    select(cboLays->itemText(kEnumeratedRow)); // by caption
    QString text = m_sLays;
    readSet(text);
}

/// By item data when the value is an integer, else by caption.
bool LayerSetControl::select(const QVariant &value)
{
    const bool isData = value.typeId() == QMetaType::Int;
    const int entry = isData ? cboLays->findData(value) : cboLays->findText(value.toString());
    if (entry < 0) return false;
    choose(entry);
    return true;
}

void LayerSetControl::choose(int entry)
{
    const tLayArr chosen = layersChosenBy(cboLays->itemData(entry).toInt()); // throws before anything changes
    cboLays->setCurrentIndex(entry);
    // By caption, on purpose: a group of the same name adds to the set and tells nobody.
    const bool enumerated = cboLays->itemText(entry) == cboLays->itemText(kEnumeratedRow);
    if (!enumerated) m_set = {};
    for (const tLay &lay : chosen) m_set.add(lay);
    m_sLayGroup = cboLays->itemText(entry);
    describe();
    if (enumerated) return;
    showSet();
    if (hasLayers()) emit ChangeLays(m_set);
}

tLayArr LayerSetControl::layersChosenBy(qint32 itemData) const
{
    tLayArr layers;
    switch (itemData) {
    case kEnumerated: break;
    case kCurrent:
        if (const auto current = currentLayer()) layers.push_back(*current);
        break;
    case kAll: return allLayers();
    case kVisible:
        layers = allLayers();
        std::erase_if(layers, [](const tLay &l) { return !l.Visible; });
        break;
    default: return layersOf(itemData);
    }
    return layers;
}

/// Where nothing has arrived or been typed, what is kept stays.
void LayerSetControl::normalise()
{
    if (m_arrived || !txtLays->text().isEmpty()) showSet();
}

void LayerSetControl::showSet() { writeText(layerSetText(m_set.layers())); }

void LayerSetControl::writeText(const QString &text)
{
    m_writing = true;
    if (txtLays->text() != text) txtLays->setText(text);
    m_writing = false;
    txtLays->end(false);
    m_sLays = text;
}

void LayerSetControl::showChoices()
{
    const std::vector<tGroup> groups = layerGroups(); // throws before anything changes
    const QSignalBlocker quiet(cboLays);
    const QVariant chosen = cboLays->currentData();
    const bool follows = m_sLayGroup == cboLays->currentText(); // renamed or translated meanwhile
    cboLays->clear();
    for (const Entry &entry : kEntries) cboLays->addItem(txt(entry.caption), entry.data);
    for (const tGroup &group : groups)
        if (group.GroupId > 0) cboLays->addItem(group.GroupName, int(group.GroupId));
    const int row = chosen.isValid() ? cboLays->findData(chosen) : 0;
    cboLays->setCurrentIndex(row < 0 ? kEnumeratedRow : row); // a group that is gone leaves its layers
    if (follows) m_sLayGroup = cboLays->currentText();
}

void LayerSetControl::ml_RuntimeSupport_LanguageChanged()
{
    ErrorRelay::reporting().guard([this] { showChoices(); });
    setAccessibleName(txt(Text{22057, u"Réteghalmaz"}));
    txtLays->setAccessibleName(txt(Text{22050, u"Rétegszámok"}));
    txtLays->setPlaceholderText(QStringLiteral("1-3,7"));
    cboLays->setAccessibleName(txt(Text{22051, u"Rétegek kiválasztása"}));
    cboLays->setAccessibleDescription(cboLays->accessibleName()); // some readers take the entry for the name
    cboLays->setToolTip(cboLays->accessibleName());
    describe();
}

void LayerSetControl::describe()
{
    const QString how = txt(Text{22052, u"Rétegszámok és tartományok vesszővel elválasztva, például 1-3,7"});
    txtLays->setToolTip(how + u'\n' + join(Text{22053, u"A halmaz rétegeinek száma: "}, m_set.count()));
    txtLays->setAccessibleDescription(txtLays->toolTip());
}

/// Enter and leaving bring the text into its normal form; a list that is entered shows the groups of now.
bool LayerSetControl::eventFilter(QObject *watched, QEvent *event)
{
    const bool focus = event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
    const Qt::FocusReason reason = focus ? static_cast<QFocusEvent *>(event)->reason() : Qt::NoFocusReason;
    if (watched == txtLays && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
        normalise();
        return true; // consumed: the form's default button would hide the result
    }
    if (reason == Qt::PopupFocusReason) return false;
    if (watched == txtLays && event->type() == QEvent::FocusOut && reason != Qt::ActiveWindowFocusReason)
        normalise();
    if (watched == cboLays && event->type() == QEvent::FocusIn)
        ErrorRelay::reporting().guard([this] { showChoices(); });
    return false;
}

} // namespace QV_DOC_CONTROLS
