#include "controls/DesignMode.h"
#include "controls/ZOL3_LayGroup.h"
#include "controls/ZOL3_LayInfo.h"
#include "controls/usInputBox.h"
#include "controls/usLays.h"
#include "facade/services/Language.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include "ui_AttributeForm.h"

#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>
#include <QtDesigner/QFormBuilder>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiTools/QUiLoader>

#include <QApplication>
#include <QBuffer>
#include <QComboBox>
#include <QDir>
#include <QDomDocument>
#include <QPluginLoader>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <random>

using namespace QV_DOC_CONTROLS;

namespace {

using Values = std::vector<std::pair<const char *, QVariant>>;
struct Control {
    const char *name;
    Values values;                              ///< design-time properties, outside their defaults
    QStringList closed{};                       ///< that the designer shows and does not set
};

const QVariant kFont = QFont(QStringLiteral("DejaVu Serif"), 17);

Values previewValues(Values own)
{
    const Values shared{{"BackColor", QColor::fromRgba(0x80000005)},
                        {"BorderStyle", 1}, {"Zoom", 12.5}, {"SidId", 32000},
                        {"SiColor", QColor(0x11, 0x22, 0x33)}, {"VisibleGrid", true}, {"VisibleZoom", false},
                        {"Appearance", 1}, {"VisibleProt", true}, {"VisibleFrame", true},
                        {"ToolTipSid", QStringLiteral("ő & <=>")}};
    own.insert(own.end(), shared.begin(), shared.end());
    return own;
}

const Values kLayerSet{{"Backcolor", QColor(0x11, 0x22, 0x33)}, {"Font", kFont}, {"SingleLine", true},
                       {"WidthDiferent", -12.5}};
const QStringList kKept{"sLays", "sLayGroup"};
const std::vector<Control> kControls{ // table
    {"usInputBox",
     {{"Backcolor", QColor(0x11, 0x22, 0x33)},
      {"ForeColor", QColor::fromRgba(0x80000012)}, {"Enabled", false}, {"Font", kFont}, {"BorderStyle", 1},
      {"BeforeString", QStringLiteral("ő & <=>")}, {"Value", QStringLiteral("12.25")}, {"Min", 11.5},
      {"Max", 13.125}, {"FormatString", QStringLiteral("#,##0.0 \"m\"")}, {"WidthBeforeString", 100},
      {"AfterString", QStringLiteral("cm")}, {"InfoMode", true}, {"BeforeStringAlign", 2},
      {"WidthValue", 2345}, {"WidthAfterString", 678}, {"TimerInterval", 77}, {"SetFocusNextTabIndex", 4},
      {"SetFucusBackTabIndex", 5}, {"InputType", 3}, {"AutoSelect", false}, {"UpDownInc", 0.25},
      {"UpDownVisible", true}, {"LenMax", 9}, {"ReadsLocale", true},
      {"ErrorsInPlace", true}}},
    {"ZOL3_LayGroup", kLayerSet, kKept}, {"usLays", kLayerSet, kKept},
    {"ZOL3_LayInfo", {{"Enabled", false}, {"Font", kFont}, {"InfoMode", true}, {"VisibleIcon", true}}},
    {"usSiInfo", previewValues({{"ShowEnabled", false}})}, {"ZOL3_SiInfo", previewValues({})},
    {"usTxAlign", {{"Align", 8}}},
};

QString className(const Control &control)
{
    return QStringLiteral("QV_DOC_CONTROLS::") + QLatin1String(control.name);
}

QList<QDesignerCustomWidgetInterface *> offered()
{
    static QPluginLoader loader;
    const QDir folder(QStringLiteral(PLUGINS "/designer"));
    loader.setFileName(folder.filePath(folder.entryList(QDir::Files).value(0)));
    auto *const plugin = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    return plugin ? plugin->customWidgets() : QList<QDesignerCustomWidgetInterface *>();
}

std::unique_ptr<QWidget> loaded(const QByteArray &form, bool byUiLoader)
{
    QBuffer buffer;
    buffer.setData(form);
    buffer.open(QIODevice::ReadOnly);
    if (byUiLoader) {
        QUiLoader loader;
        loader.addPluginPath(QStringLiteral(PLUGINS "/designer"));
        return std::unique_ptr<QWidget>(loader.load(&buffer));
    }
    QFormBuilder builder;
    builder.setPluginPath({QStringLiteral(PLUGINS "/designer")});
    return std::unique_ptr<QWidget>(builder.load(&buffer));
}

/// The form with the properties of its control in another order.
QByteArray shuffled(const QByteArray &form, std::mt19937 &random)
{
    QDomDocument dom;
    dom.setContent(form);
    QDomElement widget = dom.documentElement().firstChildElement(QStringLiteral("widget"));
    widget = widget.firstChildElement(QStringLiteral("widget"));
    std::vector<QDomElement> properties;
    for (auto p = widget.firstChildElement(QStringLiteral("property")); !p.isNull();
         p = p.nextSiblingElement(QStringLiteral("property")))
        properties.push_back(p);
    std::ranges::shuffle(properties, random);
    for (const QDomElement &p : properties) widget.appendChild(p);
    return dom.toByteArray();
}

QString said(const QVariant &value)
{
    return value.typeId() == QMetaType::QFont ? value.value<QFont>().toString() : value.toString();
}

/// On a form of its own, every value as it was set, once shown.
void holdsValues(QWidget *form, const Control &control)
{
    QVERIFY(form);
    tests::ScriptedPrompts silent;
    const QWidget *const found = form->findChild<QWidget *>(QStringLiteral("control"));
    QVERIFY(found);
    QCOMPARE(QLatin1String(found->metaObject()->className()), className(control));
    form->show();
    for (const auto &[name, value] : control.values)
        QVERIFY2(said(found->property(name)) == said(value),
                 qPrintable(QStringLiteral("%1.%2: %3, not %4")
                                .arg(QLatin1String(control.name), QLatin1String(name),
                                     said(found->property(name)), said(value))));
}

/// A value as forms write it.
QString element(const QVariant &value)
{
    const auto simple = [&](const char *name) {
        return QStringLiteral("<%1>%2</%1>").arg(QLatin1String(name), value.toString().toHtmlEscaped());
    };
    switch (value.typeId()) {
    case QMetaType::Bool: return simple("bool");
    case QMetaType::Int: return simple("number");
    case QMetaType::Double: return simple("double");
    case QMetaType::QColor: {
        const auto c = value.value<QColor>();
        return QStringLiteral("<color alpha='%1'><red>%2</red><green>%3</green><blue>%4</blue></color>")
            .arg(c.alpha()).arg(c.red()).arg(c.green()).arg(c.blue());
    }
    case QMetaType::QFont: {
        const auto font = value.value<QFont>();
        return QStringLiteral("<font><family>%1</family><pointsize>%2</pointsize></font>")
            .arg(font.family()).arg(font.pointSize());
    }
    default: return simple("string");
    }
}

/// A form with that control and its values, as a designer would type it.
QString formWith(const Control &control)
{
    QString properties;
    for (const auto &[name, value] : control.values)
        properties += QStringLiteral("<property name='%1'>").arg(QLatin1String(name)) + element(value) +
                      QStringLiteral("</property>");
    return QStringLiteral("<ui version='4.0'><class>Form</class><widget class='QWidget' name='Form'>"
                          "<widget name='control' class='") +
           className(control) + QStringLiteral("'>") + properties +
           QStringLiteral("</widget></widget></ui>");
}

/// The designer's engine, without its windows. One for the process: a second one may end it.
struct Engine {
    std::unique_ptr<QDesignerFormEditorInterface> core;
    QWidget desk;                               ///< goes before the core

    Engine()
    {
        QDesignerComponents::initializeResources();
        tests::expectWarning(QStringLiteral("QOpenGLWidget is not supported on this platform"));
        core.reset(QDesignerComponents::createFormEditor(nullptr));
        core->setPropertyEditor(QDesignerComponents::createPropertyEditor(core.get(), &desk));
        new QDesignerIntegration(core.get(), core.get());
        QDesignerComponents::initializePlugins(core.get());
    }
};

/// One form open in it.
struct Designer {
    QDesignerFormWindowInterface *const form;
    QWidget *control = nullptr;

    Designer(Engine &engine, const Control &c)
        : form(engine.core->formWindowManager()->createFormWindow(&engine.desk))
    {
        if (form->setContents(formWith(c))) control = form->findChild<QWidget *>(QStringLiteral("control"));
    }
    ~Designer() { delete form; }
    QByteArray saved() const { return form->contents().toUtf8(); }
};

} // namespace

class tst_Forms : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<Engine> m_engine;
private slots:
    void initTestCase()
    {
        QCoreApplication::addLibraryPath(QStringLiteral(PLUGINS));
        m_engine = std::make_unique<Engine>();
    }
    void cleanupTestCase() { m_engine.reset(); }

    void thePluginOffersEveryControl()
    {
        const auto all = offered();
        QCOMPARE(all.size(), qsizetype(kControls.size()));
        QStringList tips;
        for (size_t i = 0; i < kControls.size(); ++i) {
            const auto &offer = *all[qsizetype(i)];
            QCOMPARE(offer.name(), className(kControls[i]));
            QVERIFY(!offer.icon().pixmap(22, 22).isNull());
            QVERIFY(offer.domXml().contains(offer.name()));
            for (const int language : {Hungarian, English, Romanian, Vietnamese}) {
                setLanguage(language, {});
                tips << offer.toolTip();
            }
            setLanguage(Hungarian, {});
            QWidget form;
            QWidget *const preview = all[qsizetype(i)]->createWidget(&form);
            preview->resize(preview->sizeHint());
            const QImage picture = preview->grab().toImage();
            QImage blank(picture.size(), picture.format());
            blank.fill(picture.pixel(0, 0));
            QVERIFY2(picture != blank, kControls[i].name);
        }
        QVERIFY(!tips.contains(QString()));
        QCOMPARE(tips.removeDuplicates(), 0);
    }

    void aSavedFormLoadsBackInEveryOrder_data()
    {
        QTest::addColumn<int>("control");
        for (size_t i = 0; i < kControls.size(); ++i) QTest::newRow(kControls[i].name) << int(i);
    }
    void aSavedFormLoadsBackInEveryOrder()
    {
        QFETCH(int, control);
        const Control &c = kControls[size_t(control)];
        const QByteArray form = Designer(*m_engine, c).saved();
        std::mt19937 random(7);
        for (int turn = 0; turn < 12; ++turn) holdsValues(loaded(shuffled(form, random), turn % 2).get(), c);
    }

    void theDesignerShowsAndKeepsEveryProperty_data() { aSavedFormLoadsBackInEveryOrder_data(); }
    void theDesignerShowsAndKeepsEveryProperty()
    {
        QFETCH(int, control);
        const Control &c = kControls[size_t(control)];
        const Designer designer(*m_engine, c);
        QWidget *const made = designer.control;
        QVERIFY(made && isDesigned(*made));
        auto *const sheet = qt_extension<QDesignerPropertySheetExtension *>(
            m_engine->core->extensionManager(), made);
        for (const auto &[name, value] : c.values) {
            const int index = sheet->indexOf(QLatin1String(name));
            QVERIFY2(index >= 0 && sheet->isVisible(index), name);
        }
        for (const QString &name : c.closed) {
            QVERIFY2(sheet->isVisible(sheet->indexOf(name)), qPrintable(name));
            const QVariant before = made->property(name.toLatin1());
            made->setProperty(name.toLatin1(), QStringLiteral("1-3"));
            QCOMPARE(made->property(name.toLatin1()), before);
        }
        holdsValues(loaded(designer.saved(), true).get(), c);
    }

    void thePropertyEditorMaySetThemInAnyOrder_data() { aSavedFormLoadsBackInEveryOrder_data(); }
    void thePropertyEditorMaySetThemInAnyOrder()
    {
        QFETCH(int, control);
        Control c = kControls[size_t(control)];
        std::erase_if(c.values, [](const auto &v) { return v.second.typeId() == QMetaType::QString; });
        std::mt19937 random(11);
        for (int turn = 0; turn < 5; ++turn) {
            std::ranges::shuffle(c.values, random);
            const Designer designer(*m_engine, {c.name, {}});
            for (const auto &[name, value] : c.values)
                designer.form->cursor()->setWidgetProperty(designer.control, QLatin1String(name), value);
            holdsValues(loaded(designer.saved(), turn % 2).get(), c);
        }
    }

    void aCompiledFormHoldsItsValues()
    {
        QWidget form;
        Ui::AttributeForm ui;
        ui.setupUi(&form);
        form.show();
        QCOMPARE(ui.width->Value().toDouble(), 12.5);
        QCOMPARE(ui.width->Min(), 10.0);
        QCOMPARE(ui.width->txtCombo->currentText(), QStringLiteral("12.50"));
        QCOMPARE(ui.width->AfterString(), QStringLiteral("cm"));
        QVERIFY(ui.layers->SingleLine());
    }
};
QVDC_TEST(tst_Forms)
#include "tst_Forms.moc"
