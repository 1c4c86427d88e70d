#include "controls/ZOL3_LayInfo.h"

#include "facade/contract/ResourcePicker.h"
#include "facade/services/Language.h"
#include "facade/services/Prompts.h"
#include "facade/services/Text.h"
#include "kit/ask/ErrorRelay.h"
#include "kit/forms/ElidedLabel.h"
#include "kit/forms/GroupRole.h"
#include "kit/forms/LeavingCheck.h"
#include "kit/forms/PropertyBag.h"
#include "kit/tools/Icons.h"
#include "rules/Numeric.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QScopeGuard>

namespace QV_DOC_CONTROLS {

using ZolWDoc::tLay;

namespace {

constexpr quint8 kByUser = 0;                   ///< the change mode of what the user types or picks
constexpr int kLetters = 20;                    ///< of the name that there is room for

constexpr BagRow kBag[] = {
    {"Enabled", "Enabled", true},
    {"Font", "Font", ContainerFont{}},
    {"InfoMode", "InfoMode", false},
    {"VisibleIcon", "VisibleIcon", false},
};

} // namespace

ZOL3_LayInfo::ZOL3_LayInfo(QWidget *parent)
    : QWidget(parent), lblLay(new QLabel(this)), txtLayNr(new QLineEdit(this)),
      lblLayId(new ElidedLabel(this)), fraModLay(new QFrame(this)), cmdModLay(new QPushButton(fraModLay))
{
    announceAsGroup<ZOL3_LayInfo>();
    lblLay->setObjectName(QStringLiteral("lblLay"));
    lblLay->setBuddy(txtLayNr);
    txtLayNr->setObjectName(QStringLiteral("txtLayNr"));
    txtLayNr->setAlignment(Qt::AlignRight);
    // digits only, however they come: keys, paste, drop, input method
    const QRegularExpression digits(QStringLiteral("[0-9]*"));
    txtLayNr->setValidator(new QRegularExpressionValidator(digits, txtLayNr));
    txtLayNr->installEventFilter(this);
    lblLayId->setObjectName(QStringLiteral("lblLayId"));
    fraModLay->setObjectName(QStringLiteral("fraModLay"));
    cmdModLay->setObjectName(QStringLiteral("cmdModLay"));
    cmdModLay->setAutoDefault(false);           // Enter elsewhere on the form is not for this button

    auto *const frame = new QHBoxLayout(fraModLay);
    frame->setContentsMargins({});
    frame->addWidget(cmdModLay);
    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins({});
    for (QWidget *child : std::initializer_list<QWidget *>{lblLay, txtLayNr, lblLayId, fraModLay})
        row->addWidget(child, child == lblLayId ? 1 : 0);
    setFocusProxy(txtLayNr);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    connect(cmdModLay, &QPushButton::clicked, this, &ZOL3_LayInfo::click);
    m_leaving = std::make_unique<LeavingCheck>(*txtLayNr, [this] { return leave(); });
    connect(&LanguageHub::instance(), &LanguageHub::LanguageChanged, this,
            &ZOL3_LayInfo::ml_RuntimeSupport_LanguageChanged);
    ml_RuntimeSupport_LanguageChanged();
    RefreshControls();
}

ZOL3_LayInfo::~ZOL3_LayInfo() { TearDown(); }

void ZOL3_LayInfo::setoDoc(ZolWDoc::ZOLW_Doc *doc)
{
    if (!doc) tellDebugger("QV_DOC_CONTROLS.ZOL4_LayInfo.set_oDoc invalid argument!"); // published spelling
    if (doc && doc != m_doc) m_shown = {};      // identifiers mean nothing in another document
    m_doc = doc;
    showLayer();
}

void ZOL3_LayInfo::TearDown() { m_doc = nullptr; }

ErrorRelay &ZOL3_LayInfo::relay() const { return m_relay ? *m_relay : ErrorRelay::reporting(); }

void ZOL3_LayInfo::LetLayId(const QVariant &New_LayId, quint8 ChangeMode)
{
    if (!m_doc) return;
    const QString value = New_LayId.toString();
    const auto id = shortValue(value);
    const auto lay = id ? m_doc->layers().find(*id) : std::nullopt;
    if (lay) take(*lay, ChangeMode);
    else tell(refusalOf(value));
}

void ZOL3_LayInfo::LetLayNr(const QVariant &New_LayNr, quint8 ChangeMode)
{
    if (const auto refusal = takeNumber(New_LayNr.toString(), ChangeMode)) tell(*refusal);
}

ZOL3_LayInfo::Refusal ZOL3_LayInfo::takeNumber(const QString &value, quint8 changeMode)
{
    if (!m_doc) return {};
    const auto number = shortValue(value);
    const auto lay = number ? m_doc->layers().findByNumber(*number) : std::nullopt;
    if (!lay) return refusalOf(value);
    const QPointer<ZOL3_LayInfo> alive(this);
    if (!m_notSetCurrentLayer) m_doc->layers().makeCurrent(*lay);
    if (alive) take(*lay, changeMode);
    return {};
}

Message ZOL3_LayInfo::refusalOf(const QString &value)
{
    const Text reason =
        isNumeric(value) ? Text{32, u"Nincs ilyen számú réteg!"} : Text{42, u"Egész számot kell megadni!"};
    return {Icon::Exclamation, txt(Text{31, u"Hibás rétegszám"}), txt(reason)};
}

void ZOL3_LayInfo::tell(const Message &refusal)
{
    prompts().alert();
    prompts().tell(refusal, this);
}

void ZOL3_LayInfo::take(const tLay &lay, quint8 changeMode)
{
    const bool differs = lay.LayId != m_shown.LayId;
    m_shown = lay;
    showLayer();
    if (!differs || !Enabled()) return;         // a disabled control changes silently, on purpose
    tLay copy = lay;
    emit ChangeLay(changeMode, copy);
}

void ZOL3_LayInfo::showLayer()
{
    const bool none = m_shown.LayId == -1;
    txtLayNr->setText(none ? QString() : QString::number(m_shown.gNr));
    lblLayId->setText(m_shown.Name);
    txtLayNr->setAccessibleDescription(m_shown.Name);
    setAccessibleDescription(none ? QString() : txtLayNr->text() + u' ' + m_shown.Name);
}

/// Takes what was typed, not what was only shown; what is refused gives way to the layer that stays.
LeavingCheck::Tell ZOL3_LayInfo::leave()
{
    if (!txtLayNr->isModified()) return {};
    const auto afterwards = qScopeGuard([alive = QPointer(this)] {
        if (alive) alive->showLayer();
    });
    Refusal refusal;
    const auto taking = [&] { refusal = takeNumber(txtLayNr->text(), kByUser); };
    if (m_relay) m_relay->guard(taking);
    else taking(); // what it throws is told later
    if (!refusal) return {};
    return [this, refusal = *refusal] {
        if (isVisible()) tell(refusal);
    };
}

bool ZOL3_LayInfo::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != txtLayNr || event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    if (m_infoMode) return false;
    const QPointer<ZOL3_LayInfo> alive(this);
    relay().guard([this] { LetLayNr(txtLayNr->text(), kByUser); });
    if (!alive) return true;
    showLayer();
    txtLayNr->selectAll();
    return true;
}

void ZOL3_LayInfo::click()
{
    Trace trace("ZOL3_LayInfo", "cmdModLay_Click");
    const QPointer<ZOL3_LayInfo> alive(this);
    ErrorRelay &user = relay();
    bool cancel = false;
    if (!user.guard([&] { emit LayIdClickBefore(cancel); }) || cancel || !alive) return;
    user.guard([this] { pick(); });
    if (alive) user.guard([this] { emit LayIdClickAfter(); }); // however the choice ended
}

void ZOL3_LayInfo::pick()
{
    ResourcePicker *const picker = resourcePicker();
    if (!m_doc || !picker) return;
    const QPointer<ZOL3_LayInfo> alive(this);
    const qint16 first = m_shown.LayId != -1 ? m_shown.LayId : m_doc->layers().currentId();
    const std::optional<qint16> chosen = picker->pick(ZolWDoc::TableKind::Layers, *m_doc, first, this);
    if (alive && chosen) LetLayId(*chosen, kByUser);
}

void ZOL3_LayInfo::setInfoMode(bool on)
{
    m_infoMode = on;
    fraModLay->setVisible(!on);
    txtLayNr->setReadOnly(on);
    txtLayNr->setFrame(!on);
    txtLayNr->setFocusPolicy(on ? Qt::ClickFocus : Qt::StrongFocus);
    QPalette colors;
    if (on) colors.setColor(QPalette::Base, Qt::transparent);
    txtLayNr->setPalette(colors);
    RefreshControls();
}

void ZOL3_LayInfo::setVisibleIcon(bool on)
{
    m_visibleIcon = on;
    cmdModLay->setIcon(on ? toolIcon("layer") : QIcon());
    RefreshControls();
}

/// A form does not jump when another layer has a longer name.
QSize ZOL3_LayInfo::sizeHint() const
{
    const int name = fontMetrics().averageCharWidth() * kLetters;
    const QSize shown = lblLayId->sizeHint().expandedTo(lblLayId->minimumSizeHint());
    return QWidget::sizeHint() + QSize(name - shown.width(), 0);
}

void ZOL3_LayInfo::RefreshControls()
{
    const int digits = txtLayNr->fontMetrics().horizontalAdvance(QStringLiteral("00000"));
    txtLayNr->setFixedWidth(digits + txtLayNr->sizeHint().height() * 3 / 4); // with frame and cursor
    layout()->invalidate();
    layout()->activate();
    updateGeometry();
}

void ZOL3_LayInfo::ml_RuntimeSupport_LanguageChanged()
{
    lblLay->setText(txt(Text{43, u"Réteg  :"}));
    cmdModLay->setText(txt(Text{1, u"Réteg..."}));
    txtLayNr->setAccessibleName(txt(Text{22054, u"Rétegszám"}));
    cmdModLay->setToolTip(txt(Text{22055, u"Réteg kiválasztása a rajz rétegei közül"}));
    setAccessibleName(txt(Text{22056, u"Réteg"}));
    RefreshControls();
}

QVariantMap ZOL3_LayInfo::propertyBag() const { return bagOf(*this, kBag); }
void ZOL3_LayInfo::setPropertyBag(const QVariantMap &bag) { readBag(*this, kBag, bag); }

void ZOL3_LayInfo::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) RefreshControls();
}

} // namespace QV_DOC_CONTROLS
